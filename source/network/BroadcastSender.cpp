// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "BroadcastSender.h"

#include "LocalNetwork.h"
#include "PYXHostAddressHelpers.h"
#include "PYXTraceWrapper.h"

#include <QtCore/QPointer>
#include <QtCore/QTimerEvent>
#include <QtNetwork/QNetworkProxy>
#include <QtNetwork/QUdpSocket>

namespace PYXRuntime {
namespace {

constexpr const char *TraceFile = "source\\BroadcastSender";
constexpr int DefaultIntervalMs = 5000;

} // namespace

BroadcastSender::BroadcastSender(QObject *parent)
    : QObject(parent)
{}

BroadcastSender::~BroadcastSender()
{
    stop();
}

void BroadcastSender::start(const QByteArray &datagram, quint16 port, int intervalMs,
                            const QList<QHostAddress> &localAddresses)
{
    const QPointer<BroadcastSender> self(this);
    stop();
    PYXTraceWrapper::staticTraceDebug(
        QStringLiteral("starting broadcast [%1]@%2ms")
            .arg(QString::fromLatin1(datagram.constData(), datagram.size()), QString::number(intervalMs)),
        TraceFile, __LINE__);
    // A tracer may have deleted the sender, or started it.
    if (self.isNull())
        return;
    _end();
    m_datagram = datagram;
    m_socket = new QUdpSocket(this);
    // A broadcast is for the networks around, which no proxy reaches.
    m_socket->setProxy(QNetworkProxy::NoProxy);
    m_localAddresses =
        localAddresses.isEmpty() ? PYXHostAddressHelpers::allAddresses_IPv4_noLocalhost() : localAddresses;
    m_port = port;
    m_interval = intervalMs >= 1 ? intervalMs : DefaultIntervalMs;
    m_sentCount = 0;
    m_failedCount = 0;
    m_sentBytes = 0;
    _sendDatagram();
    m_timerId = startTimer(m_interval, Qt::CoarseTimer);
}

void BroadcastSender::stop()
{
    const bool bWasRunning = isRunning();
    _end();
    if (bWasRunning)
        PYXTraceWrapper::staticTraceDebug(QStringLiteral("stopping broadcast server"), TraceFile, __LINE__);
}

void BroadcastSender::_end()
{
    if (m_timerId != 0)
        killTimer(m_timerId);
    m_timerId = 0;
    delete m_socket;
    m_socket = nullptr;
}

void BroadcastSender::timerEvent(QTimerEvent *event)
{
    if (event->timerId() == m_timerId)
        _sendDatagram();
    else
        event->ignore();
}

void BroadcastSender::_sendDatagram()
{
    if (m_datagram.isEmpty() || m_socket == nullptr)
        return;
    const QVector<QHostAddress> broadcasts = readLocalNetwork().broadcastsOf(m_localAddresses);
    for (const QHostAddress &broadcast : broadcasts) {
        const qint64 sent = m_socket->writeDatagram(m_datagram, broadcast, m_port);
        if (sent < 0) {
            ++m_failedCount;
            continue;
        }
        ++m_sentCount;
        m_sentBytes += static_cast<quint64>(sent);
    }
}

} // namespace PYXRuntime
