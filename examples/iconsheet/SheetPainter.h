// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "IconEntry.h"

#include <QtCore/QSize>
#include <QtGui/QFont>

class QPainter;
class QRect;

namespace IconSheet {

enum eGround { ekGround_Both, ekGround_Light, ekGround_Dark };

/** Lays icons out in rows of cells and paints them: each in four sizes on its ground, with its name. */
class SheetPainter final
{
public:
    void setEntries(const QVector<struIconEntry> &entries) { m_entries = entries; }
    void setGround(eGround ground) { m_ground = ground; }

    /** Size of one cell, of which each has the space between the cells to its right and below. */
    QSize cellSize() const;
    /** Extent of the sheet with so many cells in a row. */
    QSize sheetSize(int columns) const;
    int columnsFor(int width) const;
    /** The cell of this entry. */
    QRect cell(int index, int columns) const;
    /** Paints what of the sheet is in the rectangle. */
    void paint(QPainter *painter, int columns, const QRect &visible) const;

private:
    QFont _nameFont() const;
    int _groundCount() const;
    void _paintCell(QPainter *painter, const struIconEntry &entry, const QRect &cell) const;

    QVector<struIconEntry> m_entries;
    eGround m_ground = ekGround_Both;
};

} // namespace IconSheet
