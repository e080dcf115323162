// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

class QWidget;

namespace BandMonitor {

/** Shows what this program is, and where its settings are. */
void showAboutBox(QWidget *parent);

} // namespace BandMonitor
