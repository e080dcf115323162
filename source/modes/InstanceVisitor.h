// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "InstanceServer.h"

#include <QtCore/QObject>

class QLocalSocket;

namespace PYXRuntime {

/** A connection to the first instance, which brings one message. Deletes itself when it ends. */
class InstanceVisitor final : public QObject
{
    Q_DISABLE_COPY(InstanceVisitor)
public:
    /** Takes the socket. */
    InstanceVisitor(QLocalSocket *socket, int timeout, InstanceServer::Listener listener, QObject *parent);

private:
    void _read();
    void _take();
    void _answer(InstanceMessage::eAnswer answer);

    QLocalSocket *const m_socket;
    const InstanceServer::Listener m_listener;
    QByteArray m_bytes;
    InstanceMessage::struMessage m_message;
    bool m_bRead = false;
};

} // namespace PYXRuntime
