// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "IPYXEncryptionProvider.h"
#include "pyxruntime_export.h"

#include <QtCore/QCryptographicHash>

namespace PYXRuntime {

/**
 * The encryption provider "Simple": an obfuscation against casual reading, NOT a protection. The key
 * travels inside the container, so whoever has the container can read it. Register a provider of your own
 * with PYXEncryptionManager to protect something.
 *
 * A container is the Base64 text of a record of the plain text's digest and the plain text XORed with it;
 * docs/secret-container.md has its layout. Two checksums notice damage, nothing notices a forgery.
 *
 * Algorithms have the numbers of QCryptographicHash::Algorithm, 0 (MD4) to 10 (Keccak-512); any other
 * number means the default algorithm, which is 1 (MD5) until it is changed. Any algorithm's container can
 * be decrypted.
 *
 * The provider wipes what it makes of a plain text on the way. What Qt's digest leaves in freed memory of
 * its own is out of its reach.
 *
 * Any thread, but the default algorithm is only changed while nobody else encrypts.
 */
class PYXRUNTIME_EXPORT SimpleEncryptionProvider : public QObject, public Interfaces::IPYXEncryptionProvider
{
    Q_OBJECT
    Q_DISABLE_COPY(SimpleEncryptionProvider)
    Q_INTERFACES(Interfaces::IPYXEncryptionProvider)
public:
    explicit SimpleEncryptionProvider(QObject *parent = nullptr);
    ~SimpleEncryptionProvider() override;

    static QString simpleEncryptionProviderId();
    static QString simpleEncryptionProviderName();

    /** Nothing becomes nothing. */
    static QByteArray staticEncrypt(const QByteArray &plain);
    static QByteArray staticEncrypt(const QByteArray &plain, int algorithm);
    static QByteArray staticEncrypt(const QString &plain);
    /** A container that is refused becomes nothing, with a debug trace that says why. */
    static QByteArray staticDecrypt(const QByteArray &container);
    static QString staticDecryptToQString(const QByteArray &container);

    static int staticDefaultAlgorithm();
    /** Of the process; not checked here: MD5 stands in for a number that is none. */
    static void staticSetDefaultAlgorithm(int algorithm);

    QString encryptionProviderId() const override;
    QString encryptionProviderName() const override;
    QByteArray encrypt(const QString &plain) override;
    QByteArray encrypt(const QByteArray &plain) override;
    QByteArray decrypt(const QByteArray &cipher) override;
    QString decryptToQString(const QByteArray &cipher) override;

private:
    static unsigned char _algorithmMarker(int algorithm);
    static int _decideAlgorithm(int algorithm);
    static QCryptographicHash::Algorithm _toQt(int algorithm);
    static QByteArray _hash(const QByteArray &data, int algorithm, int &usedAlgorithm);
    static QByteArray _encrypt(const QByteArray &data, const QByteArray &key);
    static QByteArray _decrypt(const QByteArray &data, const QByteArray &key);
};

} // namespace PYXRuntime
