// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QtEndian>

/** Makes WAV files byte by byte. */
namespace WavBytes {

template <typename T>
QByteArray number(T value)
{
    QByteArray bytes(int(sizeof(T)), '\0');
    qToLittleEndian(value, bytes.data());
    return bytes;
}

inline QByteArray number16(int value)
{
    return number(quint16(value));
}

inline QByteArray number32(qint64 value)
{
    return number(quint32(value));
}

inline QByteArray chunk(const QByteArray &identifier, const QByteArray &content)
{
    return identifier + number32(content.size()) + content + QByteArray(content.size() % 2, '\0');
}

inline QByteArray formatChunk(int tag, int channels, int bits, qint64 rate = 48000)
{
    const int blockSize = channels * bits / 8;
    return chunk("fmt ", number16(tag) + number16(channels) + number32(rate) + number32(rate * blockSize) +
                             number16(blockSize) + number16(bits));
}

inline QByteArray riff(const QByteArray &chunks)
{
    return "RIFF" + number32(chunks.size() + 4) + "WAVE" + chunks;
}

} // namespace WavBytes
