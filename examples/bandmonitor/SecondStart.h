// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

namespace PYXRuntime {
class PYXAppInternalsSimple;
class PYXSingleInstance;
} // namespace PYXRuntime

namespace BandMonitor {

class MainWindow;

/**
 * From now on the window comes to the front when the program is started once more, switches modes as that
 * start says, and opens its recording.
 */
void takeSecondStarts(PYXRuntime::PYXSingleInstance *instance, PYXRuntime::PYXAppInternalsSimple *internals,
                      MainWindow *window);

} // namespace BandMonitor
