// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "pyxruntime_export.h"

#include <QtCore/QByteArray>

namespace PYXRuntime {

/** Care for secrets in byte arrays. Any thread, as far as the arrays themselves allow it. */
class PYXRUNTIME_EXPORT PYXByteArrayHelpers final
{
public:
    PYXByteArrayHelpers() = delete;

    /**
     * Overwrites the bytes with random ones where they lie, then clears the array.
     *
     * The buffer is not detached: every array that shares it reads random bytes afterwards. Whoever goes on
     * using a secret must hold a trueCopy() of it. A buffer that does not belong to QByteArray (a literal,
     * QByteArray::fromRawData) is left as it is; the array is only cleared.
     */
    static void safeOverwriteAndClear(QByteArray &bytes);

    /** A copy that shares its buffer with no other array; null stays null. */
    static QByteArray trueCopy(const QByteArray &bytes);
};

} // namespace PYXRuntime
