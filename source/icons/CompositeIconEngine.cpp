// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "CompositeIconEngine.h"

#include "IconFileNames.h"
#include "IconImageFile.h"

#include <QtCore/QtMath>
#include <QtGui/QPainter>

#include <algorithm>

namespace PYXRuntime {
namespace {

/** In how many directions a shape is moved to make it grow. */
constexpr int Directions = 16;

bool isShown(const struCompositeIconLayer &layer, const struModeState &modeState)
{
    return layer.shownIn.isEmpty() || layer.shownIn.contains(modeState);
}

QRectF boundedArea(const QRectF &area)
{
    const bool bFinite =
        qIsFinite(area.x()) && qIsFinite(area.y()) && qIsFinite(area.width()) && qIsFinite(area.height());
    return bFinite ? area.intersected(QRectF(0, 0, 1, 1)) : QRectF();
}

QRect pixelsOf(const QRectF &area, const QSize &size)
{
    const QPoint topLeft(qRound(area.left() * size.width()), qRound(area.top() * size.height()));
    const QPoint end(qRound(area.right() * size.width()), qRound(area.bottom() * size.height()));
    return {topLeft, end - QPoint(1, 1)};
}

/** So large is the whole where the icon in the area has that size. */
QSize wholeSize(const QSize &size, const QRectF &area)
{
    constexpr qreal Largest = 1 << 14; // an area may be as small as it likes
    return {qRound(std::min(size.width() / area.width(), Largest)),
            qRound(std::min(size.height() / area.height(), Largest))};
}

QSize united(const QList<QSize> &sizes)
{
    QSize all(0, 0);
    for (const QSize &size : sizes)
        all = all.expandedTo(size);
    return all;
}

/** Empty for an icon that has any size. */
QSize largestSize(const QIcon &icon)
{
    QSize largest(0, 0);
    for (const struIconFileTag &tag : iconFileTags())
        largest = largest.expandedTo(united(icon.availableSizes(tag.modeState.mode, tag.modeState.state)));
    return largest;
}

QPixmap drawnAlone(const struCompositeIconLayer &layer, const QSize &size, const struModeState &modeState)
{
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    const struModeState drawnAs = layer.drawnAs.value(modeState, modeState);
    layer.icon.paint(&painter, pixelsOf(layer.area, size), Qt::AlignCenter, drawnAs.mode, drawnAs.state);
    return pixmap;
}

/** Erases the shape, grown by that many pixels. */
void erase(QPainter &painter, const QPixmap &shape, qreal margin)
{
    painter.save();
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.setCompositionMode(QPainter::CompositionMode_DestinationOut);
    painter.drawPixmap(0, 0, shape);
    for (int i = 0; i < Directions; ++i) {
        const qreal angle = 2 * M_PI * i / Directions;
        painter.drawPixmap(QPointF(margin * qCos(angle), margin * qSin(angle)), shape);
    }
    painter.restore();
}

} // namespace

CompositeIconEngine::CompositeIconEngine(const QList<struCompositeIconLayer> &layers,
                                         const QList<struModeState> &modeStates)
    : m_modeStates(modeStates)
    , m_ratio(highestScreenRatio())
{
    for (struCompositeIconLayer layer : layers) {
        layer.area = boundedArea(layer.area);
        if (!layer.icon.isNull() && !layer.area.isEmpty())
            m_layers += layer;
    }
}

QIconEngine *CompositeIconEngine::clone() const
{
    return new CompositeIconEngine(*this);
}

bool CompositeIconEngine::draws(const struModeState &modeState) const
{
    return !m_layers.isEmpty() && (m_modeStates.isEmpty() || m_modeStates.contains(modeState));
}

/** As large as the largest of the icons can be drawn in its area. */
QSize CompositeIconEngine::drawnSize(const QSize &size, const struModeState &modeState) const
{
    QSize bound(0, 0);
    for (const struCompositeIconLayer &layer : m_layers) {
        if (!isShown(layer, modeState))
            continue;
        const QSize largest = largestSize(layer.icon);
        if (largest.isEmpty())
            return size;
        bound = bound.expandedTo(wholeSize(largest, layer.area));
    }
    bound *= std::max(qreal(1), highestScreenRatio() / m_ratio);
    if (bound.isEmpty() || (size.width() <= bound.width() && size.height() <= bound.height()))
        return size;
    return bound.scaled(size.boundedTo(bound), Qt::KeepAspectRatio);
}

bool CompositeIconEngine::holds(const QSize &, const struModeState &) const
{
    return false;
}

QPixmap CompositeIconEngine::draw(const QSize &size, const struModeState &modeState) const
{
    const QSize drawn = drawnSize(size, modeState);
    QPixmap pixmap(drawn);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    for (const struCompositeIconLayer &layer : m_layers) {
        if (!isShown(layer, modeState))
            continue;
        const QPixmap shape = drawnAlone(layer, drawn, modeState);
        if (layer.clearance > 0)
            erase(painter, shape, std::min(layer.clearance, qreal(1)) * drawn.width());
        painter.setOpacity(qBound(qreal(0), layer.opacity, qreal(1)));
        painter.drawPixmap(0, 0, shape);
        painter.setOpacity(1);
    }
    return pixmap;
}

QList<QSize> CompositeIconEngine::sizes(const struModeState &modeState) const
{
    QList<QSize> all;
    for (const struCompositeIconLayer &layer : m_layers) {
        const struModeState drawnAs = layer.drawnAs.value(modeState, modeState);
        for (const QSize &size : layer.icon.availableSizes(drawnAs.mode, drawnAs.state)) {
            const QSize whole = wholeSize(size, layer.area);
            if (isShown(layer, modeState) && !all.contains(whole))
                all += whole;
        }
    }
    return all;
}

} // namespace PYXRuntime
