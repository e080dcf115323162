// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

class QWidget;

namespace PYXRuntime::WindowPlacement {

/** Makes the window no larger than its screen, and brings it there as a whole. */
void clampToScreen(QWidget &window);

/** Centres the window on its parent's window, or else on its screen. */
void centre(QWidget &window);

} // namespace PYXRuntime::WindowPlacement
