// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "EnumHelpers.h"
#include "IPYXEncryptionProvider.h"
#include "NullEncryptionProvider.h"
#include "ProxyConfiguration.h"
#include "PYXEncryptionManager.h"
#include "PYXStringHelpers.h"
#include "PYXTraceWrapper.h"
#include "SimpleEncryptionProvider.h"
#include "WipedValue.h"

#include <QtCore/QSettings>
#include <QtCore/QXmlStreamWriter>

#include <algorithm>

// How a proxy configuration is stored and restored.

namespace PYXRuntime {
namespace {

constexpr const char *TraceFile = "source\\ProxyConfiguration";
constexpr auto StreamVersion = QDataStream::Qt_4_6;

const QLatin1String TypeKey("ProxyType");
const QLatin1String VariantKey("ProxyVariant");
const QLatin1String HostKey("ProxyHost");
const QLatin1String PortKey("ProxyPort");
const QLatin1String AuthenticationKey("ProxyAuthenticationRequired");
const QLatin1String UsernameKey("ProxyUsername");
const QLatin1String PasswordKey("ProxyPassword");
const QLatin1String ProviderIdKey("ProxyEncryptionProviderId");
/** The others have defaults. */
const QLatin1String RequiredKeys[] = {HostKey,     PortKey,     AuthenticationKey,
                                      UsernameKey, PasswordKey, ProviderIdKey};

using Interfaces::IPYXEncryptionProvider;

void traceDebug(const QString &text, ushort line)
{
    PYXTraceWrapper::staticTraceDebug(text, TraceFile, line);
}

QString idOf(const IPYXEncryptionProvider *provider)
{
    return provider != nullptr ? provider->encryptionProviderId() : QString();
}

/** A copy of its own, which the configuration wipes without touching the hash. */
QString textOf(const PYXStatusHash &hash, QLatin1String key)
{
    return PYXStringHelpers::trueCopy(hash.value(key).toString());
}

quint16 portOf(const PYXStatusHash &hash)
{
    return quint16(qBound<qlonglong>(0, hash.value(PortKey).toLongLong(), 0xFFFF));
}

bool isComplete(const PYXStatusHash &hash)
{
    return std::all_of(std::begin(RequiredKeys), std::end(RequiredKeys),
                       [&hash](QLatin1String key) { return hash.contains(key); });
}

QString foundText(const QString &storedId)
{
    if (storedId == SimpleEncryptionProvider::simpleEncryptionProviderId())
        return QStringLiteral("Proxy Configuration: password was encrypted with SIMPLE encryption, trying to "
                              "decrypt with that encryption provider");
    if (storedId == NullEncryptionProvider::nullEncryptionProviderId())
        return QStringLiteral("Proxy Configuration: password was not saved encrypted, reading plain text");
    return QStringLiteral("Proxy Configuration: wrong encryption provider supplied, a registered encryption "
                          "provider matches the Id, using registered encryption provider");
}

} // namespace

PYXStatusHash ProxyConfiguration::serialize(IPYXEncryptionProvider *provider) const
{
    if (provider == nullptr)
        provider = PYXEncryptionManager::staticDefaultEncryptionProvider();
    PYXStatusHash hash(StreamVersion);
    hash.insert(TypeKey, proxyTypeAsString());
    hash.insert(VariantKey, proxyVariantAsString());
    hash.insert(HostKey, proxyHost());
    hash.insert(PortKey, int(m_port));
    hash.insert(AuthenticationKey, m_bAuthenticationRequired);
    hash.insert(UsernameKey, proxyUsername());
    hash.insert(PasswordKey, provider != nullptr ? provider->encrypt(m_password) : QByteArray());
    hash.insert(ProviderIdKey, idOf(provider));
    return hash;
}

PYXStatusHash ProxyConfiguration::serialize(bool useEffectiveProvider) const
{
    return serialize(useEffectiveProvider ? PYXEncryptionManager::staticEffectiveEncryptionProvider()
                                          : PYXEncryptionManager::staticDefaultEncryptionProvider());
}

QByteArray ProxyConfiguration::toXml(IPYXEncryptionProvider *provider) const
{
    return serialize(provider).toXml();
}

QByteArray ProxyConfiguration::toXml(bool useEffectiveProvider) const
{
    return serialize(useEffectiveProvider).toXml();
}

void ProxyConfiguration::toXmlStream(QXmlStreamWriter &writer, IPYXEncryptionProvider *provider) const
{
    serialize(provider).toXmlStream(writer);
}

void ProxyConfiguration::toXmlStream(QXmlStreamWriter &writer, bool useEffectiveProvider) const
{
    serialize(useEffectiveProvider).toXmlStream(writer);
}

void ProxyConfiguration::save(QSettings *settings, const QString &key, IPYXEncryptionProvider *provider) const
{
    if (settings != nullptr)
        settings->setValue(key, QVariant(toXml(provider)));
}

void ProxyConfiguration::save(QSettings *settings, const QString &key, bool useEffectiveProvider) const
{
    if (settings != nullptr)
        settings->setValue(key, QVariant(toXml(useEffectiveProvider)));
}

bool ProxyConfiguration::restoreFrom(const PYXStatusHash &hash, IPYXEncryptionProvider *provider)
{
    if (!isComplete(hash))
        return false;
    if (provider == nullptr)
        provider = PYXEncryptionManager::staticEffectiveEncryptionProvider();
    const QByteArray cipher = hash.value(PasswordKey).toByteArray();
    const QString storedId = hash.value(ProviderIdKey).toString();
    if (!cipher.isEmpty() && storedId != idOf(provider))
        provider = _providerFor(storedId, provider);
    traceDebug(
        QStringLiteral("Proxy Configuration: decrypting proxy password using encryption provider: '%1'")
            .arg(idOf(provider)),
        __LINE__);
    const WipedString password(provider != nullptr ? provider->decryptToQString(cipher) : QString());

    clear();
    m_type = EnumHelpers::proxyType(hash.value(TypeKey).toString());
    m_variant = EnumHelpers::proxyVariant(hash.value(VariantKey).toString());
    m_host = textOf(hash, HostKey);
    m_port = portOf(hash);
    m_bAuthenticationRequired = hash.value(AuthenticationKey).toBool();
    m_username = textOf(hash, UsernameKey);
    m_password = PYXStringHelpers::trueCopy(password.value);
    return true;
}

bool ProxyConfiguration::restoreFrom(const QByteArray &xml, IPYXEncryptionProvider *provider)
{
    clear();
    m_variant = Enums::ekProxyVariant_Default;
    PYXStatusHash hash(StreamVersion);
    return hash.restoreFromXml(xml) && !hash.isEmpty() && restoreFrom(hash, provider);
}

bool ProxyConfiguration::restoreFrom(const QSettings *settings, const QString &key,
                                     IPYXEncryptionProvider *provider)
{
    const QVariant value = settings != nullptr ? settings->value(key) : QVariant();
    if (!value.isValid())
        return false;
    QString detail;
    if (value.userType() != QMetaType::QByteArray)
        detail = QStringLiteral(
                     "Proxy Configuration: restore - QVariant type mismatch: expected '%1' - actual '%2'")
                     .arg(int(QMetaType::QByteArray))
                     .arg(value.userType());
    else if (value.toByteArray().isEmpty())
        detail = QStringLiteral("Proxy Configuration: restore - QByteArray is empty");
    if (detail.isNull())
        return restoreFrom(value.toByteArray(), provider);
    PYXTraceWrapper::staticTraceX_Warn(tr("Proxy Configuration: restore failed"), detail, TraceFile,
                                       __LINE__);
    return false;
}

ProxyConfiguration ProxyConfiguration::restoredFrom(const PYXStatusHash &hash,
                                                    IPYXEncryptionProvider *provider)
{
    ProxyConfiguration configuration;
    configuration.restoreFrom(hash, provider);
    return configuration;
}

ProxyConfiguration ProxyConfiguration::restoredFrom(const QByteArray &xml, IPYXEncryptionProvider *provider)
{
    ProxyConfiguration configuration;
    configuration.restoreFrom(xml, provider);
    return configuration;
}

ProxyConfiguration ProxyConfiguration::restoredFrom(const QSettings *settings, const QString &key,
                                                    IPYXEncryptionProvider *provider)
{
    ProxyConfiguration configuration;
    configuration.restoreFrom(settings, key, provider);
    return configuration;
}

/** The provider that encrypted a password; the supplied one where it is not known. */
IPYXEncryptionProvider *ProxyConfiguration::_providerFor(const QString &storedId,
                                                         IPYXEncryptionProvider *supplied)
{
    if (auto *const found = PYXEncryptionManager::staticGetEncryptionProviderForId(storedId)) {
        traceDebug(foundText(storedId), __LINE__);
        return found;
    }
    const QStringList registered = PYXEncryptionManager::staticRegisteredEncryptionProviderIds();
    const QString notFound =
        QStringLiteral("Proxy Configuration: encryption provider not found: used '%1' (registered: %2)")
            .arg(storedId, registered.join(QLatin1String(" | ")));
    traceDebug(notFound, __LINE__);
    PYXTraceWrapper::staticTraceX_Warn(tr("Proxy Configuration: password was encrypted with different "
                                          "encryption and might not decrypt properly"),
                                       notFound, TraceFile, __LINE__);
    return supplied;
}

} // namespace PYXRuntime
