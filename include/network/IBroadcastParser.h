// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QObject>
#include <QtNetwork/QHostAddress>

namespace PYXRuntime {

/** Gets what a BroadcastReceiver receives, in the receiver's thread. */
class IBroadcastParser
{
public:
    virtual ~IBroadcastParser() = default;
    /**
     * @param datagram may be empty, and may come from anyone
     * @param port the one that the receiver listens on
     *
     * May stop, start or delete the receiver and any parser, and may process events: no further datagram
     * is handed on before it returns.
     */
    virtual void parseBroadcastDatagram(const QByteArray &datagram, const QHostAddress &sender,
                                        quint16 port) = 0;

protected:
    IBroadcastParser() = default;
    Q_DISABLE_COPY(IBroadcastParser)
};

} // namespace PYXRuntime

Q_DECLARE_INTERFACE(PYXRuntime::IBroadcastParser, "com.varnholt.PYXRuntime.IBroadcastParser/1.0")
