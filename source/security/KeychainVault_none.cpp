// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "KeychainVault.h"

// For builds without QtKeychain or libsodium.

namespace PYXRuntime {

class KeychainVault::Key
{
};

KeychainVault::KeychainVault() = default;

KeychainVault::~KeychainVault() = default;

bool KeychainVault::isSupported()
{
    return false;
}

QString KeychainVault::open(const QString &, int)
{
    return tr("This program was built without the system's secret store.");
}

bool KeychainVault::isOpen() const
{
    return m_key != nullptr;
}

void KeychainVault::close() {}

QByteArray KeychainVault::encrypted(const QByteArray &) const
{
    return {};
}

QByteArray KeychainVault::decrypted(const QByteArray &, const char **) const
{
    return {};
}

} // namespace PYXRuntime
