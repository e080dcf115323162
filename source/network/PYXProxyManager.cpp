// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXProxyManager.h"

#include "InitializationCount.h"
#include "PYXEncryptionManager.h"
#include "PYXNetworkProxyFactory.h"
#include "PYXRuntimeCenter.h"
#include "PYXSettings.h"
#include "PYXSettingsTransfer.h"
#include "PYXTraceWrapper.h"
#include "SingletonHolder.h"
#include "WipedValue.h"

#include <QtCore/QCoreApplication>

namespace PYXRuntime {
namespace {

constexpr const char *TraceFile = "source\\PYXProxyManager";

const uint s_runtimeScope =
    PYXRuntimeCenter::registerRuntimeScope(QStringLiteral("PYXProxy"), QStringLiteral("PYX Proxy Manager"));

using Holder = SingletonHolder<PYXProxyManager>;

bool registerSecret()
{
    PYXSettingsTransfer::registerSecret(PYXProxyManager::settingsKey());
    return true;
}

// Runs while the library loads: settings may be exported before there is a manager.
[[maybe_unused]] const bool s_bSecretRegistered = registerSecret();

void registerMetaTypes()
{
    qRegisterMetaType<ProxyConfiguration>();
    // What the meta-object compiler makes of the signal's argument; queued connections look it up.
    qRegisterMetaType<ProxyConfiguration>("const::PYXRuntime::ProxyConfiguration&");
}

QString yesOrNo(bool yes)
{
    return yes ? QStringLiteral("yes") : QStringLiteral("no");
}

void describe(const ProxyConfiguration &configuration)
{
    if (!PYXRuntimeCenter::isEnabled_pyxDebug(s_runtimeScope))
        return;
    const WipedString password(configuration.proxyPassword());
    const QString lines[] = {
        QStringLiteral("Applying Proxy Configuration"),
        QStringLiteral("Proxy Type: ") + configuration.proxyTypeAsString(),
        QStringLiteral("Proxy Variant: ") + configuration.proxyVariantAsString(),
        QStringLiteral("Proxy Host: ") + configuration.proxyHost(),
        QStringLiteral("Proxy Port: ") + QString::number(configuration.proxyPort()),
        QStringLiteral("Proxy Auth Required: ") + yesOrNo(configuration.authenticationRequired()),
        QStringLiteral("Proxy User: ") + configuration.proxyUsername(),
        QStringLiteral("Proxy Password supplied: ") + yesOrNo(!password.value.isEmpty()),
    };
    for (const QString &line : lines)
        PYXRuntimeCenter::pyxDebug(s_runtimeScope, line);
}

} // namespace

PYXProxyManager::PYXProxyManager(QObject *parent)
    : QObject(parent)
{
    registerMetaTypes();
    const auto *const encryption = PYXEncryptionManager::getInstance();
    connect(encryption, &PYXEncryptionManager::si_encryptionProviderChanged, this,
            &PYXProxyManager::_sl_encryptionManager_encryptionProviderChanged);
    connect(encryption, &PYXEncryptionManager::si_registeredEncryptionProvidersChanged, this,
            &PYXProxyManager::_sl_encryptionManager_registeredEncryptionProvidersChanged);
    PYXRuntimeCenter::setEnabled_pyxDebug(s_runtimeScope, false);
}

PYXProxyManager::~PYXProxyManager()
{
    if (!m_factory.isNull())
        m_factory->disconnect(this);
}

PYXProxyManager *PYXProxyManager::getInstance()
{
    if (PYXProxyManager *const manager = Holder::existing())
        return manager;
    PYXProxyManager *const manager = Holder::instance([] { return new PYXProxyManager; });
    manager->_applyProxyConfigurationFromSettings();
    return manager;
}

bool PYXProxyManager::hasInstance()
{
    return Holder::existing() != nullptr;
}

void PYXProxyManager::makeSureInitialized()
{
    getInstance();
}

void PYXProxyManager::destroyInstance()
{
    delete Holder::take();
}

QString PYXProxyManager::settingsKey()
{
    return QStringLiteral("::PYXRuntime::/ProxyConfiguration");
}

void PYXProxyManager::applyProxyConfiguration(const ProxyConfiguration &configuration)
{
    // A copy: it may be the current one, or a listener's that goes.
    getInstance()->_applyProxyConfiguration(ProxyConfiguration(configuration));
}

const ProxyConfiguration &PYXProxyManager::currentProxyConfigurationWithoutPassword()
{
    return getInstance()->m_currentConfiguration;
}

void PYXProxyManager::registerChangeListener(QObject *receiver, const char *member, Qt::ConnectionType type)
{
    connect(getInstance(), SIGNAL(si_proxyConfigurationChanged(const ::PYXRuntime::ProxyConfiguration &)),
            receiver, member, type);
}

void PYXProxyManager::_sl_encryptionManager_encryptionProviderChanged()
{
    _applyProxyConfigurationFromSettings();
}

void PYXProxyManager::_sl_encryptionManager_registeredEncryptionProvidersChanged()
{
    _applyProxyConfigurationFromSettings();
}

void PYXProxyManager::_sl_proxyFactory_destroyed(QObject *)
{
    const QPointer<PYXProxyManager> self(this); // a tracer may destroy it
    PYXTraceWrapper::staticTraceDebug(
        QStringLiteral("PYXRuntime::PYXProxyManager::_sl_proxyFactory_destroyed"), TraceFile, __LINE__);
    // What was applied since then has brought a new factory along.
    const bool bMissing = !self.isNull() && m_factory.isNull() && initializationCount != 0;
    if (bMissing && QCoreApplication::instance() != nullptr && !QCoreApplication::closingDown())
        _applyProxyConfigurationFromSettings();
}

void PYXProxyManager::_applyProxyConfiguration(const ProxyConfiguration &configuration)
{
    const QPointer<PYXProxyManager> self(this);
    describe(configuration);
    if (self.isNull())
        return;
    ++m_appliedCount;
    m_currentConfiguration = configuration;
    m_currentConfiguration.clearProxyPassword();
    _handToFactory(configuration);
    // Nor may a listener that applies another one change what the next listener gets.
    const ProxyConfiguration announced = m_currentConfiguration;
    Q_EMIT si_proxyConfigurationChanged(announced);
}

void PYXProxyManager::_applyProxyConfigurationFromSettings()
{
    // A provider may ask the user for its key before it decrypts the password. Meanwhile the program may end,
    // and what is applied is newer.
    const QPointer<PYXProxyManager> self(this);
    const quint64 before = m_appliedCount;
    const PYXSettings settings(PYXSettings::eUserApplicationSettings);
    const auto stored = ProxyConfiguration::restoredFrom(&settings, settingsKey(), nullptr);
    if (!self.isNull() && m_appliedCount == before)
        _applyProxyConfiguration(stored);
}

void PYXProxyManager::_handToFactory(const ProxyConfiguration &configuration)
{
    if (!m_factory.isNull()) {
        m_factory->setCurrentProxyConfiguration(configuration);
        return;
    }
    m_factory = new PYXNetworkProxyFactory;
    m_factory->setCurrentProxyConfiguration(configuration); // before anybody can ask it
    // Queued: Qt deletes a factory within the very call that sets another one, and holds a lock there.
    connect(m_factory, &QObject::destroyed, this, &PYXProxyManager::_sl_proxyFactory_destroyed,
            Qt::QueuedConnection);
    QNetworkProxyFactory::setApplicationProxyFactory(m_factory);
}

} // namespace PYXRuntime
