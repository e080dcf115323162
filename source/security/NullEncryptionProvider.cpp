// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "NullEncryptionProvider.h"

#include "PYXByteArrayHelpers.h"

namespace PYXRuntime {

NullEncryptionProvider::NullEncryptionProvider(QObject *parent)
    : QObject(parent)
{}

NullEncryptionProvider::~NullEncryptionProvider() = default;

QString NullEncryptionProvider::nullEncryptionProviderId()
{
    return QStringLiteral("Null");
}

QString NullEncryptionProvider::nullEncryptionProviderName()
{
    return tr("Null Encryption Provider");
}

QByteArray NullEncryptionProvider::staticEncrypt(const QByteArray &plain)
{
    return PYXByteArrayHelpers::trueCopy(plain);
}

QByteArray NullEncryptionProvider::staticEncrypt(const QString &plain)
{
    return plain.toUtf8();
}

QByteArray NullEncryptionProvider::staticDecrypt(const QByteArray &cipher)
{
    return PYXByteArrayHelpers::trueCopy(cipher);
}

QString NullEncryptionProvider::staticDecryptToQString(const QByteArray &cipher)
{
    return QString::fromUtf8(cipher.constData(), cipher.size());
}

QString NullEncryptionProvider::encryptionProviderId() const
{
    return nullEncryptionProviderId();
}

QString NullEncryptionProvider::encryptionProviderName() const
{
    return nullEncryptionProviderName();
}

QByteArray NullEncryptionProvider::encrypt(const QString &plain)
{
    return staticEncrypt(plain);
}

QByteArray NullEncryptionProvider::encrypt(const QByteArray &plain)
{
    return staticEncrypt(plain);
}

QByteArray NullEncryptionProvider::decrypt(const QByteArray &cipher)
{
    return staticDecrypt(cipher);
}

QString NullEncryptionProvider::decryptToQString(const QByteArray &cipher)
{
    return staticDecryptToQString(cipher);
}

} // namespace PYXRuntime
