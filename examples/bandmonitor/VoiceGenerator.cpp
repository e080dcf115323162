// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#include "VoiceGenerator.h"

#include <cmath>
#include <numeric>

namespace BandMonitor {
namespace {

constexpr double TwoPi = 6.283185307179586;
constexpr double PauseShare = 0.25;
constexpr double LoudnessTime = 0.02; // in seconds

} // namespace

VoiceGenerator::VoiceGenerator(double sampleRate, unsigned seed)
    : m_sampleRate(sampleRate)
    , m_random(seed)
{}

double VoiceGenerator::_random(double low, double high)
{
    return low + (high - low) * double(m_random()) / double(std::mt19937::max());
}

void VoiceGenerator::_beginSyllable()
{
    m_samplesLeft = long(_random(0.1, 0.35) * m_sampleRate);
    m_pitch = _random(100, 160);
    m_target = _random(0, 1) < PauseShare ? 0 : _random(0.5, 1);
    // A vowel has most of its energy around a formant.
    const double formant = _random(300, 900);
    for (std::size_t i = 0; i < m_harmonics.size(); ++i) {
        const double distance = (double(i + 1) * m_pitch - formant) / 250;
        m_harmonics[i] = 0.15 / double(i + 1) + std::exp(-distance * distance);
    }
    const double sum = std::accumulate(m_harmonics.begin(), m_harmonics.end(), 0.0);
    for (double &harmonic : m_harmonics)
        harmonic /= sum;
}

void VoiceGenerator::advance()
{
    if (m_samplesLeft-- <= 0)
        _beginSyllable();
    m_loudness += (m_target - m_loudness) / (LoudnessTime * m_sampleRate);
    m_phase = std::remainder(m_phase + TwoPi * m_pitch / m_sampleRate, TwoPi);
    double sum = 0;
    for (std::size_t i = 0; i < m_harmonics.size(); ++i)
        sum += m_harmonics[i] * std::sin(m_phase * double(i + 1));
    m_value = m_loudness * sum;
}

} // namespace BandMonitor
