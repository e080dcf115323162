// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXHostAddressHelpers.h"

#include "AddressBook.h"
#include "PYXNetworkEntry.h"

#include <algorithm>
#include <cstring>
#include <iterator>

namespace PYXRuntime {
namespace {

/** Never destroyed: threads may ask until the process ends. */
AddressBook &addressBook()
{
    static auto *const book = new AddressBook;
    return *book;
}

template <typename Predicate>
QList<QHostAddress> addressesThat(Predicate isWanted)
{
    QList<QHostAddress> found;
    const auto network = addressBook().network();
    for (const struLocalAddress &local : network->addresses) {
        if (isWanted(local.ip))
            found += local.ip;
    }
    return found;
}

QStringList texts(const QList<QHostAddress> &addresses)
{
    QStringList found;
    std::transform(addresses.cbegin(), addresses.cend(), std::back_inserter(found),
                   [](const QHostAddress &address) { return address.toString(); });
    return found;
}

bool isInNumericalOrder(const QHostAddress &left, const QHostAddress &right)
{
    if (left.protocol() != right.protocol())
        return left.protocol() < right.protocol();
    if (left.protocol() == QAbstractSocket::IPv4Protocol)
        return left.toIPv4Address() < right.toIPv4Address();
    const Q_IPV6ADDR leftBytes = left.toIPv6Address();
    const Q_IPV6ADDR rightBytes = right.toIPv6Address();
    const int order = std::memcmp(leftBytes.c, rightBytes.c, sizeof leftBytes.c);
    return order != 0 ? order < 0 : left.scopeId() < right.scopeId();
}

} // namespace

void PYXHostAddressHelpers::refresh()
{
    addressBook().refresh();
}

QList<QNetworkInterface> PYXHostAddressHelpers::allInterfaces()
{
    return addressBook().network()->interfaces;
}

QList<QHostAddress> PYXHostAddressHelpers::allAddresses()
{
    return addressesThat([](const QHostAddress &) { return true; });
}

QList<QHostAddress> PYXHostAddressHelpers::allAddresses_IPv4()
{
    return addressesThat(
        [](const QHostAddress &address) { return address.protocol() == QAbstractSocket::IPv4Protocol; });
}

QList<QHostAddress> PYXHostAddressHelpers::allAddresses_IPv4_noLocalhost()
{
    return addressesThat([](const QHostAddress &address) {
        return address.protocol() == QAbstractSocket::IPv4Protocol && address != QHostAddress::LocalHost;
    });
}

QList<QHostAddress> PYXHostAddressHelpers::allAddresses_IPv6()
{
    return addressesThat(
        [](const QHostAddress &address) { return address.protocol() == QAbstractSocket::IPv6Protocol; });
}

QList<QHostAddress> PYXHostAddressHelpers::allAddresses_IPv6_noLocalhost()
{
    return addressesThat([](const QHostAddress &address) {
        return address.protocol() == QAbstractSocket::IPv6Protocol && address != QHostAddress::LocalHostIPv6;
    });
}

QStringList PYXHostAddressHelpers::getLocalIPStrings_IPv4()
{
    return texts(allAddresses_IPv4());
}

QStringList PYXHostAddressHelpers::getLocalIPStrings_IPv6()
{
    return texts(allAddresses_IPv6());
}

bool PYXHostAddressHelpers::isALocalAddress(const QHostAddress &address)
{
    return allAddresses().contains(address);
}

bool PYXHostAddressHelpers::isOwnAddress(const QHostAddress &address)
{
    return addressBook().isOwnAddress(address);
}

bool PYXHostAddressHelpers::isOwnAddress(const PYXNetworkEntry &entry)
{
    return isOwnAddress(entry.address());
}

bool PYXHostAddressHelpers::belongsToALocalSubnet(const QHostAddress &address)
{
    return addressBook().belongsToALocalSubnet(address);
}

bool PYXHostAddressHelpers::belongsToALocalSubnet(const PYXNetworkEntry &entry)
{
    return belongsToALocalSubnet(entry.address());
}

QHostAddress PYXHostAddressHelpers::decideOwnAddressForPeer(const QHostAddress &peer)
{
    return addressBook().decideOwnAddressForPeer(peer);
}

QHostAddress PYXHostAddressHelpers::decideOwnAddressForPeer(const PYXNetworkEntry &peer)
{
    return decideOwnAddressForPeer(peer.address());
}

QHostAddress PYXHostAddressHelpers::decidePeerAddress(const QList<QHostAddress> &candidates)
{
    return addressBook().decidePeerAddress(candidates);
}

QHostAddress PYXHostAddressHelpers::decidePeerAddress(const QSet<QHostAddress> &candidates)
{
    QList<QHostAddress> ordered = candidates.values();
    std::sort(ordered.begin(), ordered.end(), isInNumericalOrder);
    return decidePeerAddress(ordered);
}

} // namespace PYXRuntime
