// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "InstanceMessage.h"

#include <QtCore/QObject>
#include <QtNetwork/QLocalServer>

#include <functional>

namespace PYXRuntime {

/** The side of the first instance: takes the messages of the others, of the same user only. */
class InstanceServer final : public QObject
{
    Q_DISABLE_COPY(InstanceServer)
public:
    /** May destroy the server. */
    using Listener = std::function<void(const InstanceMessage::struMessage &)>;

    /** @param timeout until a connection must have brought its message, in ms */
    InstanceServer(int timeout, Listener listener);

    /** Replaces whatever has the name already. @return why it fails; else empty */
    QString listen(const QString &socketName);

private:
    void _acceptConnections();

    const int m_timeout;
    const Listener m_listener;
    QLocalServer m_server;
};

} // namespace PYXRuntime
