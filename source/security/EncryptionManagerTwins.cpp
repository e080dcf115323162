// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXEncryptionManager.h"

// The static twins.

namespace PYXRuntime {

bool PYXEncryptionManager::staticRegisterEncryptionProvider(QObject *provider)
{
    return getInstance()->registerEncryptionProvider(provider);
}

void PYXEncryptionManager::staticUnregisterEncryptionProvider(QObject *provider)
{
    getInstance()->unregisterEncryptionProvider(provider);
}

bool PYXEncryptionManager::staticRegisterAndSetEncryptionProvider(QObject *provider)
{
    return getInstance()->registerAndSetEncryptionProvider(provider);
}

bool PYXEncryptionManager::staticSetEncryptionProvider(QObject *provider)
{
    return getInstance()->setEncryptionProvider(provider);
}

void PYXEncryptionManager::staticUnsetEncryptionProvider()
{
    getInstance()->unsetEncryptionProvider();
}

void PYXEncryptionManager::staticSetNullEncryptionProviderAsDefault()
{
    getInstance()->setNullEncryptionProviderAsDefault();
}

void PYXEncryptionManager::staticSetSimpleEncryptionProviderAsDefault()
{
    getInstance()->setSimpleEncryptionProviderAsDefault();
}

Interfaces::IPYXEncryptionProvider *PYXEncryptionManager::staticEncryptionProvider()
{
    return getInstance()->encryptionProvider();
}

Interfaces::IPYXEncryptionProvider *PYXEncryptionManager::staticDefaultEncryptionProvider()
{
    return getInstance()->defaultEncryptionProvider();
}

Interfaces::IPYXEncryptionProvider *PYXEncryptionManager::staticEffectiveEncryptionProvider()
{
    return getInstance()->effectiveEncryptionProvider();
}

Interfaces::IPYXEncryptionProvider *PYXEncryptionManager::staticNullEncryptionProvider()
{
    return getInstance()->nullEncryptionProvider();
}

Interfaces::IPYXEncryptionProvider *PYXEncryptionManager::staticSimpleEncryptionProvider()
{
    return getInstance()->simpleEncryptionProvider();
}

Interfaces::IPYXEncryptionProvider *PYXEncryptionManager::staticGetEncryptionProviderForId(const QString &id)
{
    return getInstance()->getEncryptionProviderForId(id);
}

bool PYXEncryptionManager::staticHasEncryptionProviderForId(const QString &id)
{
    return getInstance()->hasEncryptionProviderForId(id);
}

QStringList PYXEncryptionManager::staticBuiltinEncryptionProviderIds()
{
    return getInstance()->builtinEncryptionProviderIds();
}

QStringList PYXEncryptionManager::staticRegisteredEncryptionProviderIds()
{
    return getInstance()->registeredEncryptionProviderIds();
}

QStringList PYXEncryptionManager::staticKnownEncryptionProviderIds()
{
    return getInstance()->knownEncryptionProviderIds();
}

QList<QObject *> PYXEncryptionManager::staticBuiltinEncryptionProviders()
{
    return getInstance()->builtinEncryptionProviders();
}

QList<QObject *> PYXEncryptionManager::staticRegisteredEncryptionProviders()
{
    return getInstance()->registeredEncryptionProviders();
}

QList<QObject *> PYXEncryptionManager::staticKnownEncryptionProviders()
{
    return getInstance()->knownEncryptionProviders();
}

QString PYXEncryptionManager::staticEncryptionProviderId()
{
    return getInstance()->encryptionProviderId();
}

QString PYXEncryptionManager::staticEncryptionProviderName()
{
    return getInstance()->encryptionProviderName();
}

QByteArray PYXEncryptionManager::staticEncrypt(const QString &plain)
{
    return getInstance()->encrypt(plain);
}

QByteArray PYXEncryptionManager::staticEncrypt(const QByteArray &plain)
{
    return getInstance()->encrypt(plain);
}

QByteArray PYXEncryptionManager::staticDecrypt(const QByteArray &cipher)
{
    return getInstance()->decrypt(cipher);
}

QString PYXEncryptionManager::staticDecryptToQString(const QByteArray &cipher)
{
    return getInstance()->decryptToQString(cipher);
}

} // namespace PYXRuntime
