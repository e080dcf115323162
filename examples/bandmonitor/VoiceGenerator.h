// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <array>
#include <random>

namespace BandMonitor {

/**
 * Something that fills a channel as speech does: syllables of changing pitch, colour and loudness, with
 * pauses between them. Values are between -1 and 1.
 */
class VoiceGenerator
{
public:
    VoiceGenerator(double sampleRate, unsigned seed);

    /** Goes on by one sample. */
    void advance();
    double value() const { return m_value; }

private:
    double _random(double low, double high);
    void _beginSyllable();

    double m_sampleRate;
    std::mt19937 m_random;
    std::array<double, 12> m_harmonics{}; ///< amplitudes, of a sum of 1
    long m_samplesLeft = 0;
    double m_pitch = 0;  ///< in Hz
    double m_phase = 0;  ///< in radians
    double m_target = 0; ///< loudness of the syllable
    double m_loudness = 0;
    double m_value = 0;
};

} // namespace BandMonitor
