// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#include "StationModel.h"

#include <QtCore/QElapsedTimer>

#include <algorithm>

namespace BandMonitor {
namespace {

constexpr int UpdateInterval = 1000; // in ms
// Three intervals, and half a one for those that come late.
constexpr double IntervalsUntilGone = 3.5;

StationModel::Clock steadyClock()
{
    QElapsedTimer timer;
    timer.start();
    return [timer] { return timer.elapsed(); };
}

} // namespace

StationModel::StationModel(const QUuid &ownId, QObject *parent)
    : StationModel(ownId, steadyClock(), parent)
{}

StationModel::StationModel(const QUuid &ownId, Clock clock, QObject *parent)
    : QAbstractTableModel(parent)
    , m_ownId(ownId)
    , m_clock(std::move(clock))
{
    connect(&m_timer, &QTimer::timeout, this, &StationModel::update);
    m_timer.start(UpdateInterval);
}

PYXRuntime::PYXNetworkEntry StationModel::entry(int row) const
{
    const struStation &station = m_stations.at(std::size_t(row));
    return {station.announcement.name, station.address, struAnnouncement::Port, station.announcement.id};
}

bool StationModel::contains(const QHostAddress &address) const
{
    return std::any_of(m_stations.begin(), m_stations.end(),
                       [&](const struStation &station) { return station.address == address; });
}

void StationModel::update()
{
    const qint64 now = m_clock();
    for (int row = rowCount() - 1; row >= 0; --row) {
        const struStation &station = m_stations[std::size_t(row)];
        if (double(now - station.heard) <= IntervalsUntilGone * station.announcement.interval)
            continue;
        beginRemoveRows({}, row, row);
        m_stations.erase(m_stations.begin() + row);
        endRemoveRows();
    }
    if (!m_stations.empty())
        Q_EMIT dataChanged(index(0, ekColumn_Age), index(rowCount() - 1, ekColumn_Age));
}

void StationModel::parseBroadcastDatagram(const QByteArray &datagram, const QHostAddress &sender, quint16)
{
    const std::optional<struAnnouncement> announcement = struAnnouncement::fromDatagram(datagram);
    if (!announcement || announcement->id == m_ownId)
        return;
    const struStation station{*announcement, sender, m_clock()};
    const auto known = std::find_if(m_stations.begin(), m_stations.end(), [&](const struStation &other) {
        return other.announcement.id == announcement->id;
    });
    const int row = int(known - m_stations.begin());
    if (known != m_stations.end()) {
        *known = station;
        Q_EMIT dataChanged(index(row, 0), index(row, ekColumn_Count - 1));
    } else if (row < MaximumCount) {
        beginInsertRows({}, row, row);
        m_stations.push_back(station);
        endInsertRows();
    }
}

int StationModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_stations.size());
}

int StationModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ekColumn_Count;
}

QString StationModel::_text(const struStation &station, int column) const
{
    switch (column) {
    case ekColumn_Name:
        return station.announcement.name;
    case ekColumn_Address:
        return station.address.toString();
    default:
        return tr("%1 s ago").arg((m_clock() - station.heard) / 1000);
    }
}

QVariant StationModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || role != Qt::DisplayRole)
        return {};
    return _text(m_stations[std::size_t(index.row())], index.column());
}

QVariant StationModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    const QString headings[] = {tr("Station"), tr("Address"), tr("Heard")};
    return section >= 0 && section < ekColumn_Count ? headings[section] : QString();
}

} // namespace BandMonitor
