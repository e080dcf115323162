// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QObject>
#include <QtCore/QString>

namespace Interfaces {

/**
 * Turns secrets into what may be stored, and back. Implemented by QObjects, which
 * PYXRuntime::PYXEncryptionManager takes; the object is deleted as such, never through this interface.
 *
 * Nothing is thrown: what cannot be encrypted or decrypted becomes an empty result. Results share no buffer
 * with the arguments or with the provider, since callers wipe both. The GUI thread only. The order of the
 * operations is part of the binary contract.
 */
class IPYXEncryptionProvider
{
public:
    /** Names the provider beside what it has encrypted, so it never changes. */
    virtual QString encryptionProviderId() const = 0;
    /** For the user, translated. */
    virtual QString encryptionProviderName() const = 0;
    /** Encrypts the text in UTF-8. */
    virtual QByteArray encrypt(const QString &plain) = 0;
    virtual QByteArray encrypt(const QByteArray &plain) = 0;
    virtual QByteArray decrypt(const QByteArray &cipher) = 0;
    /** What is decrypted is text in UTF-8. */
    virtual QString decryptToQString(const QByteArray &cipher) = 0;

protected:
    ~IPYXEncryptionProvider() = default;
};

} // namespace Interfaces

Q_DECLARE_INTERFACE(Interfaces::IPYXEncryptionProvider, "com.varnholt.Interfaces.IPYXEncryptionProvider/1.0")
