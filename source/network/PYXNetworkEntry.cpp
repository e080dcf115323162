// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXNetworkEntry.h"

#include "PYXHostAddressHelpers.h"

#include <limits>

namespace PYXRuntime {

PYXNetworkEntry::PYXNetworkEntry(const QHostAddress &address, quint16 port, const QUuid &uuid)
    : PYXNetworkEntry(QString(), address, port, uuid)
{}

PYXNetworkEntry::PYXNetworkEntry(const QString &name, const QHostAddress &address, quint16 port,
                                 const QUuid &uuid)
    : m_name(name)
    , m_address(address)
    , m_uuid(uuid)
    , m_port(port)
{}

void PYXNetworkEntry::setGeoPosition(double latitude, double longitude, double altitude)
{
    m_bHasGeoPosition = true;
    m_latitude = latitude;
    m_longitude = longitude;
    m_altitude = altitude;
}

void PYXNetworkEntry::setDirection(bool useDirection, double azimuth, double beamWidth)
{
    m_bHasDirection = true;
    m_bUseDirection = useDirection;
    m_azimuth = azimuth;
    m_beamWidth = beamWidth;
}

bool PYXNetworkEntry::isNull() const
{
    return m_name.isEmpty() && m_address.isNull() && m_port == 0 && m_uuid.isNull() && !m_bHasGeoPosition;
}

bool PYXNetworkEntry::operator==(const PYXNetworkEntry &other) const
{
    const bool bSamePeer = m_name == other.m_name && m_address == other.m_address && m_port == other.m_port &&
                           m_uuid == other.m_uuid && m_bHasGeoPosition == other.m_bHasGeoPosition &&
                           m_bHasDirection == other.m_bHasDirection;
    const bool bSamePlace =
        !m_bHasGeoPosition || (m_latitude == other.m_latitude && m_longitude == other.m_longitude &&
                               m_altitude == other.m_altitude);
    const bool bSameDirection =
        !m_bHasDirection || (m_bUseDirection == other.m_bUseDirection && m_azimuth == other.m_azimuth &&
                             m_beamWidth == other.m_beamWidth);
    return bSamePeer && bSamePlace && bSameDirection;
}

bool PYXNetworkEntry::matches(const QHostAddress &address, quint16 port) const
{
    return m_address == address && (port == 0 || port == m_port);
}

QString PYXNetworkEntry::toIPPortString() const
{
    return m_address.toString() + QLatin1Char(':') + QString::number(m_port);
}

QString PYXNetworkEntry::toString() const
{
    if (m_name.isEmpty())
        return toIPPortString();
    return m_name + QLatin1String(" (") + toIPPortString() + QLatin1Char(')');
}

PYXNetworkEntry PYXNetworkEntry::parseIPPortString(const QString &text)
{
    const int colon = text.indexOf(QLatin1Char(':'));
    if (colon <= 0 || colon + 1 == text.size())
        return {};
    bool bIsNumber = false;
    const int port = text.midRef(colon + 1).toInt(&bIsNumber);
    if (!bIsNumber || port < 0 || port > std::numeric_limits<quint16>::max())
        return {};
    return {text, QHostAddress(text.left(colon)), static_cast<quint16>(port), QUuid()};
}

bool PYXNetworkEntry::isOwnAddress() const
{
    return PYXHostAddressHelpers::isOwnAddress(m_address);
}

PYXNetworkEntry PYXNetworkEntry::decideOwnAddressForThisPeer() const
{
    return {PYXHostAddressHelpers::decideOwnAddressForPeer(m_address), 0, QUuid()};
}

void PYXNetworkEntry::registerMetaTypes()
{
    qRegisterMetaType<PYXNetworkEntry>();
    qRegisterMetaType<QList<PYXNetworkEntry>>();
    // The library may be initialised again, and Qt warns of a second registration.
    if (!QMetaType::hasRegisteredComparators<PYXNetworkEntry>())
        QMetaType::registerEqualsComparator<PYXNetworkEntry>();
}

} // namespace PYXRuntime
