// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "ColourMap.h"
#include "FrequencyAxis.h"
#include "Scale.h"

#include <QtWidgets/QWidget>

namespace BandMonitor {

/**
 * A plot over the common frequency axis. The wheel zooms, dragging moves, a double click shows the whole
 * band again.
 */
class PlotView : public QWidget
{
    Q_OBJECT
public:
    PlotView(FrequencyAxis *axis, QWidget *parent = nullptr);

    QSize minimumSizeHint() const override;

protected:
    void changeEvent(QEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;

    const FrequencyAxis &axis() const { return *m_axis; }
    QFont labelFont() const { return smallerFont(font()); }
    /** Without the margins of the axes; its edges are those of device pixels. */
    QRectF plotRect() const;
    /** Draws one line of the grid at a height, with its label in the left margin. */
    void paintValueTick(QPainter &painter, double y, const QString &label, const QColor &gridColour) const;
    void paintValueTitle(QPainter &painter, const QString &title) const;
    QColor textColour() const;

private:
    FrequencyAxis *m_axis;
    double m_dragX = 0;
};

} // namespace BandMonitor
