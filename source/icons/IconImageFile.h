// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QList>
#include <QtCore/QSharedPointer>
#include <QtCore/QSize>
#include <QtCore/QVector>
#include <QtGui/QImage>

class QSvgRenderer;

namespace PYXRuntime {

/** What one image file holds. */
struct struIconImageFile
{
    QVector<QImage> images;
    QSharedPointer<QSvgRenderer> drawing; ///< of an SVG, which can be rendered at other sizes
};

/** @param svgSizes in device pixels. Images that cannot be read or are unreasonably large are left out; so is
 * everything where there is no QGuiApplication to make pixmaps. */
struIconImageFile readIconImageFile(const QString &path, const QList<QSize> &svgSizes);

/** Of all screens. */
qreal highestScreenRatio();

/** Null for a size that is empty or unreasonably large. */
QImage renderIconDrawing(QSvgRenderer &drawing, const QSize &size);

} // namespace PYXRuntime
