// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QCoreApplication>
#include <QtCore/QString>

#include <memory>

namespace PYXRuntime {

/** A key of the system's secret store, and what it encrypts. Never opens where the library has none. */
class KeychainVault final
{
    Q_DECLARE_TR_FUNCTIONS(PYXRuntime::KeychainVault)
    Q_DISABLE_COPY(KeychainVault)
public:
    KeychainVault();
    ~KeychainVault();

    static bool isSupported();

    /** @return why it could not be opened, for the user; empty if it is open. */
    QString open(const QString &service, int timeoutMs);
    bool isOpen() const;
    void close();

    /** Only while it is open. */
    QByteArray encrypted(const QByteArray &plain) const;
    /** Empty, with a reason, for what is damaged or was not encrypted with this key. */
    QByteArray decrypted(const QByteArray &record, const char **reason) const;

private:
    class Key;
    std::unique_ptr<Key> m_key;
};

} // namespace PYXRuntime
