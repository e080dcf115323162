// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QDeadlineTimer>
#include <QtCore/QString>

/** The side of the second instance. */
namespace PYXRuntime::InstanceSender {

enum eOutcome {
    ekOutcome_Taken,
    ekOutcome_Refused,
    ekOutcome_Nobody,  ///< there is no first instance, or it has just ended
    ekOutcome_Timeout, ///< it will not take the message any more
    ekOutcome_Stranger ///< somebody else's program has taken the name; nothing was sent
};

/** Hands the message to the first instance and waits for its answer. */
eOutcome send(const QString &socketName, const QByteArray &message, QDeadlineTimer deadline);

} // namespace PYXRuntime::InstanceSender
