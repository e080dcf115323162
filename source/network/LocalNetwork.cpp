// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "LocalNetwork.h"

#include <QtNetwork/QNetworkProxy>
#include <QtNetwork/QUdpSocket>

namespace PYXRuntime {
namespace {

// "discard"; any port does, as nothing is sent to it.
constexpr quint16 RoutingProbePort = 9;

} // namespace

bool struLocalAddress::hasInSubnet(const QHostAddress &address) const
{
    return ip.protocol() == address.protocol() && address.isInSubnet(ip, prefixLength);
}

QHostAddress struLocalNetwork::ownAddressInSubnetOf(const QHostAddress &peer) const
{
    for (const struLocalAddress &local : addresses) {
        if (local.hasInSubnet(peer))
            return local.ip;
    }
    return {};
}

int struLocalNetwork::indexInLocalSubnet(const QList<QHostAddress> &candidates) const
{
    for (const struLocalAddress &local : addresses) {
        for (int i = 0; i < candidates.size(); ++i) {
            if (local.hasInSubnet(candidates.at(i)))
                return i;
        }
    }
    return -1;
}

QVector<QHostAddress> struLocalNetwork::broadcastsOf(const QList<QHostAddress> &ownAddresses) const
{
    QVector<QHostAddress> found;
    for (const struLocalAddress &local : addresses) {
        if (local.ip.protocol() == QAbstractSocket::IPv4Protocol && !local.broadcast.isNull() &&
            ownAddresses.contains(local.ip))
            found += local.broadcast;
    }
    return found;
}

struLocalNetwork readLocalNetwork()
{
    struLocalNetwork network;
    network.interfaces = QNetworkInterface::allInterfaces();
    for (const QNetworkInterface &device : qAsConst(network.interfaces)) {
        const QList<QNetworkAddressEntry> entries = device.addressEntries();
        for (const QNetworkAddressEntry &entry : entries)
            network.addresses += {entry.ip(), entry.prefixLength(), entry.broadcast()};
    }
    return network;
}

QHostAddress ownAddressByRouting(const QHostAddress &peer)
{
    QUdpSocket socket;
    // Else the application's proxy would be asked, which may ask back whether the peer is a local one.
    socket.setProxy(QNetworkProxy::NoProxy);
    socket.connectToHost(peer, RoutingProbePort);
    return socket.state() == QAbstractSocket::ConnectedState ? socket.localAddress() : QHostAddress();
}

} // namespace PYXRuntime
