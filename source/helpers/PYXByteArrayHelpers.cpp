// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXByteArrayHelpers.h"

#include "BufferWiper.h"

namespace PYXRuntime {

void PYXByteArrayHelpers::safeOverwriteAndClear(QByteArray &bytes)
{
    BufferWiper::wipe(bytes);
    bytes.clear();
}

QByteArray PYXByteArrayHelpers::trueCopy(const QByteArray &bytes)
{
    return bytes.isNull() ? QByteArray() : QByteArray(bytes.constData(), bytes.size());
}

} // namespace PYXRuntime
