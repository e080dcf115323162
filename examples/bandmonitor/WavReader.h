// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "SampleSource.h"
#include "WavHeader.h"

#include <QtCore/QByteArray>
#include <QtCore/QFile>

#include <memory>

namespace BandMonitor {

/** Reads a WAV recording block by block: mono as real samples, stereo as I/Q. */
class WavReader final : public SampleSource
{
    Q_DECLARE_TR_FUNCTIONS(BandMonitor::WavReader)
public:
    /**
     * Opens a recording. @return null, with a whole sentence for the user in @p error, where it cannot be
     * read. One that is cut short is read as far as it goes, with a warning in the trace.
     */
    static std::unique_ptr<WavReader> open(const QString &path, QString *error);

    QString name() const override;
    QString coding() const override;
    double sampleRate() const override { return m_header.sampleRate(); }
    bool isComplex() const override { return m_header.channels() == 2; }
    double duration() const override { return double(m_header.frames()) / m_header.sampleRate(); }
    std::size_t read(Sample *samples, std::size_t count) override;

private:
    explicit WavReader(const QString &path);
    bool _openFile(QString *error);

    QFile m_file;
    WavHeader m_header;
    qint64 m_framesLeft = 0;
    QByteArray m_buffer;
};

} // namespace BandMonitor
