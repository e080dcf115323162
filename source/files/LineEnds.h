// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QtGlobal>

namespace PYXRuntime {

/** How many of the bytes are line feeds. */
quint64 countLineEnds(const char *data, qint64 size);

} // namespace PYXRuntime
