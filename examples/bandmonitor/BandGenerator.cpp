// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#include "BandGenerator.h"

#include <algorithm>
#include <cmath>

namespace BandMonitor {
namespace {

constexpr double TwoPi = 6.283185307179586;
// A transmitter that is switched on or off in no time would be heard all over the band.
constexpr double RampTime = 0.02;
constexpr double SymbolTime = 0.01;

/** How far a transmitter is switched on at a time, from 0 to 1. */
double envelope(const BandGenerator::struTransmitter &transmitter, double time)
{
    double since = time - transmitter.firstStart;
    if (since < 0)
        return 0;
    if (transmitter.onTime <= 0)
        return 1;
    if (transmitter.period > 0)
        since = std::fmod(since, transmitter.period);
    const double ramp = std::min(since, transmitter.onTime - since) / RampTime;
    return 0.5 - 0.5 * std::cos(TwoPi / 2 * std::clamp(ramp, 0.0, 1.0));
}

double amplitude(double level)
{
    return std::pow(10.0, level / 20);
}

} // namespace

BandGenerator::struSettings BandGenerator::ownBand()
{
    struSettings settings;
    settings.transmitters = {
        {ekModulation_None, -36000, -48, 0, 0, 0, 0},      {ekModulation_None, -31250, -30, 0, 0, 0, 0},
        {ekModulation_Voice, -12500, -18, 2500, 0, 0, 0},  {ekModulation_Data, 4000, -34, 425, 0, 0, 0},
        {ekModulation_None, 18000, -26, 0, 2.0, 2.5, 6.0}, {ekModulation_None, 27500, -55, 0, 0, 0, 0},
        {ekModulation_Data, 39000, -42, 85, 5.0, 4.0, 0},
    };
    return settings;
}

BandGenerator::BandGenerator(const struSettings &settings)
    : m_settings(settings)
    , m_voice(settings.sampleRate, settings.seed)
    , m_random(settings.seed)
{
    // Full scale is a sine: that has half the power of a complex tone of the same amplitude, as has noise
    // that lacks the imaginary half.
    m_noise = std::normal_distribution<float>(0, float(amplitude(settings.noiseLevel) / std::sqrt(2.0)));
    for (const struTransmitter &transmitter : settings.transmitters)
        m_channels.push_back({transmitter, amplitude(transmitter.level), 0, 1});
}

QString BandGenerator::name() const
{
    return tr("Own band");
}

QString BandGenerator::coding() const
{
    return tr("generated");
}

/** How far a transmitter is off its frequency at the current sample, in Hz. */
double BandGenerator::_offset(struChannel &channel)
{
    switch (channel.transmitter.modulation) {
    case ekModulation_Voice:
        return channel.transmitter.deviation * m_voice.value();
    case ekModulation_Data:
        if (m_position % std::max<qint64>(qint64(SymbolTime * m_settings.sampleRate), 1) == 0)
            channel.symbol = (m_random() & 1U) != 0 ? 1 : -1;
        return channel.transmitter.deviation * channel.symbol;
    default:
        return 0;
    }
}

Sample BandGenerator::_next()
{
    const double time = double(m_position) / m_settings.sampleRate;
    Sample sample(m_noise(m_random), m_settings.bComplex ? m_noise(m_random) : 0.0F);
    m_voice.advance();
    for (struChannel &channel : m_channels) {
        const double frequency = channel.transmitter.frequency + _offset(channel);
        channel.phase = std::remainder(channel.phase + TwoPi * frequency / m_settings.sampleRate, TwoPi);
        const Sample tone(std::polar(channel.amplitude * envelope(channel.transmitter, time), channel.phase));
        sample += m_settings.bComplex ? tone : Sample(tone.real());
    }
    ++m_position;
    return sample;
}

std::size_t BandGenerator::read(Sample *samples, std::size_t count)
{
    std::generate_n(samples, count, [this] { return _next(); });
    return count;
}

} // namespace BandMonitor
