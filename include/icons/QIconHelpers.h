// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "pyxruntime_export.h"

#include <QtCore/QFlags>
#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QRectF>
#include <QtGui/QIcon>

namespace PYXRuntime {

/** Regions of an icon, and how full they are. The GUI thread only. */
class PYXRUNTIME_EXPORT QIconHelpers final
{
    Q_GADGET
public:
    QIconHelpers() = delete;

    /** Where in an icon an overlay may lie. */
    enum eOverlayRegionFlag {
        ekOverlayRegion_None = 0x0,
        ekOverlayRegion_BottomRight = 0x1,
        ekOverlayRegion_TopRight = 0x2,
        ekOverlayRegion_BottomLeft = 0x4,
        ekOverlayRegion_TopLeft = 0x8,
        ekOverlayRegion_Center = 0x10,
        ekOverlayRegion_Corners = 0xF
    };
    Q_DECLARE_FLAGS(eOverlayRegionFlags, eOverlayRegionFlag)
    Q_FLAG(eOverlayRegionFlags)

    /** The single flags that are set, in the order of their values. */
    static QList<eOverlayRegionFlag> regions(eOverlayRegionFlags flags);

    /**
     * The square of @p scale of the icon's side in that region, in an icon whose side is 1.
     * @param scale bounded to 0...1
     */
    static QRectF regionRect(eOverlayRegionFlag region, qreal scale);

    /**
     * The region among @p candidates where the icon draws least; of equal ones the first in the order of
     * regions(). The bottom right one where there is no candidate.
     */
    static eOverlayRegionFlag emptiestRegion(const QIcon &icon, eOverlayRegionFlags candidates, qreal scale);
};

Q_DECLARE_OPERATORS_FOR_FLAGS(QIconHelpers::eOverlayRegionFlags)

} // namespace PYXRuntime
