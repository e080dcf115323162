// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#include "WavHeader.h"

#include <QtCore/QtEndian>

#include <algorithm>

namespace BandMonitor {
namespace {

// Format tags and the tail of the sub-format identifiers: "Multiple channel audio data and WAVE files",
// Microsoft, and mmreg.h.
constexpr int PcmTag = 0x0001;
constexpr int FloatTag = 0x0003;
constexpr int ExtensibleTag = 0xfffe;
constexpr char SubFormatTail[] = "\x00\x00\x00\x00\x10\x00\x80\x00\x00\xaa\x00\x38\x9b\x71";

// The least that each kind of chunk must hold, in bytes.
constexpr int ChunkHeadSize = 8;
constexpr int FormatSize = 16;
constexpr int ExtensibleFormatSize = 40;

constexpr qint64 UnknownSize = 0xffffffff;
// No recorder writes nearly as many; a file of nothing but empty chunks must not keep us busy for hours.
constexpr int MaximumChunks = 1000;

quint32 number32(const QByteArray &bytes, int at)
{
    return qFromLittleEndian<quint32>(bytes.constData() + at);
}

int number16(const QByteArray &bytes, int at)
{
    return qFromLittleEndian<quint16>(bytes.constData() + at);
}

/** A chunk's identifier for a message, whatever bytes it is made of. */
QString printable(const QByteArray &identifier)
{
    QString text;
    for (const char letter : identifier)
        text += letter >= ' ' && letter <= '~' ? QLatin1Char(letter) : QLatin1Char('?');
    return text;
}

QString codingName(int formatTag)
{
    switch (formatTag) {
    case 0x0002:
    case 0x0011:
        return QStringLiteral("ADPCM");
    case 0x0006:
        return QStringLiteral("A-law");
    case 0x0007:
        return QStringLiteral("\u00b5-law");
    case 0x0031:
        return QStringLiteral("GSM 06.10");
    case 0x0050:
    case 0x0055:
        return QStringLiteral("MPEG");
    default:
        return QLatin1String("0x") + QString::number(formatTag, 16).rightJustified(4, QLatin1Char('0'));
    }
}

} // namespace

bool WavHeader::_fail(const QString &error)
{
    m_error = error;
    return false;
}

bool WavHeader::read(QIODevice &file)
{
    *this = WavHeader();
    if (!_readForm(file))
        return false;
    for (int chunk = 0; chunk < MaximumChunks; ++chunk) {
        const QByteArray head = file.read(ChunkHeadSize);
        if (head.size() < ChunkHeadSize)
            return _fail(m_channels == 0 ? tr("has no format chunk") : tr("has no data chunk"));
        const QByteArray identifier = head.left(4);
        const qint64 size = number32(head, 4);
        const qint64 start = file.pos();
        if (identifier == "data") {
            m_dataStart = start;
            return _locateSamples(size, file.size());
        }
        if (start + size > file.size())
            return _fail(tr("ends inside its chunk \"%1\", before any samples").arg(printable(identifier)));
        if (identifier == "fmt " && !_readFormat(file.read(std::min<qint64>(size, ExtensibleFormatSize))))
            return false;
        if (identifier == "ds64" && size >= 16)
            m_longDataSize = qFromLittleEndian<qint64>(file.read(16).constData() + 8);
        file.seek(start + size + size % 2); // chunks begin at even places
    }
    return _fail(tr("has more than %1 chunks before its samples").arg(MaximumChunks));
}

bool WavHeader::_readForm(QIODevice &file)
{
    const QByteArray form = file.read(12);
    if (form.isEmpty())
        return _fail(tr("is empty"));
    if (form.startsWith("RIFX"))
        return _fail(tr("is a big-endian WAV file, which is not supported"));
    if (!form.startsWith("RIFF") && !form.startsWith("RF64"))
        return _fail(tr("is not a WAV file"));
    if (form.size() < 12)
        return _fail(tr("is cut off within its first %1 bytes").arg(12));
    if (!form.endsWith("WAVE"))
        return _fail(tr("is a RIFF file of type \"%1\", not a WAV file").arg(printable(form.mid(8))));
    return true;
}

bool WavHeader::_readFormat(const QByteArray &chunk)
{
    if (chunk.size() < FormatSize)
        return _fail(tr("has a format chunk of only %1 bytes").arg(chunk.size()));
    int formatTag = number16(chunk, 0);
    m_channels = number16(chunk, 2);
    m_sampleRate = number32(chunk, 4);
    m_bits = number16(chunk, 14);
    if (formatTag == ExtensibleTag) {
        if (chunk.size() < ExtensibleFormatSize)
            return _fail(tr("has an extensible format chunk of only %1 bytes").arg(chunk.size()));
        if (chunk.mid(26) != QByteArray::fromRawData(SubFormatTail, sizeof SubFormatTail - 1))
            return _fail(tr("has samples in an unknown coding"));
        formatTag = number16(chunk, 24);
    }
    return _checkFormat(formatTag, number16(chunk, 12));
}

bool WavHeader::_checkFormat(int formatTag, int blockSize)
{
    m_bFloat = formatTag == FloatTag;
    if (!m_bFloat && formatTag != PcmTag)
        return _fail(
            tr("is compressed (%1); only PCM and float samples can be read").arg(codingName(formatTag)));
    if (m_channels != 1 && m_channels != 2)
        return _fail(tr("has %1 channels; it takes one (real) or two (I/Q)").arg(m_channels));
    if (m_sampleRate < 1)
        return _fail(tr("claims a sample rate of zero"));
    const bool bPcmSize = m_bits == 8 || m_bits == 16 || m_bits == 24 || m_bits == 32;
    const bool bFloatSize = m_bits == 32 || m_bits == 64;
    if (m_bFloat ? !bFloatSize : !bPcmSize)
        return _fail(m_bFloat ? tr("has float samples of %1 bits").arg(m_bits)
                              : tr("has PCM samples of %1 bits").arg(m_bits));
    if (blockSize != bytesPerFrame())
        return _fail(tr("claims %1 bytes for samples that take %2").arg(blockSize).arg(bytesPerFrame()));
    return true;
}

bool WavHeader::_locateSamples(qint64 dataSize, qint64 fileSize)
{
    if (m_channels == 0)
        return _fail(tr("has no format chunk before its samples"));
    if (dataSize == UnknownSize && m_longDataSize > 0)
        dataSize = m_longDataSize;
    const qint64 available = fileSize - m_dataStart;
    m_bCutShort = dataSize > available && dataSize != UnknownSize;
    if (dataSize == 0 || dataSize > available)
        dataSize = available;
    m_frames = dataSize / bytesPerFrame();
    return m_frames > 0 || _fail(tr("holds no samples"));
}

} // namespace BandMonitor
