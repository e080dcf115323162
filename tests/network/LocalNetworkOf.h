// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "LocalNetwork.h"

/** A host with these own addresses, each in its network: "10.0.0.1/24", "fd00::1/64". */
inline PYXRuntime::struLocalNetwork localNetworkOf(const QStringList &addresses)
{
    PYXRuntime::struLocalNetwork network;
    for (const QString &address : addresses) {
        const auto [subnet, prefixLength] = QHostAddress::parseSubnet(address);
        const QHostAddress ip(address.section('/', 0, 0));
        QHostAddress broadcast;
        if (ip.protocol() == QAbstractSocket::IPv4Protocol && prefixLength < 32)
            broadcast.setAddress(subnet.toIPv4Address() | (0xffffffffU >> prefixLength));
        network.addresses += {ip, prefixLength, broadcast};
    }
    return network;
}

inline QList<QHostAddress> addressList(const QStringList &texts)
{
    QList<QHostAddress> addresses;
    for (const QString &text : texts)
        addresses += QHostAddress(text);
    return addresses;
}
