// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "SampleBlock.h"
#include "SignalDetector.h"
#include "SpectrumAnalyzer.h"

#include <PYXMemoryPool.h>

#include <QtCore/QObject>

#include <memory>
#include <vector>

namespace BandMonitor {

/** Leads the samples of a source through the analyzer and the detector. */
class SignalMonitor final : public QObject
{
    Q_OBJECT
public:
    explicit SignalMonitor(std::unique_ptr<SampleSource> source, QObject *parent = nullptr);

    const SampleSource &source() const { return *m_source; }
    const SignalDetector &detector() const { return m_detector; }
    /** Of the sample buffers. */
    const PYXRuntime::PYXMemoryPool &pool() const { return m_pool; }
    /** How far the source has been read, in seconds. */
    double time() const;
    bool isAtEnd() const { return m_bAtEnd; }
    /** From the next spectrum on. */
    void setDetectorParameters(const struDetectorParameters &parameters)
    {
        m_detector.setParameters(parameters);
    }

    /** Processes the next stretch of so many seconds. @return false at the end of the source. */
    bool advance(double seconds);

Q_SIGNALS:
    /** Before the spectra that they complete. Whoever keeps the block keeps its memory from being reused. */
    void si_samples(const BandMonitor::struSampleBlock &a_block);
    void si_spectrum(const BandMonitor::struSpectrum &a_spectrum);

private:
    struSampleBlock _read(std::size_t count);
    void _process(const std::vector<struSpectrum> &spectra);
    void _describe(double time) const;

    std::unique_ptr<SampleSource> m_source;
    SpectrumAnalyzer m_analyzer;
    SignalDetector m_detector;
    PYXRuntime::PYXMemoryPool m_pool;
    qint64 m_samplesRead = 0;
    double m_samplesDue = 0;
    double m_lastTime = 0; ///< of a spectrum, in seconds
    bool m_bAtEnd = false;
};

} // namespace BandMonitor
