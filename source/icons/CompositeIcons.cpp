// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "CompositeIcons.h"

#include "CompositeIconEngine.h"

#include <memory>

namespace PYXRuntime {

QIcon layeredIcon(const QList<struCompositeIconLayer> &layers, const QList<struModeState> &modeStates)
{
    auto engine = std::make_unique<CompositeIconEngine>(layers, modeStates);
    return engine->isNull() ? QIcon() : QIcon(engine.release());
}

QIcon slicedIcon(const QIcon &icon, const QList<struModeState> &modeStates)
{
    QList<struIconSlice> slices;
    for (const struModeState &modeState : modeStates)
        slices += {icon, modeState};
    return interleavedIcon(slices);
}

QIcon interleavedIcon(const QList<struIconSlice> &slices)
{
    QList<struCompositeIconLayer> layers;
    QList<struModeState> modeStates;
    for (const struIconSlice &slice : slices) {
        if (slice.icon.isNull() || modeStates.contains(slice.modeState))
            continue;
        struCompositeIconLayer layer;
        layer.icon = slice.icon;
        layer.shownIn = {slice.modeState};
        layers += layer;
        modeStates += slice.modeState;
    }
    return layeredIcon(layers, modeStates);
}

} // namespace PYXRuntime
