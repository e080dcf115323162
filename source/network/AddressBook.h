// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "DataMutex.h"
#include "LocalNetwork.h"

#include <QtCore/QHash>

#include <functional>
#include <memory>

namespace PYXRuntime {

/**
 * The local network as it was when it was first asked for, and the answers that were made from it. Any
 * thread. The mutex is free while the system is asked and while an answer is made.
 */
class AddressBook final
{
public:
    using NetworkReader = std::function<struLocalNetwork()>;
    using Router = std::function<QHostAddress(const QHostAddress &)>;

    explicit AddressBook(NetworkReader reader = readLocalNetwork, Router router = ownAddressByRouting);
    Q_DISABLE_COPY(AddressBook)

    void refresh();
    std::shared_ptr<const struLocalNetwork> network() { return _snapshot().network; }

    bool isOwnAddress(const QHostAddress &address);
    bool belongsToALocalSubnet(const QHostAddress &address);
    QHostAddress decideOwnAddressForPeer(const QHostAddress &peer);
    QHostAddress decidePeerAddress(const QList<QHostAddress> &candidates);

private:
    /** A network and the number of the refresh it comes after: answers are kept only for the newest. */
    struct struSnapshot
    {
        std::shared_ptr<const struLocalNetwork> network;
        quint64 generation = 0;
    };
    struSnapshot _snapshot();
    template <typename Answers, typename Answer>
    void _keep(Answers &answers, const QHostAddress &address, const Answer &answer, quint64 generation);

    const NetworkReader m_reader;
    const Router m_router;
    DataMutex m_mutex;
    struSnapshot m_current;
    QHash<QHostAddress, bool> m_subnetAnswers;
    QHash<QHostAddress, QHostAddress> m_ownAddressAnswers;
};

} // namespace PYXRuntime
