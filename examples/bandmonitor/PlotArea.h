// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "ColourMap.h"
#include "SignalDetector.h"

#include <QtWidgets/QSplitter>

#include <vector>

namespace BandMonitor {

class FrequencyAxis;
class SampleSource;
class SpectrumView;
class WaterfallView;

/** Spectrum and waterfall on one frequency axis, with levels that follow the noise. */
class PlotArea final : public QSplitter
{
    Q_OBJECT
public:
    explicit PlotArea(QWidget *parent = nullptr);

    /** Empty, with the band of the source. */
    void reset(const SampleSource &source);
    /** @param detector has processed the spectrum */
    void addSpectrum(const struSpectrum &spectrum, const SignalDetector &detector);
    void setDetections(const std::vector<struDetection> &detections);
    /** 0: none */
    void setSelected(int id);
    void showBand();

private:
    FrequencyAxis *m_axis;
    SpectrumView *m_spectrumView;
    WaterfallView *m_waterfallView;
    struLevelRange m_levelRange;
};

} // namespace BandMonitor
