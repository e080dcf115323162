// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

namespace PYXRuntime {

/** One entry of the system's secret store. Every question runs an event loop until it is answered. */
class KeychainEntry final
{
public:
    enum eAnswer { ekAnswer_Found, ekAnswer_Missing, ekAnswer_Failed };

    KeychainEntry(const QString &service, const QString &name, int timeoutMs);

    int timeoutMs() const { return m_timeoutMs; }
    /** @param error gets the reason of a failure, for the user */
    eAnswer read(QByteArray &secret, QString &error) const;
    /** ekAnswer_Found if the entry is there now. */
    eAnswer write(const QByteArray &secret, QString &error) const;

private:
    QString m_service;
    QString m_name;
    int m_timeoutMs;
};

} // namespace PYXRuntime
