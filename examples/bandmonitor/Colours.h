// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

namespace BandMonitor {

/** Gives the application dark colours, or those of its style. */
void setDarkColours(bool bDark);

} // namespace BandMonitor
