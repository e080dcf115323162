// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "BroadcastReceiver.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QTimer>
#include <QtNetwork/QNetworkProxy>
#include <QtNetwork/QUdpSocket>

namespace PYXRuntime {
namespace {

constexpr int LargestDatagramSize = 65536;
// What one turn may take before the thread's other events get theirs, looked at after so many datagrams.
constexpr qint64 TurnMs = 50;
constexpr int DatagramsPerLook = 64;

} // namespace

BroadcastReceiver::struParser::struParser(IBroadcastParser *parser)
    : object(dynamic_cast<QObject *>(parser))
    , raw(parser)
{
    bIsObject = !object.isNull();
    if (!bIsObject)
        return;
    resolved = qobject_cast<IBroadcastParser *>(object.data());
    if (resolved == nullptr)
        resolved = dynamic_cast<IBroadcastParser *>(object.data());
}

IBroadcastParser *BroadcastReceiver::struParser::callee() const
{
    if (!bIsObject)
        return raw;
    return object.isNull() ? nullptr : resolved;
}

BroadcastReceiver::BroadcastReceiver(QObject *parent)
    : QObject(parent)
{}

BroadcastReceiver::~BroadcastReceiver()
{
    _dropSocket();
}

void BroadcastReceiver::start(quint16 port, IBroadcastParser *parser)
{
    start(port, QList<IBroadcastParser *>{parser});
}

void BroadcastReceiver::start(quint16 port, const QList<IBroadcastParser *> &parsers)
{
    m_port = port;
    _dropSocket();
    m_parsers.clear();
    for (IBroadcastParser *parser : parsers)
        m_parsers += struParser(parser);
    m_receivedCount = 0;
    m_failedCount = 0;
    m_receivedBytes = 0;
    m_socket = new QUdpSocket(this);
    m_socket->setProxy(QNetworkProxy::NoProxy);
    if (m_socket->bind(QHostAddress(QHostAddress::AnyIPv4), port,
                       QUdpSocket::ShareAddress | QUdpSocket::ReuseAddressHint))
        m_port = m_socket->localPort();
    connect(m_socket, &QUdpSocket::readyRead, this, &BroadcastReceiver::_sl_updSocket_readyRead);
}

void BroadcastReceiver::stop()
{
    if (m_socket == nullptr)
        return;
    _dropSocket();
    m_parsers.clear();
    m_port = 0;
}

bool BroadcastReceiver::isListening() const
{
    return m_socket != nullptr && m_socket->state() == QAbstractSocket::BoundState;
}

void BroadcastReceiver::_dropSocket()
{
    ++m_run;
    if (m_socket == nullptr)
        return;
    if (m_socketsInUse.contains(m_socket)) {
        // Goes when its signal has been handled; until then it must not take datagrams from its successor.
        m_socket->disconnect(this);
        m_socket->setParent(nullptr);
        m_socket->close();
    } else {
        delete m_socket;
    }
    m_socket = nullptr;
}

void BroadcastReceiver::_sl_updSocket_readyRead()
{
    // The socket announces nothing more until it has been read: then a flood is no events for a while, of
    // which Windows would deliver every one before any timer's.
    if (m_socket == nullptr || m_bResting || m_socketsInUse.contains(m_socket))
        return;
    const QPointer<BroadcastReceiver> self(this);
    QUdpSocket *const socket = m_socket;
    m_socketsInUse += socket;
    QElapsedTimer turn;
    turn.start();
    QByteArray datagram;
    QHostAddress sender;
    for (int count = 1; _readDatagram(datagram, sender) && _handOn(datagram, sender); ++count) {
        if (count % DatagramsPerLook == 0 && turn.elapsed() >= TurnMs) {
            _rest();
            break;
        }
    }
    if (self)
        m_socketsInUse.removeOne(socket);
    if (!self || m_socket != socket)
        socket->deleteLater();
}

/** Lets the thread's other events have their turn. */
void BroadcastReceiver::_rest()
{
    m_bResting = true;
    QTimer::singleShot(0, this, [this] {
        m_bResting = false;
        _sl_updSocket_readyRead();
    });
}

/** @return false where there is none, or none that can be read. */
bool BroadcastReceiver::_readDatagram(QByteArray &datagram, QHostAddress &sender)
{
    const qint64 size = m_socket->pendingDatagramSize();
    // Also read when nothing waits any more: a datagram that the system finds damaged is announced and then
    // gone, and a QUdpSocket that is not read after it has announced something announces nothing ever again.
    datagram.resize(size < 0 ? LargestDatagramSize : static_cast<int>(size));
    const qint64 read = m_socket->readDatagram(datagram.data(), datagram.size(), &sender);
    if (read < 0) {
        if (size >= 0)
            ++m_failedCount;
        return false;
    }
    datagram.truncate(static_cast<int>(read));
    ++m_receivedCount;
    m_receivedBytes += static_cast<quint64>(read);
    return true;
}

/** @return whether the receiver is still there and still in the same run. */
bool BroadcastReceiver::_handOn(const QByteArray &datagram, const QHostAddress &sender)
{
    const QPointer<BroadcastReceiver> self(this);
    const quint64 run = m_run;
    const QList<struParser> parsers = m_parsers;
    for (const struParser &parser : parsers) {
        IBroadcastParser *const callee = parser.callee();
        if (callee == nullptr)
            continue;
        callee->parseBroadcastDatagram(datagram, sender, m_port);
        if (!self || m_run != run)
            return false;
    }
    return true;
}

} // namespace PYXRuntime
