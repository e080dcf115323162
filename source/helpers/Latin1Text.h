// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QLatin1String>

#include <cstddef>

namespace PYXRuntime {

/** A constant from a literal. The constructor that counts the characters itself is not constexpr everywhere.
 */
template <std::size_t Size>
constexpr QLatin1String latin1(const char (&text)[Size])
{
    return QLatin1String(text, int(Size) - 1);
}

} // namespace PYXRuntime
