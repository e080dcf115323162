// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#include "PlotView.h"

#include "Scale.h"

#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>
#include <QtGui/QWheelEvent>

#include <cmath>

namespace BandMonitor {
namespace {

constexpr double Margin = 14;
constexpr double TickLength = 4;
constexpr double ZoomPerNotch = 0.8;
constexpr double WheelNotch = 120; // in eighths of a degree

} // namespace

PlotView::PlotView(FrequencyAxis *axis, QWidget *parent)
    : QWidget(parent)
    , m_axis(axis)
{
    connect(axis, &FrequencyAxis::si_changed, this, [this] { update(); });
}

void PlotView::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange || event->type() == QEvent::LocaleChange)
        update();
    QWidget::changeEvent(event);
}

QSize PlotView::minimumSizeHint() const
{
    return {320, 110};
}

QColor PlotView::textColour() const
{
    return mixed(palette().color(QPalette::Window), palette().color(QPalette::WindowText), 0.75);
}

QRectF PlotView::plotRect() const
{
    const QFontMetricsF metrics(labelFont());
    const double left =
        metrics.height() + metrics.horizontalAdvance(QStringLiteral("-0000")) + 2 * TickLength + 6;
    const double bottom = metrics.height() + TickLength + 3;
    const QRectF plot = QRectF(rect()).adjusted(left, Margin, -Margin, -bottom);
    const double ratio = devicePixelRatioF();
    const auto snap = [ratio](double coordinate) { return std::round(coordinate * ratio) / ratio; };
    return {QPointF(snap(plot.left()), snap(plot.top())), QPointF(snap(plot.right()), snap(plot.bottom()))};
}

void PlotView::paintValueTick(QPainter &painter, double y, const QString &label,
                              const QColor &gridColour) const
{
    const QRectF plot = plotRect();
    const double height = QFontMetricsF(painter.font()).height();
    const double lineY = sharp(painter, std::min(y, plot.bottom() - 1));
    painter.setPen(QPen(gridColour, 0));
    painter.drawLine(QPointF(plot.left() - TickLength, lineY), QPointF(plot.right(), lineY));
    painter.setPen(textColour());
    painter.drawText(QRectF(0, y - height / 2, plot.left() - 2 * TickLength, height),
                     Qt::AlignRight | Qt::AlignVCenter, label);
}

void PlotView::paintValueTitle(QPainter &painter, const QString &title) const
{
    const QRectF plot = plotRect();
    const double height = QFontMetricsF(painter.font()).height();
    painter.save();
    painter.setPen(textColour());
    painter.translate(4, plot.center().y());
    painter.rotate(-90);
    painter.drawText(QRectF(-plot.height() / 2, 0, plot.height(), height), Qt::AlignCenter, title);
    painter.restore();
}

void PlotView::wheelEvent(QWheelEvent *event)
{
    const double notches = event->angleDelta().y() / WheelNotch;
    m_axis->zoom(std::pow(ZoomPerNotch, notches), m_axis->frequencyAt(event->position().x(), plotRect()));
    event->accept();
}

void PlotView::mousePressEvent(QMouseEvent *event)
{
    m_dragX = event->localPos().x();
}

void PlotView::mouseMoveEvent(QMouseEvent *event)
{
    const QRectF plot = plotRect();
    const double x = event->localPos().x();
    m_axis->move(m_axis->frequencyAt(m_dragX, plot) - m_axis->frequencyAt(x, plot));
    m_dragX = x;
}

void PlotView::mouseDoubleClickEvent(QMouseEvent *)
{
    m_axis->showBand();
}

} // namespace BandMonitor
