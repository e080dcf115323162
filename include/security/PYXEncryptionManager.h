// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "IPYXEncryptionProvider.h"
#include "pyxruntime_export.h"

#include <QtCore/QList>
#include <QtCore/QPointer>
#include <QtCore/QStringList>

namespace PYXRuntime {

class NullEncryptionProvider;
class SimpleEncryptionProvider;

/**
 * Knows the encryption providers of the process and stands for the one in effect: it is a provider itself
 * that forwards every call.
 *
 * In effect is the first that lives of: the set provider, the default provider, "Simple", "Null". An
 * application registers its provider (a QObject that implements Interfaces::IPYXEncryptionProvider) and
 * sets it:
 * @code
 * PYXEncryptionManager::staticRegisterAndSetEncryptionProvider(&vault);
 * const QByteArray stored = PYXEncryptionManager::staticEncrypt(password);
 * @endcode
 * Registered providers stay the caller's; one that is destroyed leaves the lists. The built-in ones belong
 * to the manager. Beware: "Simple", the default, only obfuscates.
 *
 * The GUI thread only. Every operation has a static twin that works on getInstance().
 */
class PYXRUNTIME_EXPORT PYXEncryptionManager : public QObject, public Interfaces::IPYXEncryptionProvider
{
    Q_OBJECT
    Q_DISABLE_COPY(PYXEncryptionManager)
    Q_INTERFACES(Interfaces::IPYXEncryptionProvider)
public:
    using IPYXEncryptionProvider = Interfaces::IPYXEncryptionProvider;

    ~PYXEncryptionManager() override;

    /** Created on first use; initialising the library does so, shutting it down destroys it. */
    static PYXEncryptionManager *getInstance();
    static bool hasInstance();
    static void makeSureInitialized();
    /** Providers that are still registered are traced. */
    static void destroyInstance();

    /** @return false for what is no provider, and for the manager; true also for one already registered. */
    bool registerEncryptionProvider(QObject *provider);
    /** A provider that is set stays so, but its end is not announced any more. */
    void unregisterEncryptionProvider(QObject *provider);
    bool registerAndSetEncryptionProvider(QObject *provider);
    /**
     * Puts a registered provider in effect, and announces it also where it is already.
     * @return false, with nothing changed, for one that is not registered.
     */
    bool setEncryptionProvider(QObject *provider);
    void unsetEncryptionProvider();
    void setNullEncryptionProviderAsDefault();
    /** So it is from the start. */
    void setSimpleEncryptionProviderAsDefault();

    /** The set one; null where there is none, as in all of these. */
    IPYXEncryptionProvider *encryptionProvider() const;
    IPYXEncryptionProvider *defaultEncryptionProvider() const;
    IPYXEncryptionProvider *effectiveEncryptionProvider() const;
    IPYXEncryptionProvider *nullEncryptionProvider() const;
    IPYXEncryptionProvider *simpleEncryptionProvider() const;
    /** A registered provider hides a built-in one with the same id; the case counts. */
    IPYXEncryptionProvider *getEncryptionProviderForId(const QString &id) const;
    bool hasEncryptionProviderForId(const QString &id) const;

    /** Sorted; an id stands in knownEncryptionProviderIds() as often as it is taken. */
    QStringList builtinEncryptionProviderIds() const;
    QStringList registeredEncryptionProviderIds() const;
    QStringList knownEncryptionProviderIds() const;
    /** "Simple", then "Null". */
    QList<QObject *> builtinEncryptionProviders() const;
    /** In the order of registration. */
    QList<QObject *> registeredEncryptionProviders() const;
    /** The registered ones, then the built-in ones. */
    QList<QObject *> knownEncryptionProviders() const;

    /** The operations of the provider in effect. */
    QString encryptionProviderId() const override;
    QString encryptionProviderName() const override;
    QByteArray encrypt(const QString &plain) override;
    QByteArray encrypt(const QByteArray &plain) override;
    QByteArray decrypt(const QByteArray &cipher) override;
    QString decryptToQString(const QByteArray &cipher) override;

    static bool staticRegisterEncryptionProvider(QObject *provider);
    static void staticUnregisterEncryptionProvider(QObject *provider);
    static bool staticRegisterAndSetEncryptionProvider(QObject *provider);
    static bool staticSetEncryptionProvider(QObject *provider);
    static void staticUnsetEncryptionProvider();
    static void staticSetNullEncryptionProviderAsDefault();
    static void staticSetSimpleEncryptionProviderAsDefault();
    static IPYXEncryptionProvider *staticEncryptionProvider();
    static IPYXEncryptionProvider *staticDefaultEncryptionProvider();
    static IPYXEncryptionProvider *staticEffectiveEncryptionProvider();
    static IPYXEncryptionProvider *staticNullEncryptionProvider();
    static IPYXEncryptionProvider *staticSimpleEncryptionProvider();
    static IPYXEncryptionProvider *staticGetEncryptionProviderForId(const QString &id);
    static bool staticHasEncryptionProviderForId(const QString &id);
    static QStringList staticBuiltinEncryptionProviderIds();
    static QStringList staticRegisteredEncryptionProviderIds();
    static QStringList staticKnownEncryptionProviderIds();
    static QList<QObject *> staticBuiltinEncryptionProviders();
    static QList<QObject *> staticRegisteredEncryptionProviders();
    static QList<QObject *> staticKnownEncryptionProviders();
    static QString staticEncryptionProviderId();
    static QString staticEncryptionProviderName();
    static QByteArray staticEncrypt(const QString &plain);
    static QByteArray staticEncrypt(const QByteArray &plain);
    static QByteArray staticDecrypt(const QByteArray &cipher);
    static QString staticDecryptToQString(const QByteArray &cipher);

Q_SIGNALS:
    void si_defaultEncryptionProviderChanged();
    /** Another provider is set, or none; or the set one is gone. */
    void si_encryptionProviderChanged();
    /** Not emitted for a provider that is destroyed. */
    void si_registeredEncryptionProvidersChanged();

private Q_SLOTS:
    void _sl_nullEncryptionProvider_destroyed(QObject *a_provider);
    void _sl_simpleEncryptionProvider_destroyed(QObject *a_provider);
    void _sl_registeredEncryptionProvider_destroyed(QObject *a_provider);
    void _sl_encryptionProvider_destroyed(QObject *a_provider);

private:
    explicit PYXEncryptionManager(QObject *parent = nullptr);

    IPYXEncryptionProvider *_resolved(QObject *object) const;
    void _setDefault(QObject *provider);
    void _purgeEmptyRegisteredEncryptionProviders();

    QPointer<NullEncryptionProvider> m_nullProvider;
    QPointer<SimpleEncryptionProvider> m_simpleProvider;
    // Objects, never interfaces: those would not notice that their object is gone.
    QPointer<QObject> m_defaultProvider;
    QPointer<QObject> m_setProvider;
    QList<QPointer<QObject>> m_registeredProviders;
};

} // namespace PYXRuntime
