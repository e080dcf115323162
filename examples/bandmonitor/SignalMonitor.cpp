// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#include "SignalMonitor.h"

#include "Units.h"

#include <PYXRuntimeCenter.h>

#include <algorithm>
#include <cmath>

namespace BandMonitor {
namespace {

constexpr std::size_t BlockSize = 16384;

// Switched on by the line "BandMonitor:+d" in config/pyxRuntimeScopes.cfg beside the program; the line
// "*:+td" leads the messages into the log as well.
const uint s_scope = PYXRuntime::PYXRuntimeCenter::registerRuntimeScope(
    QStringLiteral("BandMonitor"),
    QStringLiteral(
        QT_TRANSLATE_NOOP("PYXRuntime::RuntimeScopes", "State of the signal detector, once a second")));

} // namespace

SignalMonitor::SignalMonitor(std::unique_ptr<SampleSource> source, QObject *parent)
    : QObject(parent)
    , m_source(std::move(source))
    , m_analyzer(m_source->sampleRate(), m_source->isComplex())
    , m_pool(nullptr)
{}

double SignalMonitor::time() const
{
    return double(m_samplesRead) / m_source->sampleRate();
}

bool SignalMonitor::advance(double seconds)
{
    m_samplesDue += seconds * m_source->sampleRate();
    while (!m_bAtEnd && m_samplesDue >= 1) {
        const std::size_t wanted = std::min(BlockSize, std::size_t(m_samplesDue));
        const struSampleBlock block = _read(wanted);
        m_samplesRead += qint64(block.count);
        m_samplesDue -= double(block.count);
        Q_EMIT si_samples(block);
        _process(m_analyzer.feed(block.samples(), block.count));
        m_bAtEnd = block.count < wanted;
    }
    if (m_bAtEnd)
        _process(m_analyzer.finish());
    return !m_bAtEnd;
}

struSampleBlock SignalMonitor::_read(std::size_t count)
{
    // All of one size, however few samples are due: each fits for the next.
    struSampleBlock block{m_pool.acquire(BlockSize * sizeof(Sample)), 0};
    if (block.memory->data() != nullptr)
        block.count = m_source->read(static_cast<Sample *>(block.memory->data()), count);
    return block;
}

void SignalMonitor::_process(const std::vector<struSpectrum> &spectra)
{
    for (const struSpectrum &spectrum : spectra) {
        const double before = std::floor(m_lastTime);
        m_lastTime = spectrum.time;
        m_detector.process(spectrum);
        if (std::floor(spectrum.time) > before)
            _describe(spectrum.time);
        Q_EMIT si_spectrum(spectrum);
    }
}

void SignalMonitor::_describe(double time) const
{
    const auto text = [&] {
        const std::vector<struDetection> detections = m_detector.detections();
        const auto onAir = std::count_if(detections.begin(), detections.end(),
                                         [](const struDetection &detection) { return detection.bOnAir; });
        return QStringLiteral("%1: noise floor %2, %3 signals, %4 on air")
            .arg(timeText(time), levelText(m_detector.noiseFloor()), QString::number(detections.size()),
                 QString::number(onAir));
    };
    PYX_DEBUG(s_scope, text());
}

} // namespace BandMonitor
