// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "ProxyConfiguration.h"
#include "pyxruntime_export.h"

#include <QtCore/QObject>
#include <QtCore/QPointer>

namespace PYXRuntime {

class PYXNetworkProxyFactory;

/**
 * Makes one proxy configuration that of the whole process: Qt's network classes use it from then on.
 *
 * At its start, and whenever the encryption providers change, it reads the configuration of the user's
 * application settings. What belongs there is stored with ProxyConfiguration::save() under settingsKey().
 * PYXSettingsTransfer takes that key for a secret.
 *
 * The GUI thread only; initialising the library creates the manager, shutting it down destroys it. The last
 * configuration stays in force after that.
 */
class PYXRUNTIME_EXPORT PYXProxyManager final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(PYXProxyManager)
public:
    ~PYXProxyManager() override;

    static bool hasInstance();
    static void makeSureInitialized();
    static void destroyInstance();

    /** "::PYXRuntime::/ProxyConfiguration". */
    static QString settingsKey();

    /** Puts a configuration in force and announces it; nothing is stored. */
    static void applyProxyConfiguration(const ProxyConfiguration &configuration);
    /** The reference is good until the next configuration is applied. */
    static const ProxyConfiguration &currentProxyConfigurationWithoutPassword();
    /**
     * Connects si_proxyConfigurationChanged() to a signal or slot of @p receiver, as SIGNAL() or SLOT() names
     * it. Its argument, if it takes one, is to be declared exactly as that of the signal.
     */
    static void registerChangeListener(QObject *receiver, const char *member,
                                       Qt::ConnectionType type = Qt::AutoConnection);

Q_SIGNALS:
    void si_proxyConfigurationChanged(
        const ::PYXRuntime::ProxyConfiguration &a_newProxyConfigurationWithoutPassword);

private Q_SLOTS:
    void _sl_encryptionManager_encryptionProviderChanged();
    void _sl_encryptionManager_registeredEncryptionProvidersChanged();
    void _sl_proxyFactory_destroyed(QObject *a_factory);

private:
    explicit PYXProxyManager(QObject *parent = nullptr);
    static PYXProxyManager *getInstance();

    void _applyProxyConfiguration(const ProxyConfiguration &configuration);
    void _applyProxyConfigurationFromSettings();
    void _handToFactory(const ProxyConfiguration &configuration);

    ProxyConfiguration m_currentConfiguration;
    QPointer<PYXNetworkProxyFactory> m_factory;
    quint64 m_appliedCount = 0;
};

} // namespace PYXRuntime
