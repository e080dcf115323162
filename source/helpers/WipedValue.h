// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "PYXByteArrayHelpers.h"
#include "PYXStringHelpers.h"

namespace PYXRuntime {

/** A secret that is wiped where its scope ends, whichever way that happens. */
template <typename Secret, typename Helpers>
class WipedValue final
{
    Q_DISABLE_COPY(WipedValue)
public:
    WipedValue() = default;
    explicit WipedValue(Secret &&secret)
        : value(std::move(secret))
    {}
    ~WipedValue() { Helpers::safeOverwriteAndClear(value); }

    Secret value;
};

using WipedBytes = WipedValue<QByteArray, PYXByteArrayHelpers>;
using WipedString = WipedValue<QString, PYXStringHelpers>;

} // namespace PYXRuntime
