// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QtEndian>

namespace PYXRuntime {

/** The number at this place of the bytes; 0 where they do not hold all of it. */
template <typename Number>
Number littleEndian(const QByteArray &bytes, int offset)
{
    if (offset < 0 || offset > bytes.size() - int(sizeof(Number)))
        return 0;
    return qFromLittleEndian<Number>(bytes.constData() + offset);
}

} // namespace PYXRuntime
