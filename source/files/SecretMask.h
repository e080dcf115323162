// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QString>

namespace PYXRuntime {

/**
 * The text without what looks like a secret: from the value after "password=", "token:" and the like to its
 * end, and passwords in URLs. A text without any comes back as it is.
 */
QString withoutSecrets(const QString &text);

} // namespace PYXRuntime
