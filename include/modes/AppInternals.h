// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "pyxruntime_export.h"

#include <QtCore/QtGlobal>

/** @file
 * What the PYXIAppInternals on top of the broker says of the modes; no mode is on where there is none.
 * Main thread only.
 */
namespace PYXRuntime::appInternals {

PYXRUNTIME_EXPORT bool appIsInDebugMode();
PYXRUNTIME_EXPORT bool appIsInExpertMode();
/** Bits of PYXIAppInternals::eAppMode, and the application's own. */
PYXRUNTIME_EXPORT quint64 appModes();

} // namespace PYXRuntime::appInternals
