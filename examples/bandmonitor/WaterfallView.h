// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "PlotView.h"
#include "Spectrum.h"

#include <QtCore/QByteArray>
#include <QtGui/QImage>

#include <deque>

namespace BandMonitor {

/** The spectra of the last time as coloured lines, the newest on top. */
class WaterfallView final : public PlotView
{
    Q_OBJECT
public:
    WaterfallView(FrequencyAxis *axis, QWidget *parent = nullptr);

    void addSpectrum(const struSpectrum &spectrum);
    void setLevelRange(const struLevelRange &range);
    void clear();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    struct struLine
    {
        QByteArray levels; ///< a level byte for each bin
        double time = 0;   ///< in seconds
    };

    void _makeImage();
    void _scrollImage();
    void _drawLine(int y, const struLine &line);
    void _paintTimeAxis(QPainter &painter, const QRectF &plot, const QColor &gridColour) const;

    double m_firstFrequency = 0;
    double m_binWidth = 0;
    struLevelRange m_range;
    std::deque<struLine> m_lines; ///< the newest first
    QImage m_image;               ///< as many device pixels wide as the plot, one row for each line
};

} // namespace BandMonitor
