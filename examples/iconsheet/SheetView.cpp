// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#include "SheetView.h"

#include <QtGui/QPainter>
#include <QtGui/QPaintEvent>

namespace IconSheet {

SheetView::SheetView(QWidget *parent)
    : QWidget(parent)
{
    setMinimumWidth(m_sheet.sheetSize(1).width());
}

void SheetView::setEntries(const QVector<struIconEntry> &entries)
{
    m_sheet.setEntries(entries);
    _layOut();
}

void SheetView::setGround(eGround ground)
{
    m_sheet.setGround(ground);
    _layOut();
}

void SheetView::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    m_sheet.paint(&painter, m_sheet.columnsFor(width()), event->rect());
}

void SheetView::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    _layOut();
}

void SheetView::_layOut()
{
    setMinimumHeight(m_sheet.sheetSize(m_sheet.columnsFor(width())).height());
    update();
}

} // namespace IconSheet
