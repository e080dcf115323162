// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtCore/QCoreApplication>
#include <QtCore/QIODevice>
#include <QtCore/QString>

namespace BandMonitor {

/**
 * The header of a WAV file: RIFF or RF64, with PCM of 8, 16, 24 or 32 bits or floats of 32 or 64 bits in
 * one or two channels.
 *
 * Lengths in a header are never trusted: recorders that were stopped hard leave a data length of zero, or
 * one that the file does not have; then the samples reach to the end of the file.
 */
class WavHeader
{
    Q_DECLARE_TR_FUNCTIONS(BandMonitor::WavHeader)
public:
    /** Reads the chunks before the samples. @return false, with errorString() set, if there are none. */
    bool read(QIODevice &file);
    /** What is wrong with the file, as the end of a sentence that begins with its name. */
    QString errorString() const { return m_error; }

    int channels() const { return m_channels; }
    int bitsPerSample() const { return m_bits; }
    bool isFloat() const { return m_bFloat; }
    double sampleRate() const { return m_sampleRate; }
    int bytesPerFrame() const { return m_channels * m_bits / 8; }
    /** Where the samples begin, in bytes. */
    qint64 dataStart() const { return m_dataStart; }
    qint64 frames() const { return m_frames; }
    /** True if the header promises more samples than the file has. */
    bool isCutShort() const { return m_bCutShort; }

private:
    bool _fail(const QString &error);
    bool _readForm(QIODevice &file);
    bool _readFormat(const QByteArray &chunk);
    bool _checkFormat(int formatTag, int blockSize);
    bool _locateSamples(qint64 dataSize, qint64 fileSize);

    QString m_error;
    int m_channels = 0;
    int m_bits = 0;
    bool m_bFloat = false;
    double m_sampleRate = 0;
    qint64 m_longDataSize = -1;
    qint64 m_dataStart = 0;
    qint64 m_frames = 0;
    bool m_bCutShort = false;
};

} // namespace BandMonitor
