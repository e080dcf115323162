// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

namespace PYXRuntime {

/** Makes Enums and Flags know every public enumeration and flag type of the library. */
void fillEnumTables();

} // namespace PYXRuntime
