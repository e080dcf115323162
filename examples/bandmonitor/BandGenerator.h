// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "SampleSource.h"
#include "VoiceGenerator.h"

#include <QtCore/QCoreApplication>

#include <random>
#include <vector>

namespace BandMonitor {

/** A band that is made, not recorded: transmitters in noise. The same settings give the same samples. */
class BandGenerator final : public SampleSource
{
    Q_DECLARE_TR_FUNCTIONS(BandMonitor::BandGenerator)
public:
    enum eModulation {
        ekModulation_None,  ///< a bare carrier
        ekModulation_Voice, ///< frequency modulation with something like speech
        ekModulation_Data   ///< two tones, switched 100 times a second
    };

    struct struTransmitter
    {
        eModulation modulation = ekModulation_None;
        double frequency = 0;  ///< in Hz
        double level = -20;    ///< in dBFS
        double deviation = 0;  ///< largest distance from the frequency, in Hz
        double firstStart = 0; ///< in seconds
        double onTime = 0;     ///< in seconds; 0 for a transmitter that is never switched off
        double period = 0;     ///< from one start to the next, in seconds; 0 for a single transmission
    };

    struct struSettings
    {
        double sampleRate = 96000;
        bool bComplex = true;
        double noiseLevel = -40; ///< power of the noise in the whole band, in dBFS
        unsigned seed = 1;
        std::vector<struTransmitter> transmitters;
    };

    /** The band that the program shows where there is no recording. */
    static struSettings ownBand();

    explicit BandGenerator(const struSettings &settings);

    QString name() const override;
    QString coding() const override;
    double sampleRate() const override { return m_settings.sampleRate; }
    bool isComplex() const override { return m_settings.bComplex; }
    double duration() const override { return 0; }
    std::size_t read(Sample *samples, std::size_t count) override;

private:
    /** A transmitter at work. */
    struct struChannel
    {
        struTransmitter transmitter;
        double amplitude = 0;
        double phase = 0;  ///< in radians
        double symbol = 1; ///< which of the two tones of a data signal, 1 or -1
    };

    double _offset(struChannel &channel);
    Sample _next();

    struSettings m_settings;
    std::vector<struChannel> m_channels;
    VoiceGenerator m_voice;
    std::mt19937 m_random;
    std::normal_distribution<float> m_noise;
    qint64 m_position = 0;
};

} // namespace BandMonitor
