// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtGui/QPalette>

namespace BandMonitor {

/** Light text on dark ground, for rooms with little light. */
QPalette darkPalette();

} // namespace BandMonitor
