// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "IPYXEncryptionProvider.h"
#include "pyxruntime_export.h"

#include <memory>

namespace PYXRuntime {

class KeychainVault;

/**
 * The encryption provider "Keychain": authenticated encryption (XChaCha20-Poly1305) under a random key that
 * lies in the secret store of the user's system, such as GNOME Keyring or KWallet. What it encrypts is only
 * of use to the same user, and damage is noticed.
 *
 * An application opens it before it makes it the provider in effect, since the user may be asked to unlock
 * the store:
 * @code
 * auto *const keychain = new KeychainEncryptionProvider(this);
 * QString error;
 * if (keychain->open(&error))
 *     PYXEncryptionManager::staticRegisterAndSetEncryptionProvider(keychain);
 * @endcode
 * The key is kept in memory that is locked, guarded and left out of core dumps. GUI thread only.
 */
class PYXRUNTIME_EXPORT KeychainEncryptionProvider : public QObject, public Interfaces::IPYXEncryptionProvider
{
    Q_OBJECT
    Q_DISABLE_COPY(KeychainEncryptionProvider)
    Q_INTERFACES(Interfaces::IPYXEncryptionProvider)
public:
    static constexpr int DefaultTimeoutMs = 60'000;

    explicit KeychainEncryptionProvider(QObject *parent = nullptr);
    /** @param service under which the key lies in the store, instead of "PYXRuntime" */
    explicit KeychainEncryptionProvider(const QString &service, QObject *parent = nullptr);
    ~KeychainEncryptionProvider() override;

    static QString keychainEncryptionProviderId();
    static QString keychainEncryptionProviderName();
    /** Whether the library was built with the libraries that this needs. */
    static bool isSupported();

    /**
     * Fetches the key, and makes one where the store has none yet. Runs an event loop without user input
     * meanwhile; called again from there, it fails. An entry that is no key is reported and never replaced.
     * @param error gets the reason, for the user, where the result is false; may be null
     * @param timeoutMs longest time for each question to the store, in ms
     */
    bool open(QString *error = nullptr, int timeoutMs = DefaultTimeoutMs);
    bool isOpen() const;
    /** Wipes the key. */
    void close();

    QString encryptionProviderId() const override;
    QString encryptionProviderName() const override;
    /** Empty, with a warning trace, while the provider is not open. */
    QByteArray encrypt(const QString &plain) override;
    QByteArray encrypt(const QByteArray &plain) override;
    /** Empty, with a debug trace that names the reason, for what this key has not encrypted. */
    QByteArray decrypt(const QByteArray &cipher) override;
    QString decryptToQString(const QByteArray &cipher) override;

private:
    const QString m_service;
    const std::shared_ptr<KeychainVault> m_vault;
};

} // namespace PYXRuntime
