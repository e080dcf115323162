// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "ModeStateIconEngine.h"

namespace PYXRuntime {

/** Paints icons over each other, anew for each size, so that it is as sharp as they are. */
class CompositeIconEngine final : public ModeStateIconEngine
{
public:
    /**
     * @param layers with their icons; empty ones are left out
     * @param modeStates those that are painted, the others being derived; empty: all
     */
    explicit CompositeIconEngine(const QList<struCompositeIconLayer> &layers,
                                 const QList<struModeState> &modeStates = {});

    QIconEngine *clone() const override;

protected:
    bool draws(const struModeState &modeState) const override;
    QSize drawnSize(const QSize &size, const struModeState &modeState) const override;
    bool holds(const QSize &size, const struModeState &modeState) const override;
    QPixmap draw(const QSize &size, const struModeState &modeState) const override;
    QList<QSize> sizes(const struModeState &modeState) const override;

private:
    CompositeIconEngine(const CompositeIconEngine &) = default;

    QList<struCompositeIconLayer> m_layers;
    QList<struModeState> m_modeStates;
    qreal m_ratio; ///< of the device pixels that the sizes of the icons are known in
};

} // namespace PYXRuntime
