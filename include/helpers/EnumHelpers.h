// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "Enums.h"

namespace PYXRuntime {

/** Enumerators to their names and back. Any thread. */
class PYXRUNTIME_EXPORT EnumHelpers final
{
public:
    EnumHelpers() = delete;

    /** The name as it is declared, the first one of a value; empty for a value without a name. */
    static QString proxyType(Enums::eProxyType type);
    static QString proxyVariant(Enums::eProxyVariant variant);
    /** The value 0 for a name that is none. */
    static Enums::eProxyType proxyType(const QString &name);
    static Enums::eProxyVariant proxyVariant(const QString &name);
};

} // namespace PYXRuntime
