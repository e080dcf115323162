// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "SampleSource.h"
#include "Spectrum.h"

#include <kiss_fft.h>

#include <memory>
#include <vector>

namespace BandMonitor {

/**
 * Turns a stream of samples into spectra: overlapping windowed transforms whose powers are averaged.
 * Real samples give a spectrum from 0 to half of the sample rate, I/Q one that reaches as far to the
 * negative side.
 */
class SpectrumAnalyzer
{
public:
    /** Chooses a transform of about a twelfth of a second and spectra of about an eighth. */
    SpectrumAnalyzer(double sampleRate, bool bComplex);

    /** Takes the next samples. @return the spectra that they complete. */
    std::vector<struSpectrum> feed(const Sample *samples, std::size_t count);
    /** At the end of the samples: the spectrum of those that are left, empty if they are too few. */
    std::vector<struSpectrum> finish();

    std::size_t transformSize() const { return m_window.size(); }

private:
    struct CfgDeleter
    {
        void operator()(kiss_fft_cfg cfg) const { kiss_fft_free(cfg); }
    };

    void _transform();
    struSpectrum _takeSpectrum();

    double m_sampleRate;
    bool m_bComplex;
    std::vector<float> m_window; ///< scaled so that a full-scale sine comes out as 1
    double m_noiseBandwidth = 1;
    std::size_t m_transformsPerSpectrum = 1;
    std::unique_ptr<kiss_fft_state, CfgDeleter> m_cfg;

    std::vector<Sample> m_waiting; ///< samples of the next transform
    std::vector<kiss_fft_cpx> m_input;
    std::vector<kiss_fft_cpx> m_output;
    std::vector<float> m_sum;           ///< powers of the transforms so far, in rising frequency
    std::size_t m_transforms = 0;       ///< in the sum
    std::size_t m_transformsBefore = 0; ///< in all spectra that are finished
};

} // namespace BandMonitor
