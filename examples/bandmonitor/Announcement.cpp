// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#include "Announcement.h"

#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QSysInfo>

#include <algorithm>

namespace BandMonitor {
namespace {

const QLatin1String TypeKey("type");
const QLatin1String IdKey("id");
const QLatin1String NameKey("name");
const QLatin1String IntervalKey("interval");
const QLatin1String Type("BandMonitor");

constexpr int LongestDatagram = 1400; // in bytes: fits into one Ethernet frame
constexpr int LongestName = 64;
constexpr int ShortestInterval = 1000; // in ms
constexpr int LongestInterval = 60'000;

} // namespace

struAnnouncement struAnnouncement::own()
{
    return {QUuid::createUuid(), QSysInfo::machineHostName().left(LongestName)};
}

QByteArray struAnnouncement::toDatagram() const
{
    const QJsonObject object{
        {TypeKey, Type}, {IdKey, id.toString()}, {NameKey, name}, {IntervalKey, interval}};
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

std::optional<struAnnouncement> struAnnouncement::fromDatagram(const QByteArray &datagram)
{
    if (datagram.size() > LongestDatagram)
        return std::nullopt;
    const QJsonObject object = QJsonDocument::fromJson(datagram).object();
    const QUuid id(object.value(IdKey).toString());
    if (object.value(TypeKey).toString() != Type || id.isNull())
        return std::nullopt;
    const double interval = object.value(IntervalKey).toDouble(DefaultInterval);
    return struAnnouncement{id, object.value(NameKey).toString().simplified().left(LongestName),
                            int(std::clamp<double>(interval, ShortestInterval, LongestInterval))};
}

} // namespace BandMonitor
