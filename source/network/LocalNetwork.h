// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QList>
#include <QtCore/QVector>
#include <QtNetwork/QHostAddress>
#include <QtNetwork/QNetworkInterface>

namespace PYXRuntime {

/** One address of this host. */
struct struLocalAddress
{
    QHostAddress ip;
    int prefixLength = -1;  ///< of the address's network; -1: not known, nothing lies in it
    QHostAddress broadcast; ///< null where there is none

    bool hasInSubnet(const QHostAddress &address) const;
};

/** Interfaces and, in their order, all their addresses. */
struct struLocalNetwork
{
    QList<QNetworkInterface> interfaces;
    QVector<struLocalAddress> addresses;

    /** The first own address, in order, whose network holds the peer; null if none does. */
    QHostAddress ownAddressInSubnetOf(const QHostAddress &peer) const;
    /** The index of the candidate that lies in the first network that holds any; -1 if none does. */
    int indexInLocalSubnet(const QList<QHostAddress> &candidates) const;
    /** The broadcast address of every IPv4 network that one of these own addresses belongs to. */
    QVector<QHostAddress> broadcastsOf(const QList<QHostAddress> &ownAddresses) const;
};

/** Asks the system. */
struLocalNetwork readLocalNetwork();

/** The address from which the system would send to the peer; null where there is no way. Sends nothing. */
QHostAddress ownAddressByRouting(const QHostAddress &peer);

} // namespace PYXRuntime
