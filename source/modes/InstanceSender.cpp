// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "InstanceSender.h"

#include "InstanceMessage.h"
#include "LocalPeer.h"

#include <QtNetwork/QLocalSocket>

namespace PYXRuntime::InstanceSender {
namespace {

int remainingTime(const QDeadlineTimer &deadline)
{
    return int(deadline.remainingTime());
}

} // namespace

eOutcome send(const QString &socketName, const QByteArray &message, QDeadlineTimer deadline)
{
    QLocalSocket socket;
    socket.connectToServer(socketName);
    if (!socket.waitForConnected(remainingTime(deadline)))
        return socket.error() == QLocalSocket::SocketTimeoutError ? ekOutcome_Timeout : ekOutcome_Nobody;
    if (!Platform::isLocalPeerOfThisUser(socket.socketDescriptor(), Platform::ekLocalPeer_Server))
        return ekOutcome_Stranger;
    Platform::letLocalPeerComeToFront(socket.socketDescriptor());
    socket.write(message);
    while (socket.bytesAvailable() < InstanceMessage::AnswerSize) {
        if (socket.waitForReadyRead(remainingTime(deadline)))
            continue;
        return socket.state() == QLocalSocket::ConnectedState ? ekOutcome_Timeout : ekOutcome_Nobody;
    }
    const auto answer = InstanceMessage::decodedAnswer(socket.read(InstanceMessage::AnswerSize));
    return answer == InstanceMessage::ekAnswer_Taken ? ekOutcome_Taken : ekOutcome_Refused;
}

} // namespace PYXRuntime::InstanceSender
