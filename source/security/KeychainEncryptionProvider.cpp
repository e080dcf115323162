// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "KeychainEncryptionProvider.h"

#include "KeychainVault.h"
#include "PYXTraceWrapper.h"
#include "WipedValue.h"

namespace PYXRuntime {
namespace {

constexpr const char *TraceFile = "source\\KeychainEncryptionProvider";
const QLatin1String DefaultService("PYXRuntime");
const QLatin1String TracePrefix("KeychainEncryptionProvider: ");

} // namespace

KeychainEncryptionProvider::KeychainEncryptionProvider(QObject *parent)
    : KeychainEncryptionProvider(DefaultService, parent)
{}

KeychainEncryptionProvider::KeychainEncryptionProvider(const QString &service, QObject *parent)
    : QObject(parent)
    , m_service(service)
    , m_vault(std::make_shared<KeychainVault>())
{}

KeychainEncryptionProvider::~KeychainEncryptionProvider() = default;

QString KeychainEncryptionProvider::keychainEncryptionProviderId()
{
    return QStringLiteral("Keychain");
}

QString KeychainEncryptionProvider::keychainEncryptionProviderName()
{
    return tr("System Keychain");
}

bool KeychainEncryptionProvider::isSupported()
{
    return KeychainVault::isSupported();
}

bool KeychainEncryptionProvider::open(QString *error, int timeoutMs)
{
    // The provider may be deleted while the store is asked.
    const std::shared_ptr<KeychainVault> vault = m_vault;
    const QString reason = vault->open(m_service, timeoutMs);
    if (error != nullptr)
        *error = reason;
    return reason.isEmpty();
}

bool KeychainEncryptionProvider::isOpen() const
{
    return m_vault->isOpen();
}

void KeychainEncryptionProvider::close()
{
    m_vault->close();
}

QString KeychainEncryptionProvider::encryptionProviderId() const
{
    return keychainEncryptionProviderId();
}

QString KeychainEncryptionProvider::encryptionProviderName() const
{
    return keychainEncryptionProviderName();
}

QByteArray KeychainEncryptionProvider::encrypt(const QString &plain)
{
    const WipedBytes utf8(plain.toUtf8());
    return encrypt(utf8.value);
}

QByteArray KeychainEncryptionProvider::encrypt(const QByteArray &plain)
{
    if (plain.isEmpty())
        return {};
    if (!isOpen()) {
        PYXTraceWrapper::staticTraceWarn(TracePrefix + QLatin1String("not open, nothing is encrypted"),
                                         TraceFile, __LINE__);
        return {};
    }
    return m_vault->encrypted(plain).toBase64();
}

QByteArray KeychainEncryptionProvider::decrypt(const QByteArray &cipher)
{
    if (cipher.isEmpty())
        return {};
    const char *reason = "not open";
    QByteArray plain = isOpen() ? m_vault->decrypted(QByteArray::fromBase64(cipher), &reason) : QByteArray();
    if (plain.isEmpty())
        PYXTraceWrapper::staticTraceDebug(TracePrefix + QLatin1String(reason), TraceFile, __LINE__);
    return plain;
}

QString KeychainEncryptionProvider::decryptToQString(const QByteArray &cipher)
{
    const WipedBytes plain(decrypt(cipher));
    return QString::fromUtf8(plain.value.constData(), plain.value.size());
}

} // namespace PYXRuntime
