// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#include "FrequencyAxis.h"

#include "Scale.h"

#include <QtCore/QLocale>
#include <QtGui/QPainter>

#include <algorithm>
#include <cmath>

namespace BandMonitor {
namespace {

// The narrowest part of the band that can be zoomed to.
constexpr double NarrowestShare = 1.0 / 200;
constexpr int LabelGap = 24; // in pixels
constexpr int TickLength = 4;

/** What frequencies are divided by for their labels. */
struct struUnit
{
    double size;
    QString name;
};

struUnit unitFor(double frequency)
{
    if (frequency >= 1e6)
        return {1e6, QStringLiteral("MHz")};
    if (frequency >= 1e3)
        return {1e3, QStringLiteral("kHz")};
    return {1, QStringLiteral("Hz")};
}

} // namespace

void FrequencyAxis::setBand(double low, double high)
{
    // Equal bands come from equal sample rates: no rounding is involved.
    if (low == m_bandLow && high == m_bandHigh)
        return;
    m_bandLow = low;
    m_bandHigh = high;
    showBand();
}

void FrequencyAxis::showBand()
{
    _show(m_bandLow, m_bandHigh);
}

void FrequencyAxis::zoom(double factor, double frequency)
{
    const double band = m_bandHigh - m_bandLow;
    const double span = m_high - m_low;
    factor = std::clamp(factor, NarrowestShare * band / span, band / span);
    const double low = frequency - (frequency - m_low) * factor;
    _show(low, low + span * factor);
}

void FrequencyAxis::move(double distance)
{
    _show(m_low + distance, m_high + distance);
}

void FrequencyAxis::_show(double low, double high)
{
    const double span = high - low;
    m_low = std::clamp(low, m_bandLow, std::max(m_bandHigh - span, m_bandLow));
    m_high = std::min(m_low + span, m_bandHigh);
    Q_EMIT si_changed();
}

double FrequencyAxis::position(double frequency, const QRectF &plot) const
{
    return plot.left() + (frequency - m_low) / (m_high - m_low) * plot.width();
}

double FrequencyAxis::frequencyAt(double position, const QRectF &plot) const
{
    return m_low + (position - plot.left()) / plot.width() * (m_high - m_low);
}

void FrequencyAxis::paint(QPainter &painter, const QRectF &plot, const QColor &gridColour,
                          const QColor &textColour) const
{
    const QFontMetricsF metrics(painter.font());
    const struUnit unit = unitFor(std::max(std::abs(m_low), std::abs(m_high)));
    const double labelWidth = metrics.horizontalAdvance(QStringLiteral("-00.00")) + LabelGap;
    const double step = niceStep((m_high - m_low) / unit.size, int(plot.width() / labelWidth));
    const int decimals = std::max(0, -int(std::floor(std::log10(step) + 1e-9)));
    const double textTop = plot.bottom() + TickLength + 1;

    for (const double value : ticks(m_low / unit.size, m_high / unit.size, step)) {
        const double x = sharp(painter, std::min(position(value * unit.size, plot), plot.right() - 1));
        painter.setPen(QPen(gridColour, 0));
        painter.drawLine(QPointF(x, plot.top()), QPointF(x, plot.bottom() + TickLength));
        painter.setPen(textColour);
        painter.drawText(QRectF(x - labelWidth / 2, textTop, labelWidth, metrics.height()), Qt::AlignCenter,
                         QLocale().toString(value, 'f', decimals));
    }
    painter.drawText(QRectF(0, textTop,
                            plot.left() - metrics.horizontalAdvance(QStringLiteral("-00.0")) / 2 - 4,
                            metrics.height()),
                     Qt::AlignRight | Qt::AlignVCenter, unit.name);
}

} // namespace BandMonitor
