// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#include "SymbolIcon.h"

#include <QtGui/QGuiApplication>
#include <QtGui/QIconEngine>
#include <QtGui/QPainter>
#include <QtGui/QPainterPath>
#include <QtGui/QPalette>

#include <cmath>

namespace BandMonitor {
namespace {

constexpr double GridSize = 24; // what the outlines are drawn on

QPainterPath wave()
{
    QPainterPath path(QPointF(2, 12));
    for (int x = 3; x <= 22; ++x)
        path.lineTo(x, 12 - 8 * std::sin((x - 2) * 0.63) * std::exp(-std::pow((x - 12) / 6.0, 2)));
    return path;
}

QPainterPath outline(eSymbol symbol)
{
    QPainterPath path;
    switch (symbol) {
    case ekSymbol_Open:
        path.addPolygon(
            QPolygonF({{3, 19}, {3, 5}, {9, 5}, {11, 8}, {21, 8}, {21, 19}, {3, 19}, {6, 12}, {21, 12}}));
        return path;
    case ekSymbol_OwnBand:
        return wave();
    case ekSymbol_Play:
        path.addPolygon(QPolygonF({{7, 5}, {19, 12}, {7, 19}, {7, 5}}));
        return path;
    case ekSymbol_Record:
        path.addEllipse(QPointF(12, 12), 7, 7);
        return path;
    default:
        path.addRect(6, 5, 4, 14);
        path.addRect(14, 5, 4, 14);
        return path;
    }
}

class SymbolIconEngine final : public QIconEngine
{
public:
    explicit SymbolIconEngine(eSymbol symbol)
        : m_symbol(symbol)
    {}

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State) override
    {
        const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        const QColor colour = QGuiApplication::palette().color(group, QPalette::ButtonText);
        const bool bFilled =
            m_symbol == ekSymbol_Play || m_symbol == ekSymbol_Pause || m_symbol == ekSymbol_Record;
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(rect.topLeft());
        painter->scale(rect.width() / GridSize, rect.height() / GridSize);
        painter->setPen(QPen(colour, 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter->setBrush(bFilled ? QBrush(colour) : QBrush(Qt::NoBrush));
        painter->drawPath(outline(m_symbol));
        painter->restore();
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return pixmap;
    }

    QIconEngine *clone() const override { return new SymbolIconEngine(*this); }

private:
    eSymbol m_symbol;
};

} // namespace

QIcon symbolIcon(eSymbol symbol)
{
    return QIcon(new SymbolIconEngine(symbol));
}

} // namespace BandMonitor
