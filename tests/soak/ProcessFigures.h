// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

/** What the system says of this process (Linux). */
namespace ProcessFigures {

struct struMemory
{
    double residentKiB = 0;
    double privateDirtyKiB = 0; ///< what would not be there without this process
};
struMemory memory();
/** What malloc() has handed out and not got back, in KiB. */
double heapInUse();
int descriptors();
int threads();

} // namespace ProcessFigures
