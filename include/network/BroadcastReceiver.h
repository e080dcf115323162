// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "IBroadcastParser.h"
#include "pyxruntime_export.h"

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QPointer>

class QUdpSocket;

namespace PYXRuntime {

/**
 * Hands every datagram that comes in on a UDP port to its parsers. Lives in a thread with an event loop;
 * other programs of this host may listen on the same port. A flood leaves the thread's other events their
 * turn.
 */
class PYXRUNTIME_EXPORT BroadcastReceiver final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(BroadcastReceiver)
public:
    explicit BroadcastReceiver(QObject *parent = nullptr);
    ~BroadcastReceiver() override;

    /**
     * Listens on all IPv4 addresses; a receiver that listens starts anew. A failure is not reported:
     * see isListening().
     * @param port 0: one that the system chooses, see port()
     * @param parsers are called in this order and stay the caller's. One that is a QObject may go at any
     *        time; any other has to outlive the listening. Null ones are skipped.
     */
    void start(quint16 port, const QList<IBroadcastParser *> &parsers);
    void start(quint16 port, IBroadcastParser *parser);
    void stop();

    bool isListening() const;
    /** The port it listens on; 0 when it is stopped. */
    quint16 port() const { return m_port; }

    /** Since the last start; stop() leaves them. What waits but cannot be read counts as failed. */
    quint64 receivedCount() const { return m_receivedCount; }
    quint64 failedCount() const { return m_failedCount; }
    quint64 receivedBytes() const { return m_receivedBytes; }

private Q_SLOTS:
    void _sl_updSocket_readyRead();

private:
    struct struParser
    {
        explicit struParser(IBroadcastParser *parser);
        /** Null where there is nobody to call any more. */
        IBroadcastParser *callee() const;

        QPointer<QObject> object;
        IBroadcastParser *resolved = nullptr;
        bool bIsObject = false;
        IBroadcastParser *raw = nullptr;
    };

    void _dropSocket();
    void _rest();
    bool _readDatagram(QByteArray &datagram, QHostAddress &sender);
    bool _handOn(const QByteArray &datagram, const QHostAddress &sender);

    QUdpSocket *m_socket = nullptr;
    quint16 m_port = 0;
    QList<struParser> m_parsers;
    quint64 m_run = 0;
    bool m_bResting = false;
    QList<QUdpSocket *> m_socketsInUse;
    quint64 m_receivedCount = 0;
    quint64 m_failedCount = 0;
    quint64 m_receivedBytes = 0;
};

} // namespace PYXRuntime
