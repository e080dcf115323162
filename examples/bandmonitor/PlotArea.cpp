// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#include "PlotArea.h"

#include "FrequencyAxis.h"
#include "SampleSource.h"
#include "SpectrumView.h"
#include "WaterfallView.h"

#include <algorithm>
#include <cmath>

namespace BandMonitor {
namespace {

constexpr double RangeBelowFloor = 10; // in dB
constexpr double RangeStep = 10;       // in dB

} // namespace

PlotArea::PlotArea(QWidget *parent)
    : QSplitter(Qt::Vertical, parent)
    , m_axis(new FrequencyAxis(this))
    , m_spectrumView(new SpectrumView(m_axis))
    , m_waterfallView(new WaterfallView(m_axis))
{
    addWidget(m_spectrumView);
    addWidget(m_waterfallView);
    setChildrenCollapsible(false);
}

void PlotArea::reset(const SampleSource &source)
{
    m_axis->setBand(source.isComplex() ? -source.sampleRate() / 2 : 0, source.sampleRate() / 2);
    m_levelRange = {};
    m_spectrumView->clear();
    m_waterfallView->clear();
}

void PlotArea::addSpectrum(const struSpectrum &spectrum, const SignalDetector &detector)
{
    m_spectrumView->setSpectrum(spectrum, detector.threshold());
    m_waterfallView->addSpectrum(spectrum);
    // The range follows the noise in steps, so that it does not jump about.
    const double wanted = detector.noiseFloor() - RangeBelowFloor;
    if (std::abs(m_levelRange.low - wanted) > RangeStep) {
        m_levelRange.low = std::clamp(std::round(wanted / RangeStep) * RangeStep, -150.0, -20.0);
        m_spectrumView->setLevelRange(m_levelRange);
        m_waterfallView->setLevelRange(m_levelRange);
    }
}

void PlotArea::setDetections(const std::vector<struDetection> &detections)
{
    m_spectrumView->setDetections(detections);
}

void PlotArea::setSelected(int id)
{
    m_spectrumView->setSelected(id);
}

void PlotArea::showBand()
{
    m_axis->showBand();
}

} // namespace BandMonitor
