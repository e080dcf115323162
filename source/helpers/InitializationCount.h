// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <atomic>

namespace PYXRuntime {

/** How often the library is initialised at the moment. Only the functions that do it change this. */
inline std::atomic<int> initializationCount{0};

} // namespace PYXRuntime
