// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "PlotView.h"
#include "SignalDetector.h"
#include "Spectrum.h"

#include <QtGui/QPolygonF>

#include <vector>

namespace BandMonitor {

/**
 * Level over frequency, with the detected signals marked. The strip beside the level axis shows the
 * colours that the waterfall has for the levels.
 */
class SpectrumView final : public PlotView
{
    Q_OBJECT
public:
    using PlotView::PlotView;

    void setSpectrum(const struSpectrum &spectrum, double threshold);
    void setDetections(const std::vector<struDetection> &detections);
    /** Stresses one signal; 0 for none. */
    void setSelected(int id);
    void setLevelRange(const struLevelRange &range);
    void clear();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    struct struLabel
    {
        QRectF place;
        QString text;
    };

    QPolygonF _curve(const QRectF &plot) const;
    double _levelPosition(double level, const QRectF &plot) const;
    void _paintLevelAxis(QPainter &painter, const QRectF &plot, const QColor &gridColour) const;
    void _paintThreshold(QPainter &painter, const QRectF &plot) const;
    void _paintCurve(QPainter &painter, const QRectF &plot) const;
    void _paintDetections(QPainter &painter, const QRectF &plot) const;
    void _paintBand(QPainter &painter, const QRectF &area, const struDetection &detection) const;
    std::vector<struLabel> _placeLabels(const QFontMetricsF &metrics, const QRectF &plot) const;
    bool _isShown(const struDetection &detection) const;

    struSpectrum m_spectrum;
    double m_threshold = 0;
    std::vector<struDetection> m_detections;
    int m_selectedId = 0;
    struLevelRange m_range;
};

} // namespace BandMonitor
