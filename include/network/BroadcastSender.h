// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "pyxruntime_export.h"

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtNetwork/QHostAddress>

class QUdpSocket;

namespace PYXRuntime {

/**
 * Repeats one datagram to the broadcast addresses of local IPv4 networks. Lives in a thread with an event
 * loop. No network error is reported, but all are counted; proxies are passed by.
 */
class PYXRUNTIME_EXPORT BroadcastSender final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(BroadcastSender)
public:
    explicit BroadcastSender(QObject *parent = nullptr);
    ~BroadcastSender() override;

    /**
     * Sends at once and then every @p intervalMs milliseconds (less than 1: every 5000), until stop(). A
     * running sender starts anew. An empty datagram is never sent.
     * @param localAddresses the own addresses whose networks get the datagram. The host is asked for them
     *        each time, so one that it gets later counts from then on. Empty: all addresses but 127.0.0.1
     *        that PYXHostAddressHelpers knows now.
     */
    void start(const QByteArray &datagram, quint16 port, int intervalMs,
               const QList<QHostAddress> &localAddresses);
    void stop();
    bool isRunning() const { return m_timerId != 0; }

    /** Since the last start; stop() leaves them. Each network counts. */
    quint64 sentCount() const { return m_sentCount; }
    quint64 failedCount() const { return m_failedCount; }
    quint64 sentBytes() const { return m_sentBytes; }

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    void _end();
    void _sendDatagram();

    QByteArray m_datagram;
    QUdpSocket *m_socket = nullptr;
    quint16 m_port = 0;
    int m_interval = 0;
    QList<QHostAddress> m_localAddresses;
    int m_timerId = 0;
    quint64 m_sentCount = 0;
    quint64 m_failedCount = 0;
    quint64 m_sentBytes = 0;
};

} // namespace PYXRuntime
