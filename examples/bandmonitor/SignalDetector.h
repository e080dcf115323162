// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "DetectorParameters.h"
#include "Spectrum.h"

#include <cstddef>
#include <vector>

namespace BandMonitor {

/** What is known of one signal. */
struct struDetection
{
    int id = 0;           ///< the same for as long as the detector remembers the signal
    double frequency = 0; ///< centre of its power, in Hz
    double bandwidth = 0; ///< of 99 % of its power, in Hz; a carrier has that of the window
    double level = 0;     ///< of all of its power while it was on air, in dBFS
    double firstSeen = 0; ///< in seconds of the recording
    double lastSeen = 0;  ///< in seconds of the recording
    bool bOnAir = false;
};

/**
 * Finds signals in successive spectra and follows them: a signal that comes and goes stays one signal.
 *
 * A bin is occupied once it has stood out of the noise for some spectra, and free again when it has not
 * for some more. Neighbouring occupied bins make a signal.
 */
class SignalDetector
{
public:
    /** From the next spectrum on. */
    void setParameters(const struDetectorParameters &parameters) { m_parameters = parameters; }

    void process(const struSpectrum &spectrum);

    /** In the order in which the signals were found. */
    std::vector<struDetection> detections() const;
    /** Of one bin of the last spectrum, in dBFS: the level that a quarter of the bins stays below. */
    double noiseFloor() const { return levelOfPower(m_floor); }
    /** What a bin must exceed to stand out, in dBFS. */
    double threshold() const { return levelOfPower(m_threshold); }

private:
    struct struBin
    {
        float presence = 0; ///< how steadily the bin stood out lately, from 0 to 1
        bool bOccupied = false;
        bool bStandsOut = false; ///< in the last spectrum
        double since = 0;        ///< when the bin began to stand out, in seconds
        float power = 0;         ///< mean over the time in which a signal was on air
    };

    /** Bins that belong together; the last one included. */
    struct struRegion
    {
        int first = 0;
        int last = 0;
        int width() const { return last - first + 1; }
    };

    struct struTrack
    {
        struDetection detection;
        double first = 0; ///< where the signal has been lately, in bins
        double last = 0;
        int spectra = 0;     ///< in which the signal was on air
        struRegion region;   ///< occupied in this spectrum
        bool bFound = false; ///< in this spectrum
    };

    void _estimateNoise(const struSpectrum &spectrum);
    void _updateBins(const struSpectrum &spectrum);
    std::vector<struRegion> _occupiedRegions() const;
    void _assign(const struRegion &region);
    struTrack &_trackFor(const struRegion &region);
    void _update(struTrack &track, const struSpectrum &spectrum);
    void _dropFragments();
    void _average(struTrack &track, const struRegion &region, const struSpectrum &spectrum);
    void _measure(struDetection &detection, const struRegion &region, const struSpectrum &spectrum) const;
    struRegion _measuredRegion(const struRegion &region) const;
    bool _standsOut(const struRegion &region) const;
    double _beginOf(const struRegion &region) const;

    struDetectorParameters m_parameters;
    double m_floor = 0;
    double m_threshold = 0;
    std::vector<struBin> m_bins;
    std::vector<struTrack> m_tracks;
    int m_lastId = 0;
};

} // namespace BandMonitor
