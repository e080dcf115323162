// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "pyxruntime_export.h"

#include <QtCore/QMetaType>
#include <QtCore/QString>
#include <QtCore/QUuid>
#include <QtNetwork/QHostAddress>

namespace PYXRuntime {

/**
 * A network peer as the user keeps it: name, address, identity, and where it stands and looks. A value:
 * different objects may be used in different threads.
 */
class PYXRUNTIME_EXPORT PYXNetworkEntry final
{
public:
    PYXNetworkEntry() = default;
    PYXNetworkEntry(const QHostAddress &address, quint16 port, const QUuid &uuid);
    PYXNetworkEntry(const QString &name, const QHostAddress &address, quint16 port, const QUuid &uuid);

    QString name() const { return m_name; }
    QHostAddress address() const { return m_address; }
    /** 0 stands for any port in matches(). */
    quint16 port() const { return m_port; }
    QUuid uuid() const { return m_uuid; }
    bool hasGeoPosition() const { return m_bHasGeoPosition; }
    /** Degrees. */
    double latitude() const { return m_latitude; }
    double longitude() const { return m_longitude; }
    /** In the application's unit; the library only keeps it. */
    double altitude() const { return m_altitude; }
    bool hasDirection() const { return m_bHasDirection; }
    bool useDirection() const { return m_bUseDirection; }
    /** Degrees. */
    double azimuth() const { return m_azimuth; }
    double beamWidth() const { return m_beamWidth; }

    void setName(const QString &name) { m_name = name; }
    void setUuid(const QUuid &uuid) { m_uuid = uuid; }
    /** Also gives the entry a position. */
    void setGeoPosition(double latitude, double longitude, double altitude);
    /** Also gives the entry a direction. */
    void setDirection(bool useDirection, double azimuth, double beamWidth);
    void clear() { *this = PYXNetworkEntry(); }

    /** No name, address, port, UUID and position; a direction does not count. */
    bool isNull() const;
    /** Address and port are there. */
    bool isValid() const { return !m_address.isNull() && m_port != 0; }

    /** Position and direction are compared where both entries have them. */
    bool operator==(const PYXNetworkEntry &other) const;
    bool operator!=(const PYXNetworkEntry &other) const { return !(*this == other); }
    /** Same address, and the other port is this one's or 0. */
    bool matches(const PYXNetworkEntry &other) const { return matches(other.m_address, other.m_port); }
    bool matches(const QHostAddress &address, quint16 port) const;

    /** "10.0.0.5:8080" */
    QString toIPPortString() const;
    /** "Name (10.0.0.5:8080)", without a name as toIPPortString(). */
    QString toString() const;
    /**
     * The entry of a text like "10.0.0.5:8080", which becomes its name as well. The first ":" splits, so
     * this does not do for IPv6, and what stands before it may be no address.
     * @return a null entry where a part is missing or the port is not 0 to 65535.
     */
    static PYXNetworkEntry parseIPPortString(const QString &text);

    /** See PYXHostAddressHelpers. */
    bool isOwnAddress() const;
    /** An entry with PYXHostAddressHelpers::decideOwnAddressForPeer() as its address, and nothing else. */
    PYXNetworkEntry decideOwnAddressForThisPeer() const;

    /** Makes the entry, and a QList of it, known to queued signals; the library's initialisation calls this.
     */
    static void registerMetaTypes();

private:
    QString m_name;
    QHostAddress m_address;
    QUuid m_uuid;
    double m_latitude = 0.0;
    double m_longitude = 0.0;
    double m_altitude = 0.0;
    double m_azimuth = 0.0;
    double m_beamWidth = 0.0;
    quint16 m_port = 0;
    bool m_bHasGeoPosition = false;
    bool m_bHasDirection = false;
    bool m_bUseDirection = false;
};

} // namespace PYXRuntime

Q_DECLARE_METATYPE(PYXRuntime::PYXNetworkEntry)
