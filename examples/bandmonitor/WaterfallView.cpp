// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#include "WaterfallView.h"

#include "Scale.h"

#include <QtGui/QPainter>

#include <algorithm>
#include <cmath>
#include <cstring>

namespace BandMonitor {
namespace {

constexpr double LineHeight = 2; // in pixels
constexpr std::size_t MaximumLines = 1000;
constexpr double TimeLabelSpacing = 2.0; // in heights of the text

} // namespace

WaterfallView::WaterfallView(FrequencyAxis *axis, QWidget *parent)
    : PlotView(axis, parent)
{
    connect(axis, &FrequencyAxis::si_changed, this, [this] { m_image = {}; });
}

void WaterfallView::addSpectrum(const struSpectrum &spectrum)
{
    struLine line;
    line.time = spectrum.time;
    line.levels.reserve(int(spectrum.power.size()));
    for (const float power : spectrum.power)
        line.levels += char(levelByte(levelOfPower(double(power))));
    m_firstFrequency = spectrum.firstFrequency;
    m_binWidth = spectrum.binWidth;
    m_lines.push_front(std::move(line));
    if (m_lines.size() > MaximumLines)
        m_lines.pop_back();
    if (!m_image.isNull())
        _scrollImage();
    update();
}

void WaterfallView::setLevelRange(const struLevelRange &range)
{
    m_range = range;
    m_image.setColorTable(colourTable(range));
    update();
}

void WaterfallView::clear()
{
    m_lines.clear();
    m_image = {};
    update();
}

void WaterfallView::_makeImage()
{
    const QRectF plot = plotRect();
    const QSize size(int(std::round(plot.width() * devicePixelRatioF())),
                     int(std::ceil(plot.height() / LineHeight)));
    if (m_image.size() == size)
        return;
    m_image = QImage(size, QImage::Format_Indexed8);
    m_image.setColorTable(colourTable(m_range));
    m_image.fill(0);
    for (int y = 0; y < std::min(size.height(), int(m_lines.size())); ++y)
        _drawLine(y, m_lines[std::size_t(y)]);
}

void WaterfallView::_scrollImage()
{
    const int stride = m_image.bytesPerLine();
    uchar *const pixels = m_image.bits();
    std::memmove(pixels + stride, pixels, std::size_t(stride) * std::size_t(m_image.height() - 1));
    _drawLine(0, m_lines.front());
}

/** Each pixel shows the strongest of the bins that fall into it. */
void WaterfallView::_drawLine(int y, const struLine &line)
{
    uchar *const pixels = m_image.scanLine(y);
    const int bins = line.levels.size();
    const double binsPerPixel = (axis().high() - axis().low()) / m_image.width() / m_binWidth;
    const double start = (axis().low() - m_firstFrequency) / m_binWidth + 0.5;
    for (int x = 0; x < m_image.width(); ++x) {
        const int first = std::clamp(int(std::floor(start + x * binsPerPixel)), 0, bins - 1);
        const int last = std::clamp(int(std::floor(start + (x + 1) * binsPerPixel)), first + 1, bins);
        const auto *const levels = reinterpret_cast<const uchar *>(line.levels.constData());
        pixels[x] = *std::max_element(levels + first, levels + last);
    }
}

void WaterfallView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setFont(labelFont());
    const QRectF plot = plotRect();
    const QColor gridColour =
        mixed(palette().color(QPalette::Window), palette().color(QPalette::WindowText), 0.4);
    axis().paint(painter, plot, gridColour, textColour());
    _paintTimeAxis(painter, plot, gridColour);

    painter.setClipRect(plot);
    painter.fillRect(plot, levelColour(0));
    if (m_lines.empty())
        return;
    _makeImage();
    painter.drawImage(QRectF(plot.left(), plot.top(), plot.width(), m_image.height() * LineHeight), m_image);
}

void WaterfallView::_paintTimeAxis(QPainter &painter, const QRectF &plot, const QColor &gridColour) const
{
    paintValueTitle(painter, tr("min:s"));
    if (m_lines.size() < 2)
        return;
    const double newest = m_lines[0].time;
    const double timePerPixel = (newest - m_lines[1].time) / LineHeight;
    const double span = timePerPixel * plot.height();
    const double labelHeight = TimeLabelSpacing * QFontMetricsF(painter.font()).height();
    const double step = std::max(niceStep(span, int(plot.height() / labelHeight)), 1.0);
    for (const double time : ticks(std::max(newest - span, 0.0), newest, step)) {
        const auto seconds = std::lround(time);
        const QString label =
            QStringLiteral("%1:%2").arg(seconds / 60).arg(seconds % 60, 2, 10, QLatin1Char('0'));
        paintValueTick(painter, plot.top() + (newest - time) / timePerPixel, label, gridColour);
    }
}

} // namespace BandMonitor
