// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "InstanceServer.h"

#include "InstanceVisitor.h"
#include "LocalPeer.h"
#include "PYXTraceWrapper.h"

#include <QtNetwork/QLocalSocket>

#include <memory>
#include <utility>

namespace PYXRuntime {
namespace {

constexpr const char *TraceFile = "source\\PYXSingleInstance";
// More than that at a time wait; a file manager may start an instance for every file that is selected.
constexpr int MaximumVisitors = 32;

} // namespace

InstanceServer::InstanceServer(int timeout, Listener listener)
    : m_timeout(timeout)
    , m_listener(std::move(listener))
{
    m_server.setSocketOptions(QLocalServer::UserAccessOption);
    connect(&m_server, &QLocalServer::newConnection, this, [this] { _acceptConnections(); });
}

QString InstanceServer::listen(const QString &socketName)
{
    QLocalServer::removeServer(socketName);
    return m_server.listen(socketName) ? QString() : m_server.errorString();
}

void InstanceServer::_acceptConnections()
{
    while (children().size() < MaximumVisitors && m_server.hasPendingConnections()) {
        std::unique_ptr<QLocalSocket> socket(m_server.nextPendingConnection());
        if (!Platform::isLocalPeerOfThisUser(socket->socketDescriptor(), Platform::ekLocalPeer_Client)) {
            PYXTraceWrapper::staticTraceWarn(
                QStringLiteral("the connection of another user's program was refused"), TraceFile, __LINE__);
            continue;
        }
        auto *const visitor = new InstanceVisitor(socket.release(), m_timeout, m_listener, this);
        // Only then does it no longer count.
        connect(
            visitor, &QObject::destroyed, this, [this] { _acceptConnections(); }, Qt::QueuedConnection);
    }
}

} // namespace PYXRuntime
