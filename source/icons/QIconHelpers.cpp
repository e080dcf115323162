// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "QIconHelpers.h"

#include <QtGui/QImage>
#include <QtGui/QPainter>

namespace PYXRuntime {
namespace {

constexpr int MeasuredSide = 48;

QImage measuredImage(const QIcon &icon)
{
    QImage image(MeasuredSide, MeasuredSide, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    icon.paint(&painter, image.rect());
    return image;
}

qint64 inkIn(const QImage &image, const QRectF &region)
{
    const QRect pixels = QRectF(region.topLeft() * MeasuredSide, region.size() * MeasuredSide).toRect();
    qint64 ink = 0;
    for (int y = pixels.top(); y <= pixels.bottom(); ++y) {
        for (int x = pixels.left(); x <= pixels.right(); ++x)
            ink += qAlpha(image.pixel(x, y));
    }
    return ink;
}

} // namespace

QList<QIconHelpers::eOverlayRegionFlag> QIconHelpers::regions(eOverlayRegionFlags flags)
{
    QList<eOverlayRegionFlag> found;
    for (const eOverlayRegionFlag region :
         {ekOverlayRegion_BottomRight, ekOverlayRegion_TopRight, ekOverlayRegion_BottomLeft,
          ekOverlayRegion_TopLeft, ekOverlayRegion_Center}) {
        if (flags.testFlag(region))
            found += region;
    }
    return found;
}

QRectF QIconHelpers::regionRect(eOverlayRegionFlag region, qreal scale)
{
    const qreal side = qBound(qreal(0), scale, qreal(1));
    const qreal rest = 1 - side;
    QPointF topLeft;
    if (region == ekOverlayRegion_Center)
        topLeft = {rest / 2, rest / 2};
    if (region == ekOverlayRegion_BottomRight || region == ekOverlayRegion_TopRight)
        topLeft.setX(rest);
    if (region == ekOverlayRegion_BottomRight || region == ekOverlayRegion_BottomLeft)
        topLeft.setY(rest);
    return {topLeft, QSizeF(side, side)};
}

QIconHelpers::eOverlayRegionFlag QIconHelpers::emptiestRegion(const QIcon &icon,
                                                              eOverlayRegionFlags candidates, qreal scale)
{
    const QList<eOverlayRegionFlag> regions = QIconHelpers::regions(candidates);
    if (regions.isEmpty())
        return ekOverlayRegion_BottomRight;
    const QImage image = measuredImage(icon);
    eOverlayRegionFlag emptiest = regions.first();
    qint64 leastInk = inkIn(image, regionRect(emptiest, scale));
    for (const eOverlayRegionFlag region : regions) {
        const qint64 ink = inkIn(image, regionRect(region, scale));
        if (ink < leastInk) {
            leastInk = ink;
            emptiest = region;
        }
    }
    return emptiest;
}

} // namespace PYXRuntime
