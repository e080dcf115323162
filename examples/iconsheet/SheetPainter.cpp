// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#include "SheetPainter.h"

#include <QtGui/QFontMetrics>
#include <QtGui/QPainter>

#include <algorithm>
#include <array>

namespace IconSheet {
namespace {

constexpr std::array<int, 4> Extents{48, 32, 24, 16};
constexpr int Margin = 8;
constexpr int Gap = 8;
constexpr int BandHeight = 48 + 2 * Margin;
constexpr int NameLines = 2;
constexpr int NamePixels = 11;

// The grounds that the palette of the icons has been chosen for.
const QColor LightGround(0xf0, 0xf0, 0xf0);
const QColor DarkGround(0x20, 0x21, 0x24);
const QColor SheetGround(Qt::white);
const QColor NameColour(0x20, 0x21, 0x24);

int bandWidth()
{
    int width = 2 * Margin + Gap * (int(Extents.size()) - 1);
    for (const int extent : Extents)
        width += extent;
    return width;
}

void paintBand(QPainter *painter, const struIconEntry &entry, const QRect &band, const QColor &ground)
{
    painter->fillRect(band, ground);
    int x = band.left() + Margin;
    for (const int extent : Extents) {
        const QRect place(x, band.center().y() + 1 - extent / 2, extent, extent);
        entry.icon.paint(painter, place, Qt::AlignCenter, QIcon::Normal, entry.state);
        x += extent + Gap;
    }
}

/** Long names are broken between the words they are made of. */
QString breakable(const QString &name)
{
    const QChar opportunity(0x200b); // a space without width
    QString text;
    for (int i = 0; i < name.size(); ++i) {
        const bool bWordBegins = i > 0 && name.at(i).isUpper() && name.at(i - 1).isLower();
        if (bWordBegins || (i > 0 && name.at(i - 1) == QLatin1Char('_')))
            text += opportunity;
        text += name.at(i);
    }
    return text;
}

} // namespace

QFont SheetPainter::_nameFont() const
{
    QFont font;
    font.setPixelSize(NamePixels);
    return font;
}

int SheetPainter::_groundCount() const
{
    return m_ground == ekGround_Both ? 2 : 1;
}

QSize SheetPainter::cellSize() const
{
    const int nameHeight = NameLines * QFontMetrics(_nameFont()).lineSpacing();
    return {bandWidth() + Gap, _groundCount() * BandHeight + nameHeight + Gap};
}

QSize SheetPainter::sheetSize(int columns) const
{
    const int rows = (m_entries.size() + columns - 1) / columns;
    const QSize cell = cellSize();
    return {Gap + columns * cell.width(), Gap + rows * cell.height()};
}

int SheetPainter::columnsFor(int width) const
{
    return std::max(1, (width - Gap) / cellSize().width());
}

QRect SheetPainter::cell(int index, int columns) const
{
    const QSize size = cellSize();
    return {QPoint(Gap + index % columns * size.width(), Gap + index / columns * size.height()),
            size - QSize(Gap, Gap)};
}

void SheetPainter::paint(QPainter *painter, int columns, const QRect &visible) const
{
    painter->fillRect(visible, SheetGround);
    for (int i = 0; i < m_entries.size(); ++i) {
        const QRect place = cell(i, columns);
        if (place.intersects(visible))
            _paintCell(painter, m_entries.at(i), place);
    }
}

void SheetPainter::_paintCell(QPainter *painter, const struIconEntry &entry, const QRect &cell) const
{
    QRect band(cell.topLeft(), QSize(cell.width(), BandHeight));
    if (m_ground != ekGround_Dark) {
        paintBand(painter, entry, band, LightGround);
        band.translate(0, BandHeight);
    }
    if (m_ground != ekGround_Light) {
        paintBand(painter, entry, band, DarkGround);
        band.translate(0, BandHeight);
    }
    painter->setFont(_nameFont());
    painter->setPen(NameColour);
    painter->drawText(QRect(band.topLeft(), cell.bottomRight()),
                      Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap, breakable(entry.name));
}

} // namespace IconSheet
