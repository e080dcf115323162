// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <PYXStatusHash.h>

namespace PYXRuntime {
class PYXSettings;
} // namespace PYXRuntime

namespace BandMonitor {

/** What the user can set of the detector. Numbers out of range are replaced by the nearest that is not. */
struct struDetectorParameters
{
    static constexpr double SmallestThreshold = 3;
    static constexpr double LargestThreshold = 40;
    static constexpr int WidestGap = 200;

    double threshold = 10; ///< what stands out of the noise, in dB above it
    double hysteresis = 3; ///< how far a signal may fall below that before it is gone, in dB
    /** Free bins between occupied ones that still make one signal: the lines of a voice are 16 apart. */
    int largestGap = 16;

    bool operator==(const struDetectorParameters &other) const;

    PYXRuntime::PYXStatusHash toStatusHash() const;
    /** What the hash does not have is as it is by default. */
    static struDetectorParameters fromStatusHash(const PYXRuntime::PYXStatusHash &hash);

    /** As the settings have them; without an argument, those of the user. */
    static struDetectorParameters restored(const PYXRuntime::PYXSettings &settings);
    static struDetectorParameters restored();
    void save(PYXRuntime::PYXSettings &settings) const;
};

} // namespace BandMonitor
