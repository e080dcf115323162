// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <vector>

namespace BandMonitor {

/** Power over frequency of one stretch of samples. */
struct struSpectrum
{
    std::vector<float> power;  ///< per bin, in rising frequency; a full-scale sine has 1
    double firstFrequency = 0; ///< of the first bin, in Hz
    double binWidth = 0;       ///< in Hz
    double noiseBandwidth = 1; ///< of the window, in bins: powers are summed up and divided by it
    double time = 0;           ///< middle of the stretch, in seconds

    double frequency(double bin) const { return firstFrequency + bin * binWidth; }
};

/** A power in dBFS, and back. Silence has -200 dBFS. */
double levelOfPower(double power);
double powerOfLevel(double level);

} // namespace BandMonitor
