// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "pyxruntime_export.h"

#include <QtCore/QList>
#include <QtCore/QSet>
#include <QtCore/QStringList>
#include <QtNetwork/QHostAddress>
#include <QtNetwork/QNetworkInterface>

namespace PYXRuntime {

class PYXNetworkEntry;

/**
 * What the local host knows of its own addresses. Any thread.
 *
 * The interfaces are read on first use and kept, and so is every answer that was made from them: a change
 * of the host's networks is noticed after refresh() only. Interfaces that are down count as well.
 */
class PYXRUNTIME_EXPORT PYXHostAddressHelpers final
{
public:
    PYXHostAddressHelpers() = delete;

    /** Forgets the interfaces and all answers; the next question reads them anew. */
    static void refresh();

    static QList<QNetworkInterface> allInterfaces();
    static QList<QHostAddress> allAddresses();
    static QList<QHostAddress> allAddresses_IPv4();
    /** Without 127.0.0.1. */
    static QList<QHostAddress> allAddresses_IPv4_noLocalhost();
    static QList<QHostAddress> allAddresses_IPv6();
    /** Without ::1. */
    static QList<QHostAddress> allAddresses_IPv6_noLocalhost();
    static QStringList getLocalIPStrings_IPv4();
    static QStringList getLocalIPStrings_IPv6();

    /** Whether the address is one of allAddresses(). */
    static bool isALocalAddress(const QHostAddress &address);
    /** The same, and true for 127.0.0.1 and ::1 on every host. */
    static bool isOwnAddress(const QHostAddress &address);
    static bool isOwnAddress(const PYXNetworkEntry &entry);

    /**
     * Whether the address lies in a network of this host. Also true for the loopback addresses, for "any"
     * and for 255.255.255.255.
     */
    static bool belongsToALocalSubnet(const QHostAddress &address);
    static bool belongsToALocalSubnet(const PYXNetworkEntry &entry);

    /**
     * The own address to name to a peer: that of the first interface whose network holds the peer, else the
     * one from which the system would send to it (nothing is sent to find out).
     * @return null for a null peer, or where there is no way to it.
     */
    static QHostAddress decideOwnAddressForPeer(const QHostAddress &peer);
    static QHostAddress decideOwnAddressForPeer(const PYXNetworkEntry &peer);

    /**
     * The address to use among those of one peer: a loopback address; else the first one in a network of
     * this host, the order of interfaces before that of the candidates; else the first one.
     * @return null if there is none. Null candidates do not count.
     */
    static QHostAddress decidePeerAddress(const QList<QHostAddress> &candidates);
    /** The same with the candidates in numerical order, IPv4 first. */
    static QHostAddress decidePeerAddress(const QSet<QHostAddress> &candidates);
};

} // namespace PYXRuntime
