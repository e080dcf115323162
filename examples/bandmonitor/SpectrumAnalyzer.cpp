// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#include "SpectrumAnalyzer.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace BandMonitor {
namespace {

constexpr double TwoPi = 6.283185307179586;

constexpr double TransformTime = 1.0 / 12; // in seconds
constexpr std::size_t SmallestTransform = 256;
constexpr std::size_t LargestTransform = 8192;
constexpr double SpectrumTime = 1.0 / 8; // in seconds
// Fewer leave so much scatter in noise that it passes for signals.
constexpr std::size_t LeastTransforms = 6;
// Successive transforms share three quarters of their samples: the window fades out the outer ones.
constexpr std::size_t HopsPerTransform = 4;
constexpr double Silence = 1e-20;

/** The power of two that comes nearest to the transform time. */
std::size_t chooseTransformSize(double sampleRate)
{
    std::size_t size = SmallestTransform;
    while (size < LargestTransform && double(size) * std::sqrt(2.0) < sampleRate * TransformTime)
        size *= 2;
    return size;
}

/**
 * The 4-term Blackman-Harris window: a strong signal hides nothing that is less than 92 dB below it
 * (F. J. Harris, "On the use of windows for harmonic analysis with the DFT", Proc. IEEE 66, 1978).
 */
std::vector<float> blackmanHarris(std::size_t size)
{
    std::vector<float> window(size);
    for (std::size_t i = 0; i < size; ++i) {
        const double angle = TwoPi * double(i) / double(size);
        window[i] = float(0.35875 - 0.48829 * std::cos(angle) + 0.14128 * std::cos(2 * angle) -
                          0.01168 * std::cos(3 * angle));
    }
    return window;
}

} // namespace

double levelOfPower(double power)
{
    return 10 * std::log10(std::max(power, Silence));
}

double powerOfLevel(double level)
{
    return std::pow(10.0, level / 10);
}

SpectrumAnalyzer::SpectrumAnalyzer(double sampleRate, bool bComplex)
    : m_sampleRate(sampleRate)
    , m_bComplex(bComplex)
    , m_window(blackmanHarris(chooseTransformSize(sampleRate)))
    , m_cfg(kiss_fft_alloc(int(m_window.size()), 0, nullptr, nullptr))
    , m_input(m_window.size())
    , m_output(m_window.size())
    , m_sum(bComplex ? m_window.size() : m_window.size() / 2 + 1)
{
    const std::size_t size = m_window.size();
    const double hop = double(size) / double(HopsPerTransform);
    m_transformsPerSpectrum =
        std::max(std::size_t(std::lround(sampleRate * SpectrumTime / hop)), LeastTransforms);

    const double sum = std::accumulate(m_window.begin(), m_window.end(), 0.0);
    const double squares = std::inner_product(m_window.begin(), m_window.end(), m_window.begin(), 0.0);
    m_noiseBandwidth = double(size) * squares / (sum * sum);
    // A real sine has half of its amplitude at the negative frequency, which is not shown.
    const double gain = (bComplex ? 1 : 2) / sum;
    for (float &weight : m_window)
        weight = float(weight * gain);
}

std::vector<struSpectrum> SpectrumAnalyzer::feed(const Sample *samples, std::size_t count)
{
    std::vector<struSpectrum> spectra;
    const std::size_t size = m_window.size();
    while (count > 0) {
        const std::size_t taken = std::min(count, size - m_waiting.size());
        m_waiting.insert(m_waiting.end(), samples, samples + taken);
        samples += taken;
        count -= taken;
        if (m_waiting.size() < size)
            break;
        _transform();
        m_waiting.erase(m_waiting.begin(), m_waiting.begin() + std::ptrdiff_t(size / HopsPerTransform));
        if (m_transforms == m_transformsPerSpectrum)
            spectra.push_back(_takeSpectrum());
    }
    return spectra;
}

std::vector<struSpectrum> SpectrumAnalyzer::finish()
{
    m_waiting.clear();
    if (m_transforms < std::min(LeastTransforms, m_transformsPerSpectrum) && m_transformsBefore > 0)
        return {};
    return m_transforms > 0 ? std::vector<struSpectrum>{_takeSpectrum()} : std::vector<struSpectrum>{};
}

void SpectrumAnalyzer::_transform()
{
    const std::size_t size = m_window.size();
    for (std::size_t i = 0; i < size; ++i)
        m_input[i] = {m_waiting[i].real() * m_window[i], m_waiting[i].imag() * m_window[i]};
    kiss_fft(m_cfg.get(), m_input.data(), m_output.data());
    // The upper half of the output belongs to the negative frequencies.
    const std::size_t first = m_bComplex ? size / 2 : 0;
    for (std::size_t bin = 0; bin < m_sum.size(); ++bin) {
        const std::size_t place = first + bin;
        const kiss_fft_cpx &value = m_output[place < size ? place : place - size];
        m_sum[bin] += value.r * value.r + value.i * value.i;
    }
    ++m_transforms;
}

struSpectrum SpectrumAnalyzer::_takeSpectrum()
{
    const double size = double(m_window.size());
    const double hop = size / double(HopsPerTransform);
    struSpectrum spectrum;
    spectrum.binWidth = m_sampleRate / size;
    spectrum.firstFrequency = m_bComplex ? -m_sampleRate / 2 : 0;
    spectrum.noiseBandwidth = m_noiseBandwidth;
    const double start = double(m_transformsBefore) * hop;
    const double length = double(m_transforms - 1) * hop + size;
    spectrum.time = (start + length / 2) / m_sampleRate;

    spectrum.power.assign(m_sum.size(), 0);
    m_sum.swap(spectrum.power);
    for (float &power : spectrum.power)
        power /= float(m_transforms);
    m_transformsBefore += m_transforms;
    m_transforms = 0;
    return spectrum;
}

} // namespace BandMonitor
