// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "struCompositeIconLayer.h"

namespace PYXRuntime {

/** The layers painted over each other; empty where none of them has an icon. */
QIcon layeredIcon(const QList<struCompositeIconLayer> &layers, const QList<struModeState> &modeStates = {});

/** The icon without all modes and states but these. */
QIcon slicedIcon(const QIcon &icon, const QList<struModeState> &modeStates);

/** An icon for a mode and a state. */
struct struIconSlice
{
    QIcon icon;
    struModeState modeState;
};
QIcon interleavedIcon(const QList<struIconSlice> &slices);

} // namespace PYXRuntime
