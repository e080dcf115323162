// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#include "SpectrumView.h"

#include "Scale.h"
#include "Units.h"

#include <QtGui/QLinearGradient>
#include <QtGui/QPainter>

#include <algorithm>
#include <cmath>

namespace BandMonitor {
namespace {

constexpr double ColourStripWidth = 6;
constexpr double LabelPadding = 4;
constexpr int LabelRows = 2;
constexpr double LevelLabelSpacing = 1.3; // in heights of the text
// Blue and orange are told apart by nearly everybody, on light and on dark ground.
constexpr QRgb CurveOnLight = qRgb(0x1f, 0x6f, 0xb5);
constexpr QRgb CurveOnDark = qRgb(0x6c, 0xb8, 0xf5);
constexpr QRgb MarkOnLight = qRgb(0xc0, 0x5a, 0x00);
constexpr QRgb MarkOnDark = qRgb(0xff, 0xa9, 0x4d);

bool isDark(const QPalette &palette)
{
    return palette.color(QPalette::Base).lightness() < 128;
}

QColor translucent(QColor colour, double alpha)
{
    colour.setAlphaF(alpha);
    return colour;
}

} // namespace

void SpectrumView::setSpectrum(const struSpectrum &spectrum, double threshold)
{
    m_spectrum = spectrum;
    m_threshold = threshold;
    update();
}

void SpectrumView::setDetections(const std::vector<struDetection> &detections)
{
    m_detections = detections;
    // The strongest come first: their labels have the first choice of places.
    std::stable_sort(m_detections.begin(), m_detections.end(),
                     [](const auto &a, const auto &b) { return a.level > b.level; });
    update();
}

void SpectrumView::setSelected(int id)
{
    m_selectedId = id;
    update();
}

void SpectrumView::setLevelRange(const struLevelRange &range)
{
    m_range = range;
    update();
}

void SpectrumView::clear()
{
    m_spectrum = {};
    m_detections.clear();
    update();
}

double SpectrumView::_levelPosition(double level, const QRectF &plot) const
{
    return plot.bottom() - std::clamp(m_range.share(level), -0.1, 1.1) * plot.height();
}

void SpectrumView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setFont(labelFont());
    const QRectF plot = plotRect();
    const QColor ground = palette().color(QPalette::Base);
    const QColor gridColour = mixed(ground, palette().color(QPalette::Text), 0.14);
    painter.fillRect(plot, ground);
    _paintLevelAxis(painter, plot, gridColour);
    axis().paint(painter, plot, gridColour, textColour());

    painter.setClipRect(plot);
    painter.setRenderHint(QPainter::Antialiasing);
    if (!m_spectrum.power.empty()) {
        _paintThreshold(painter, plot);
        _paintCurve(painter, plot);
    }
    _paintDetections(painter, plot);
}

void SpectrumView::_paintLevelAxis(QPainter &painter, const QRectF &plot, const QColor &gridColour) const
{
    const double height = QFontMetricsF(painter.font()).height();
    const double step =
        niceStep(m_range.high - m_range.low, int(plot.height() / (LevelLabelSpacing * height)));
    for (const double level : ticks(m_range.low, m_range.high, step))
        paintValueTick(painter, _levelPosition(level, plot), QString::number(level), gridColour);
    paintValueTitle(painter, QStringLiteral("dBFS"));

    QLinearGradient colours(plot.bottomLeft(), plot.topLeft());
    for (int i = 0; i <= 10; ++i)
        colours.setColorAt(i / 10.0, levelColour(i / 10.0));
    painter.fillRect(QRectF(plot.left(), plot.top(), ColourStripWidth, plot.height()), colours);
}

void SpectrumView::_paintThreshold(QPainter &painter, const QRectF &plot) const
{
    const double y = sharp(painter, _levelPosition(m_threshold, plot));
    painter.setPen(
        QPen(mixed(palette().color(QPalette::Base), palette().color(QPalette::Text), 0.5), 0, Qt::DashLine));
    painter.drawLine(QPointF(plot.left(), y), QPointF(plot.right(), y));
}

/** One point for each column of pixels, at its strongest bin: no carrier is lost between two pixels. */
QPolygonF SpectrumView::_curve(const QRectF &plot) const
{
    QPolygonF curve;
    double column = -1;
    for (std::size_t bin = 0; bin < m_spectrum.power.size(); ++bin) {
        const double x = axis().position(m_spectrum.frequency(double(bin)), plot);
        const double y = _levelPosition(levelOfPower(double(m_spectrum.power[bin])), plot);
        const double binColumn = std::floor(x * devicePixelRatioF());
        if (curve.isEmpty() || binColumn != column)
            curve += QPointF(x, y);
        else if (y < curve.last().y())
            curve.last().setY(y);
        column = binColumn;
    }
    return curve;
}

void SpectrumView::_paintCurve(QPainter &painter, const QRectF &plot) const
{
    const QPolygonF curve = _curve(plot);
    const QColor colour = isDark(palette()) ? CurveOnDark : CurveOnLight;
    QPolygonF area = curve;
    area += QPointF(curve.last().x(), plot.bottom());
    area += QPointF(curve.first().x(), plot.bottom());
    painter.setPen(Qt::NoPen);
    painter.setBrush(translucent(colour, 0.15));
    painter.drawPolygon(area);
    painter.setPen(QPen(colour, 1.2));
    painter.drawPolyline(curve);
}

/** Finds a place above each signal, in the first of the rows where it hides no other label. */
std::vector<SpectrumView::struLabel> SpectrumView::_placeLabels(const QFontMetricsF &metrics,
                                                                const QRectF &plot) const
{
    std::vector<struLabel> labels;
    for (const struDetection &detection : m_detections) {
        const double x = axis().position(detection.frequency, plot);
        if (!_isShown(detection) || x < plot.left() || x > plot.right())
            continue;
        const QString text = frequencyText(detection.frequency);
        const double width = metrics.horizontalAdvance(text) + 2 * LabelPadding;
        const double left = std::clamp(x - width / 2, plot.left() + ColourStripWidth, plot.right() - width);
        QRectF place(left, plot.top() + 2, width, metrics.height());
        const auto isTaken = [&](const struLabel &other) { return other.place.intersects(place); };
        for (int row = 0; row < LabelRows; ++row) {
            if (std::none_of(labels.begin(), labels.end(), isTaken)) {
                labels.push_back({place, text});
                break;
            }
            place.translate(0, place.height());
        }
    }
    return labels;
}

bool SpectrumView::_isShown(const struDetection &detection) const
{
    return detection.bOnAir || detection.id == m_selectedId;
}

void SpectrumView::_paintDetections(QPainter &painter, const QRectF &plot) const
{
    const std::vector<struLabel> labels = _placeLabels(QFontMetricsF(painter.font()), plot);
    double top = plot.top();
    for (const struLabel &label : labels)
        top = std::max(top, label.place.bottom() + 2);
    for (const struDetection &detection : m_detections) {
        if (_isShown(detection))
            _paintBand(painter, QRectF(QPointF(plot.left(), top), plot.bottomRight()), detection);
    }
    painter.setPen(isDark(palette()) ? MarkOnDark : MarkOnLight);
    for (const struLabel &label : labels)
        painter.drawText(label.place, Qt::AlignCenter, label.text);
}

void SpectrumView::_paintBand(QPainter &painter, const QRectF &area, const struDetection &detection) const
{
    const QColor colour = isDark(palette()) ? MarkOnDark : MarkOnLight;
    const double left = axis().position(detection.frequency - detection.bandwidth / 2, area);
    const double right = axis().position(detection.frequency + detection.bandwidth / 2, area);
    const double width = std::max(right - left, 3.0);
    const QRectF band((left + right - width) / 2, area.top(), width, area.height());
    const bool bSelected = detection.id == m_selectedId;
    painter.fillRect(band, translucent(colour, bSelected ? 0.45 : 0.18));
    painter.fillRect(QRectF(band.topLeft(), QSizeF(width, 2)), colour);
}

} // namespace BandMonitor
