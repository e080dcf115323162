// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QByteArray>

namespace PYXRuntime {

/**
 * What printf makes of a format that comes without arguments, had every argument been zero or an empty
 * string: conversions are consumed, "%%" gives one "%", "%n" stores nothing. Reads no memory but the
 * format. Field widths and precisions are cut to 4 095.
 */
QByteArray printfLine(const QByteArray &format);

} // namespace PYXRuntime
