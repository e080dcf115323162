// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#include "SignalDetector.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <numeric>

namespace BandMonitor {
namespace {

// A signal is never weaker than -120 dBFS, which is below the last bit of a 16 bit recording, nor than
// what the window leaks of the strongest signal.
constexpr double LowestThreshold = 1e-12;
constexpr double ThresholdBelowPeak = 3e-9; // 85 dB

// Weight of a new spectrum in a bin's presence: occupied after 3 spectra that stand out, and free 8
// spectra after a steady signal has gone.
constexpr float PresenceWeight = 0.25F;
constexpr float OccupiedAbove = 0.5F;
constexpr float FreeBelow = 0.1F;
constexpr float UnknownBelow = 0.05F;

// The outermost lines of a modulated signal come and go; they are not far out for a wide one.
constexpr double LargestGapShare = 0.25;
// The window spreads a carrier over so many bins to either side.
constexpr int WindowReach = 3;
constexpr double OccupiedShare = 0.99;
// A modulated signal is narrow in its pauses: its place shrinks slowly.
constexpr double ShrinkWeight = 0.01;
constexpr double SmallestMeanWeight = 0.06;
constexpr int LongestFragment = 8; // in spectra on air
// A band with more signals than this is noise of a kind that we do not understand.
constexpr std::size_t MaximumTracks = 500;

/** The ratio of powers that is so many dB. */
double ratioOf(double decibels)
{
    return std::pow(10, decibels / 10);
}

} // namespace

void SignalDetector::process(const struSpectrum &spectrum)
{
    if (m_bins.size() != spectrum.power.size()) {
        m_bins.assign(spectrum.power.size(), {});
        m_tracks.clear();
    }
    _estimateNoise(spectrum);
    _updateBins(spectrum);
    for (struTrack &track : m_tracks)
        track.bFound = false;
    for (const struRegion &region : _occupiedRegions())
        _assign(region);
    for (struTrack &track : m_tracks)
        _update(track, spectrum);
    _dropFragments();
}

std::vector<struDetection> SignalDetector::detections() const
{
    std::vector<struDetection> detections;
    std::transform(m_tracks.begin(), m_tracks.end(), std::back_inserter(detections),
                   [](const struTrack &track) { return track.detection; });
    return detections;
}

void SignalDetector::_estimateNoise(const struSpectrum &spectrum)
{
    // The lower quarter is noise even where signals fill most of the band.
    std::vector<float> sorted = spectrum.power;
    const auto quarter = sorted.begin() + std::ptrdiff_t(sorted.size() / 4);
    std::nth_element(sorted.begin(), quarter, sorted.end());
    m_floor = double(*quarter);
    const double peak = double(*std::max_element(quarter, sorted.end()));
    m_threshold =
        std::max({m_floor * ratioOf(m_parameters.threshold), peak * ThresholdBelowPeak, LowestThreshold});
}

void SignalDetector::_updateBins(const struSpectrum &spectrum)
{
    const double releaseThreshold = m_threshold / ratioOf(m_parameters.hysteresis);
    for (std::size_t i = 0; i < m_bins.size(); ++i) {
        struBin &bin = m_bins[i];
        const double power = double(spectrum.power[i]);
        bin.bStandsOut = power > m_threshold;
        const bool bPresent = bin.bOccupied ? power > releaseThreshold : bin.bStandsOut;
        if (bPresent && bin.presence < UnknownBelow)
            bin.since = spectrum.time;
        bin.presence += PresenceWeight * ((bPresent ? 1.0F : 0.0F) - bin.presence);
        bin.bOccupied = bin.presence > (bin.bOccupied ? FreeBelow : OccupiedAbove);
    }
}

std::vector<SignalDetector::struRegion> SignalDetector::_occupiedRegions() const
{
    std::vector<struRegion> regions;
    for (int i = 0; i < int(m_bins.size()); ++i) {
        if (!m_bins[std::size_t(i)].bOccupied)
            continue;
        if (regions.empty() || i - regions.back().last > m_parameters.largestGap + 1)
            regions.push_back({i, i});
        regions.back().last = i;
    }
    return regions;
}

/** The signal that a region belongs to: the nearest that is not too far away, or else a new one. */
SignalDetector::struTrack &SignalDetector::_trackFor(const struRegion &region)
{
    struTrack *best = nullptr;
    double bestGap = 0;
    for (struTrack &track : m_tracks) {
        // Below zero: by how much they overlap.
        const double gap =
            std::max(track.first, double(region.first)) - std::min(track.last, double(region.last));
        const double width = track.last - track.first;
        if (gap > std::max(width * LargestGapShare, double(m_parameters.largestGap)))
            continue;
        // Where a wide signal was over a narrow one, the narrow one keeps its place.
        const bool bNarrower = best != nullptr && gap <= bestGap && width < best->last - best->first;
        if (best == nullptr || gap < bestGap || bNarrower) {
            best = &track;
            bestGap = gap;
        }
    }
    if (best != nullptr)
        return *best;
    if (m_tracks.size() == MaximumTracks)
        m_tracks.erase(std::min_element(m_tracks.begin(), m_tracks.end(), [](const auto &a, const auto &b) {
            return a.detection.lastSeen < b.detection.lastSeen;
        }));
    m_tracks.emplace_back();
    struTrack &track = m_tracks.back();
    track.detection.id = ++m_lastId;
    track.detection.firstSeen = _beginOf(region);
    track.first = region.first;
    track.last = region.last;
    return track;
}

void SignalDetector::_assign(const struRegion &region)
{
    struTrack &track = _trackFor(region);
    if (track.bFound)
        track.region = {std::min(track.region.first, region.first), std::max(track.region.last, region.last)};
    else
        track.region = region;
    track.bFound = true;
}

void SignalDetector::_update(struTrack &track, const struSpectrum &spectrum)
{
    track.detection.bOnAir = track.bFound && _standsOut(track.region);
    if (!track.detection.bOnAir)
        return;
    const double first = track.region.first;
    const double last = track.region.last;
    track.first = std::min(first, track.first + ShrinkWeight * (first - track.first));
    track.last = std::max(last, track.last + ShrinkWeight * (last - track.last));
    const struRegion measured = _measuredRegion({int(track.first), int(track.last)});
    track.detection.lastSeen = spectrum.time;
    _average(track, measured, spectrum);
    _measure(track.detection, measured, spectrum);
}

/** A signal that has just begun may be found in parts, until the widest of them covers the others. */
void SignalDetector::_dropFragments()
{
    const auto isFragment = [this](const struTrack &track) {
        return track.spectra < LongestFragment &&
               std::any_of(m_tracks.begin(), m_tracks.end(), [&](const struTrack &other) {
                   return other.first < track.first && other.last > track.last;
               });
    };
    const auto fragment = std::find_if(m_tracks.begin(), m_tracks.end(), isFragment);
    if (fragment != m_tracks.end())
        m_tracks.erase(fragment);
}

SignalDetector::struRegion SignalDetector::_measuredRegion(const struRegion &region) const
{
    return {std::max(region.first - WindowReach, 0),
            std::min(region.last + WindowReach, int(m_bins.size()) - 1)};
}

void SignalDetector::_average(struTrack &track, const struRegion &region, const struSpectrum &spectrum)
{
    ++track.spectra;
    const auto weight = float(std::max(1.0 / track.spectra, SmallestMeanWeight));
    for (int i = region.first; i <= region.last; ++i) {
        struBin &bin = m_bins[std::size_t(i)];
        bin.power += weight * (spectrum.power[std::size_t(i)] - bin.power);
    }
}

void SignalDetector::_measure(struDetection &detection, const struRegion &region,
                              const struSpectrum &spectrum) const
{
    std::vector<double> sums; // power up to the upper edge of each bin
    double sum = 0;
    double moment = 0;
    for (int i = region.first; i <= region.last; ++i) {
        const double power = std::max(double(m_bins[std::size_t(i)].power) - m_floor, 0.0);
        sum += power;
        moment += power * i;
        sums.push_back(sum);
    }
    if (sum <= 0)
        return;
    // Where the power reaches a share of the whole, in bins from the lower edge of the region.
    const auto edge = [&](double share) {
        const auto bin = std::lower_bound(sums.begin(), sums.end(), share * sum);
        const double before = bin == sums.begin() ? 0 : *(bin - 1);
        return double(bin - sums.begin()) + (share * sum - before) / (*bin - before);
    };
    detection.frequency = spectrum.frequency(moment / sum);
    detection.bandwidth = (edge(0.5 + OccupiedShare / 2) - edge(0.5 - OccupiedShare / 2)) * spectrum.binWidth;
    detection.level = levelOfPower(sum / spectrum.noiseBandwidth);
}

bool SignalDetector::_standsOut(const struRegion &region) const
{
    return std::any_of(m_bins.begin() + region.first, m_bins.begin() + region.last + 1,
                       [](const struBin &bin) { return bin.bStandsOut; });
}

/** When the steadiest bin of the region began to stand out. */
double SignalDetector::_beginOf(const struRegion &region) const
{
    return std::max_element(m_bins.begin() + region.first, m_bins.begin() + region.last + 1,
                            [](const struBin &a, const struBin &b) { return a.presence < b.presence; })
        ->since;
}

} // namespace BandMonitor
