// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXEncryptionManager.h"

#include "NullEncryptionProvider.h"
#include "PYXBrokerInterface.h"
#include "PYXTraceWrapper.h"
#include "SimpleEncryptionProvider.h"
#include "SingletonHolder.h"

namespace PYXRuntime {
namespace {

constexpr const char *TraceFile = "source\\PYXEncryptionManager";
const QLatin1String NotRegistered("PYXEncryptionManager::setEncryptionProvider: the set encryption provider "
                                  "should already be registered");
const QLatin1String NotUnregistered("~PYXEncryptionManager: not all registered encryption providers have "
                                    "been unregistered");
const QLatin1String RemainingId("  encryption Provider Id: ");

using Interfaces::IPYXEncryptionProvider;
using Holder = SingletonHolder<PYXEncryptionManager>;

QStringList sortedIds(const QList<QObject *> &providers)
{
    QStringList ids;
    for (QObject *const object : providers) {
        if (const auto *const provider = pyxInterfaceCast<IPYXEncryptionProvider>(object))
            ids += provider->encryptionProviderId();
    }
    ids.sort();
    return ids;
}

} // namespace

PYXEncryptionManager::PYXEncryptionManager(QObject *parent)
    : QObject(parent)
    , m_nullProvider(new NullEncryptionProvider(this))
    , m_simpleProvider(new SimpleEncryptionProvider(this))
{
    connect(m_nullProvider, &QObject::destroyed, this,
            &PYXEncryptionManager::_sl_nullEncryptionProvider_destroyed);
    connect(m_simpleProvider, &QObject::destroyed, this,
            &PYXEncryptionManager::_sl_simpleEncryptionProvider_destroyed);
    setSimpleEncryptionProviderAsDefault();
}

PYXEncryptionManager::~PYXEncryptionManager()
{
    if (!m_nullProvider.isNull())
        m_nullProvider->disconnect(this);
    if (!m_simpleProvider.isNull())
        m_simpleProvider->disconnect(this);
    _purgeEmptyRegisteredEncryptionProviders();
    if (m_registeredProviders.isEmpty())
        return;
    PYXTraceWrapper::staticTraceDebug(NotUnregistered, TraceFile, __LINE__);
    // A tracer may delete providers.
    const QList<QPointer<QObject>> remaining = m_registeredProviders;
    for (const QPointer<QObject> &object : remaining) {
        const IPYXEncryptionProvider *const provider = _resolved(object);
        if (provider == nullptr)
            continue;
        object->disconnect(this);
        PYXTraceWrapper::staticTraceDebug(RemainingId + provider->encryptionProviderId(), TraceFile,
                                          __LINE__);
    }
}

PYXEncryptionManager *PYXEncryptionManager::getInstance()
{
    return Holder::instance([] { return new PYXEncryptionManager; });
}

bool PYXEncryptionManager::hasInstance()
{
    return Holder::existing() != nullptr;
}

void PYXEncryptionManager::makeSureInitialized()
{
    getInstance();
}

void PYXEncryptionManager::destroyInstance()
{
    delete Holder::take();
}

bool PYXEncryptionManager::registerEncryptionProvider(QObject *provider)
{
    if (_resolved(provider) == nullptr)
        return false;
    if (m_registeredProviders.contains(provider))
        return true;
    m_registeredProviders += provider;
    connect(provider, &QObject::destroyed, this,
            &PYXEncryptionManager::_sl_registeredEncryptionProvider_destroyed);
    Q_EMIT si_registeredEncryptionProvidersChanged();
    return true;
}

void PYXEncryptionManager::unregisterEncryptionProvider(QObject *provider)
{
    if (_resolved(provider) == nullptr || !m_registeredProviders.contains(provider))
        return;
    provider->disconnect(this);
    m_registeredProviders.removeAll(provider);
    Q_EMIT si_registeredEncryptionProvidersChanged();
}

bool PYXEncryptionManager::registerAndSetEncryptionProvider(QObject *provider)
{
    // Whoever listens to the registration may delete the provider, or this.
    const QPointer<PYXEncryptionManager> self(this);
    const QPointer<QObject> object(provider);
    return registerEncryptionProvider(provider) && self && setEncryptionProvider(object);
}

bool PYXEncryptionManager::setEncryptionProvider(QObject *provider)
{
    if (_resolved(provider) == nullptr)
        return false;
    if (!m_registeredProviders.contains(provider)) {
        PYXTraceWrapper::staticTraceDebug(NotRegistered, TraceFile, __LINE__);
        return false;
    }
    constexpr auto slot = &PYXEncryptionManager::_sl_encryptionProvider_destroyed;
    if (!m_setProvider.isNull())
        disconnect(m_setProvider, &QObject::destroyed, this, slot);
    connect(provider, &QObject::destroyed, this, slot);
    m_setProvider = provider;
    Q_EMIT si_encryptionProviderChanged();
    return true;
}

void PYXEncryptionManager::unsetEncryptionProvider()
{
    if (encryptionProvider() == nullptr)
        return;
    // It may be registered still, and its end has to be noticed there.
    disconnect(m_setProvider, &QObject::destroyed, this,
               &PYXEncryptionManager::_sl_encryptionProvider_destroyed);
    m_setProvider.clear();
    Q_EMIT si_encryptionProviderChanged();
}

void PYXEncryptionManager::setNullEncryptionProviderAsDefault()
{
    _setDefault(m_nullProvider);
}

void PYXEncryptionManager::setSimpleEncryptionProviderAsDefault()
{
    _setDefault(m_simpleProvider);
}

IPYXEncryptionProvider *PYXEncryptionManager::encryptionProvider() const
{
    return _resolved(m_setProvider);
}

IPYXEncryptionProvider *PYXEncryptionManager::defaultEncryptionProvider() const
{
    return _resolved(m_defaultProvider);
}

IPYXEncryptionProvider *PYXEncryptionManager::effectiveEncryptionProvider() const
{
    if (auto *const provider = encryptionProvider())
        return provider;
    if (auto *const provider = defaultEncryptionProvider())
        return provider;
    if (auto *const provider = simpleEncryptionProvider())
        return provider;
    return nullEncryptionProvider();
}

IPYXEncryptionProvider *PYXEncryptionManager::nullEncryptionProvider() const
{
    return m_nullProvider.data();
}

IPYXEncryptionProvider *PYXEncryptionManager::simpleEncryptionProvider() const
{
    return m_simpleProvider.data();
}

IPYXEncryptionProvider *PYXEncryptionManager::getEncryptionProviderForId(const QString &id) const
{
    for (QObject *const object : knownEncryptionProviders()) {
        auto *const provider = _resolved(object);
        if (provider != nullptr && provider->encryptionProviderId() == id)
            return provider;
    }
    return nullptr;
}

bool PYXEncryptionManager::hasEncryptionProviderForId(const QString &id) const
{
    return getEncryptionProviderForId(id) != nullptr;
}

QStringList PYXEncryptionManager::builtinEncryptionProviderIds() const
{
    return sortedIds(builtinEncryptionProviders());
}

QStringList PYXEncryptionManager::registeredEncryptionProviderIds() const
{
    return sortedIds(registeredEncryptionProviders());
}

QStringList PYXEncryptionManager::knownEncryptionProviderIds() const
{
    return sortedIds(knownEncryptionProviders());
}

QList<QObject *> PYXEncryptionManager::builtinEncryptionProviders() const
{
    QList<QObject *> providers = {m_simpleProvider, m_nullProvider};
    providers.removeAll(nullptr);
    return providers;
}

QList<QObject *> PYXEncryptionManager::registeredEncryptionProviders() const
{
    QList<QObject *> providers;
    for (const QPointer<QObject> &provider : m_registeredProviders) {
        if (!provider.isNull())
            providers += provider;
    }
    return providers;
}

QList<QObject *> PYXEncryptionManager::knownEncryptionProviders() const
{
    return registeredEncryptionProviders() + builtinEncryptionProviders();
}

QString PYXEncryptionManager::encryptionProviderId() const
{
    const auto *const provider = effectiveEncryptionProvider();
    return provider != nullptr ? provider->encryptionProviderId() : QString();
}

QString PYXEncryptionManager::encryptionProviderName() const
{
    const auto *const provider = effectiveEncryptionProvider();
    return provider != nullptr ? provider->encryptionProviderName() : QString();
}

QByteArray PYXEncryptionManager::encrypt(const QString &plain)
{
    auto *const provider = effectiveEncryptionProvider();
    return provider != nullptr ? provider->encrypt(plain) : QByteArray();
}

QByteArray PYXEncryptionManager::encrypt(const QByteArray &plain)
{
    auto *const provider = effectiveEncryptionProvider();
    return provider != nullptr ? provider->encrypt(plain) : QByteArray();
}

QByteArray PYXEncryptionManager::decrypt(const QByteArray &cipher)
{
    auto *const provider = effectiveEncryptionProvider();
    return provider != nullptr ? provider->decrypt(cipher) : QByteArray();
}

QString PYXEncryptionManager::decryptToQString(const QByteArray &cipher)
{
    auto *const provider = effectiveEncryptionProvider();
    return provider != nullptr ? provider->decryptToQString(cipher) : QString();
}

void PYXEncryptionManager::_sl_nullEncryptionProvider_destroyed(QObject *) {}

void PYXEncryptionManager::_sl_simpleEncryptionProvider_destroyed(QObject *) {}

void PYXEncryptionManager::_sl_registeredEncryptionProvider_destroyed(QObject *)
{
    _purgeEmptyRegisteredEncryptionProviders();
}

void PYXEncryptionManager::_sl_encryptionProvider_destroyed(QObject *)
{
    Q_EMIT si_encryptionProviderChanged();
}

/** Null for what is no provider, and for the manager itself, which would forward to itself for ever. */
IPYXEncryptionProvider *PYXEncryptionManager::_resolved(QObject *object) const
{
    return object == this ? nullptr : pyxInterfaceCast<IPYXEncryptionProvider>(object);
}

void PYXEncryptionManager::_setDefault(QObject *provider)
{
    if (m_defaultProvider == provider)
        return;
    m_defaultProvider = provider;
    Q_EMIT si_defaultEncryptionProviderChanged();
}

void PYXEncryptionManager::_purgeEmptyRegisteredEncryptionProviders()
{
    m_registeredProviders.removeAll(nullptr);
}

} // namespace PYXRuntime
