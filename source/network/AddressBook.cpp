// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "AddressBook.h"

#include <algorithm>
#include <mutex>
#include <utility>

namespace PYXRuntime {
namespace {

// Any sender of datagrams can have an answer kept; one that is dropped is made again, and is the same.
constexpr int MostAnswers = 65536;

bool isIPv4(const QHostAddress &address)
{
    return address.protocol() == QAbstractSocket::IPv4Protocol;
}

bool isIPv6(const QHostAddress &address)
{
    return address.protocol() == QAbstractSocket::IPv6Protocol;
}

/** Addresses that stand for this host or for all around it, whatever its networks are. */
bool isLocalByNature(const QHostAddress &address)
{
    if (isIPv6(address))
        return address == QHostAddress::LocalHostIPv6 || address == QHostAddress::AnyIPv6;
    return address == QHostAddress::LocalHost || address == QHostAddress::Any ||
           address == QHostAddress::AnyIPv4 || address == QHostAddress::Broadcast;
}

} // namespace

AddressBook::AddressBook(NetworkReader reader, Router router)
    : m_reader(std::move(reader))
    , m_router(std::move(router))
{}

void AddressBook::refresh()
{
    const std::lock_guard<DataMutex> locker(m_mutex);
    ++m_current.generation;
    m_current.network.reset();
    m_subnetAnswers.clear();
    m_ownAddressAnswers.clear();
}

AddressBook::struSnapshot AddressBook::_snapshot()
{
    struSnapshot snapshot;
    {
        const std::lock_guard<DataMutex> locker(m_mutex);
        snapshot = m_current;
    }
    if (snapshot.network)
        return snapshot;
    snapshot.network = std::make_shared<const struLocalNetwork>(m_reader());
    const std::lock_guard<DataMutex> locker(m_mutex);
    if (m_current.generation != snapshot.generation)
        return snapshot;
    if (!m_current.network)
        m_current.network = snapshot.network;
    return m_current;
}

template <typename Answers, typename Answer>
void AddressBook::_keep(Answers &answers, const QHostAddress &address, const Answer &answer,
                        quint64 generation)
{
    const std::lock_guard<DataMutex> locker(m_mutex);
    if (m_current.generation != generation)
        return;
    if (answers.size() >= MostAnswers)
        answers.clear();
    answers.insert(address, answer);
}

bool AddressBook::isOwnAddress(const QHostAddress &address)
{
    if (address.isNull())
        return false;
    if (address == QHostAddress::LocalHost || address == QHostAddress::LocalHostIPv6)
        return true;
    const auto known = network();
    return std::any_of(known->addresses.cbegin(), known->addresses.cend(),
                       [&address](const struLocalAddress &local) { return local.ip == address; });
}

bool AddressBook::belongsToALocalSubnet(const QHostAddress &address)
{
    {
        const std::lock_guard<DataMutex> locker(m_mutex);
        const auto answer = m_subnetAnswers.constFind(address);
        if (answer != m_subnetAnswers.cend())
            return *answer;
    }
    if (address.isNull())
        return false;
    if (isLocalByNature(address))
        return true;
    const struSnapshot snapshot = _snapshot();
    const bool bLocal = !snapshot.network->ownAddressInSubnetOf(address).isNull();
    _keep(m_subnetAnswers, address, bLocal, snapshot.generation);
    return bLocal;
}

QHostAddress AddressBook::decideOwnAddressForPeer(const QHostAddress &peer)
{
    {
        const std::lock_guard<DataMutex> locker(m_mutex);
        const auto answer = m_ownAddressAnswers.constFind(peer);
        if (answer != m_ownAddressAnswers.cend())
            return *answer;
    }
    if (peer.isNull())
        return {};
    if (isIPv6(peer) && isLocalByNature(peer))
        return QHostAddress(QHostAddress::LocalHostIPv6);
    if (isIPv4(peer) && (peer == QHostAddress::LocalHost || peer == QHostAddress::Broadcast))
        return QHostAddress(QHostAddress::LocalHost);
    const struSnapshot snapshot = _snapshot();
    QHostAddress own = snapshot.network->ownAddressInSubnetOf(peer);
    if (own.isNull())
        own = m_router(peer);
    if (!own.isNull())
        _keep(m_ownAddressAnswers, peer, own, snapshot.generation);
    return own;
}

QHostAddress AddressBook::decidePeerAddress(const QList<QHostAddress> &candidates)
{
    for (const QHostAddress &candidate : candidates) {
        if (candidate.isLoopback())
            return candidate;
    }
    const int index = network()->indexInLocalSubnet(candidates);
    if (index >= 0)
        return candidates.at(index);
    const auto first = std::find_if(candidates.cbegin(), candidates.cend(),
                                    [](const QHostAddress &candidate) { return !candidate.isNull(); });
    return first != candidates.cend() ? *first : QHostAddress();
}

} // namespace PYXRuntime
