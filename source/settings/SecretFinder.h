// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QStringView>
#include <QtCore/QVariant>

/** Recognises what is not for everybody's eyes. When in doubt, it is a secret. */
namespace PYXRuntime::SecretFinder {

/** Whether one of the segments of the key speaks of a secret. */
bool isSecretName(QStringView key);

/** Whether the value holds an entry, an element or bytes with such a name, or a URL with a password. */
bool holdsSecret(const QVariant &value);

} // namespace PYXRuntime::SecretFinder
