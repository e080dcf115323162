// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtCore/QString>

#include <complex>
#include <cstddef>

namespace BandMonitor {

/** One sample: I and Q, or a real sample with an imaginary part of zero. 1 is full scale. */
using Sample = std::complex<float>;

/** Where samples come from. Read by one thread, from the beginning to the end. */
class SampleSource
{
public:
    virtual ~SampleSource() = default;

    /** What the user knows the source by, e.g. the name of a file. */
    virtual QString name() const = 0;
    /** How the samples are coded, e.g. "16 bit". */
    virtual QString coding() const = 0;
    /** In samples per second. */
    virtual double sampleRate() const = 0;
    /** True for I/Q samples, whose spectrum has two sides. */
    virtual bool isComplex() const = 0;
    /** In seconds; 0 where the source has no end. */
    virtual double duration() const = 0;

    /** Reads up to @p count samples. @return how many; fewer than asked for only at the end. */
    virtual std::size_t read(Sample *samples, std::size_t count) = 0;
};

} // namespace BandMonitor
