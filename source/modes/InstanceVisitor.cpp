// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "InstanceVisitor.h"

#include <QtCore/QTimer>
#include <QtNetwork/QLocalSocket>

#include <utility>

namespace PYXRuntime {
namespace {

// What comes after the message, or instead of one, stays in the system.
constexpr qint64 ReadBufferSize = 65'536;

} // namespace

InstanceVisitor::InstanceVisitor(QLocalSocket *socket, int timeout, InstanceServer::Listener listener,
                                 QObject *parent)
    : QObject(parent)
    , m_socket(socket)
    , m_listener(std::move(listener))
{
    m_socket->setParent(this);
    m_socket->setReadBufferSize(ReadBufferSize);
    connect(m_socket, &QLocalSocket::readyRead, this, [this] { _read(); });
    connect(m_socket, &QLocalSocket::disconnected, this, &QObject::deleteLater);
    QTimer::singleShot(timeout, this, &QObject::deleteLater);
    // What it has brought already, and whether it has gone already.
    QMetaObject::invokeMethod(
        this,
        [this] {
            if (m_socket->bytesAvailable() > 0)
                _read();
            else if (m_socket->state() == QLocalSocket::UnconnectedState)
                deleteLater();
        },
        Qt::QueuedConnection);
}

void InstanceVisitor::_read()
{
    if (m_bRead)
        return;
    m_bytes += m_socket->readAll();
    const InstanceMessage::eState state = InstanceMessage::decode(m_bytes, m_message);
    m_bRead = state != InstanceMessage::ekIncomplete;
    if (m_bRead)
        m_bytes.clear();
    if (state == InstanceMessage::ekMalformed)
        _answer(InstanceMessage::ekAnswer_Refused);
    // From the event loop, since the listener may destroy the socket, which is just calling.
    if (state == InstanceMessage::ekComplete)
        QMetaObject::invokeMethod(
            this, [this] { _take(); }, Qt::QueuedConnection);
}

void InstanceVisitor::_take()
{
    // Who has waited too long has gone, and does something else with its arguments. That shows where one
    // reads.
    m_socket->waitForReadyRead(0);
    if (m_socket->state() != QLocalSocket::ConnectedState)
        return;
    _answer(InstanceMessage::ekAnswer_Taken);
    const InstanceServer::Listener listener = m_listener;
    const InstanceMessage::struMessage message = std::move(m_message);
    listener(message);
}

/** The other end closes the connection: closing here would take the answer away before it is read. */
void InstanceVisitor::_answer(InstanceMessage::eAnswer answer)
{
    m_socket->write(InstanceMessage::encoded(answer));
    m_socket->flush();
}

} // namespace PYXRuntime
