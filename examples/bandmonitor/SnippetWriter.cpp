// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#include "SnippetWriter.h"

#include <QtCore/QtEndian>

#include <algorithm>

namespace BandMonitor {
namespace {

const QLatin1String ComponentName(QT_TRANSLATE_NOOP("BandMonitor::FileModel", "Snippets"));

constexpr int FloatTag = 3; // WAVE_FORMAT_IEEE_FLOAT of mmreg.h
constexpr int SampleBits = 32;
constexpr int FormatSize = 16; // of the chunks, in bytes
constexpr int ChunkHeadSize = 8;
constexpr int FormNameSize = 4;

template <typename Number>
void append(QByteArray &bytes, Number number)
{
    char raw[sizeof number];
    qToLittleEndian(number, raw);
    bytes.append(raw, int(sizeof number));
}

QByteArray headerOf(double sampleRate, int channels, quint32 dataSize)
{
    const int frameSize = channels * SampleBits / 8;
    QByteArray header("RIFF");
    append(header, quint32(FormNameSize + ChunkHeadSize + FormatSize + ChunkHeadSize) + dataSize);
    header += "WAVEfmt ";
    append(header, quint32(FormatSize));
    append(header, quint16(FloatTag));
    append(header, quint16(channels));
    append(header, quint32(sampleRate));
    append(header, quint32(sampleRate) * quint32(frameSize));
    append(header, quint16(frameSize));
    append(header, quint16(SampleBits));
    header += "data";
    append(header, dataSize);
    return header;
}

} // namespace

SnippetWriter::SnippetWriter(const QString &directory)
{
    m_files.setBaseDirectory(directory);
    m_files.setRegisterWrittenFiles(true);
    m_files.setRegisterFileType(PYXRuntime::PYXIFileList::ekFT_RECORDING);
    m_files.setRegisterFileComponentName(ComponentName);
}

void SnippetWriter::begin(double frequency, double sampleRate, bool bComplex, std::size_t sampleCount)
{
    const int channels = bComplex ? 2 : 1;
    const auto dataSize = quint32(sampleCount * std::size_t(channels) * sizeof(float));
    const QByteArray header = headerOf(sampleRate, channels, dataSize);
    m_bComplex = bComplex;
    m_files.setBaseFileName(QStringLiteral("snippet_%1Hz.wav").arg(frequency, 0, 'f', 0));
    // The file is full, and closed, with its last sample.
    m_files.setMaximumWeightPerFile(quint64(header.size()) + dataSize);
    const bool bOpened = m_files.isOpen() ? m_files.switchToNextFile() : m_files.open(QIODevice::WriteOnly);
    m_missing = bOpened && m_files.write(header) == header.size() ? sampleCount : 0;
}

void SnippetWriter::write(const Sample *samples, std::size_t count)
{
    count = std::min(count, m_missing);
    if (count == 0)
        return;
    m_missing -= count;
    m_values.clear();
    for (const Sample *sample = samples; sample != samples + count; ++sample) {
        m_values.push_back(sample->real());
        if (m_bComplex)
            m_values.push_back(sample->imag());
    }
    if (Q_BYTE_ORDER == Q_BIG_ENDIAN)
        qToLittleEndian<float>(m_values.data(), qsizetype(m_values.size()), m_values.data());
    const auto size = qint64(m_values.size()) * qint64(sizeof(float));
    if (m_files.write(reinterpret_cast<const char *>(m_values.data()), size) != size)
        m_missing = 0; // a snippet with a hole is none
}

} // namespace BandMonitor
