// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "SampleSource.h"

#include <PYXSizeCountingFileSet.h>

#include <vector>

namespace BandMonitor {

/** Writes short WAV files of one length, one after the other, each as soon as its samples come. */
class SnippetWriter final
{
public:
    explicit SnippetWriter(const QString &directory);

    /** Whether a snippet has begun that is not complete yet. */
    bool isBusy() const { return m_missing > 0; }
    /** Begins a snippet; one that cannot be written is given up. @param frequency of what it is made for, in
     * Hz; is part of the name */
    void begin(double frequency, double sampleRate, bool bComplex, std::size_t sampleCount);
    /** Takes as many samples as the snippet still lacks. */
    void write(const Sample *samples, std::size_t count);

    PYXRuntime::PYXCountingFileSet &files() { return m_files; }

private:
    PYXRuntime::PYXSizeCountingFileSet m_files;
    std::vector<float> m_values;
    bool m_bComplex = false;
    std::size_t m_missing = 0; ///< samples
};

} // namespace BandMonitor
