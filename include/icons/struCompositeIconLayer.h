// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtCore/QRectF>
#include <QtGui/QIcon>

namespace PYXRuntime {

/** A mode and a state of an icon. */
struct struModeState
{
    QIcon::Mode mode = QIcon::Normal;
    QIcon::State state = QIcon::Off;
};

inline bool operator==(const struModeState &a, const struModeState &b)
{
    return a.mode == b.mode && a.state == b.state;
}

inline uint qHash(const struModeState &value, uint seed = 0)
{
    return ::qHash((uint(value.mode) << 16) | uint(value.state), seed);
}

/** How an icon id looks in a mode and a state. */
struct struIconIdModeState
{
    uint iconId = 0;
    QIcon::Mode mode = QIcon::Normal;
    QIcon::State state = QIcon::Off;
};

/** One layer of a composite icon. Holds an icon, so it belongs to the GUI thread. */
struct struCompositeIconLayer
{
    uint iconId = 0; ///< the registered icon; only where @ref icon is empty
    QIcon icon{};
    QRectF area{0, 0, 1, 1}; ///< where the layer is drawn, centred; the whole icon is the unit square
    qreal opacity = 1;       ///< 0...1
    /** How far around the layer's shape what lies below is erased, in sides of the icon; 0: nothing is. */
    qreal clearance = 0;
    /** The modes and states in which the layer is drawn; empty: all. */
    QList<struModeState> shownIn{};
    /** The mode and state in which the layer is drawn where the icon is in another; the same if not here. */
    QHash<struModeState, struModeState> drawnAs{};
};

} // namespace PYXRuntime
