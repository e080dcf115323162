// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <BandGenerator.h>

#include <algorithm>
#include <memory>
#include <vector>

/**
 * Band Monitor's own band, again and again: to make a sample costs several times what it costs to watch it,
 * so that a band made on the way would be the brake at many times real time.
 */
class LoopedBand final : public BandMonitor::SampleSource
{
public:
    using Samples = std::vector<BandMonitor::Sample>;

    /** @param seconds a multiple of the six in which the band's transmitters repeat themselves */
    static std::shared_ptr<const Samples> record(double seconds)
    {
        BandMonitor::BandGenerator band(BandMonitor::BandGenerator::ownBand());
        auto samples = std::make_shared<Samples>(std::size_t(seconds * band.sampleRate()));
        band.read(samples->data(), samples->size());
        return samples;
    }

    explicit LoopedBand(std::shared_ptr<const Samples> samples)
        : m_samples(std::move(samples))
    {}

    QString name() const override { return QStringLiteral("Looped band"); }
    QString coding() const override { return QStringLiteral("generated"); }
    double sampleRate() const override { return BandMonitor::BandGenerator::ownBand().sampleRate; }
    bool isComplex() const override { return true; }
    double duration() const override { return 0; }

    std::size_t read(BandMonitor::Sample *samples, std::size_t count) override
    {
        for (std::size_t done = 0; done < count;) {
            const std::size_t part = std::min(count - done, m_samples->size() - m_position);
            std::copy_n(m_samples->data() + m_position, part, samples + done);
            done += part;
            m_position = (m_position + part) % m_samples->size();
        }
        return count;
    }

private:
    std::shared_ptr<const Samples> m_samples;
    std::size_t m_position = 0;
};
