// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "ImageStreamType.h"

#include "StreamCursor.h"

namespace PYXRuntime::ImageStreamType {
namespace {

constexpr quint64 PngSignature = 0x89504E470D0A1A0A;
constexpr quint32 HeaderChunk = 0x49484452; // "IHDR"
constexpr quint32 DataChunk = 0x49444154;   // "IDAT"
constexpr quint32 EndChunk = 0x49454E44;    // "IEND"
constexpr quint32 HeaderLength = 13;
constexpr int ChecksumSize = 4;
constexpr int TailOfHeader = 3; // compression, filter, interlace
// zlib's documentation gives 1032:1 as the limit of deflate; rows of an interlaced image need some more.
constexpr qint64 LargestCompression = 1100;
constexpr qint64 FreeBytes = 4096;
constexpr qint64 MaximumUnpackedBytes = 64LL * 1024 * 1024;
constexpr quint32 MaximumSide = 32767;

int channelsOf(quint8 colourType)
{
    switch (colourType) {
    case 0: // grey
    case 3: // palette
        return 1;
    case 2: // RGB
        return 3;
    case 4: // grey with alpha
        return 2;
    default: // RGB with alpha, and whatever libpng is going to refuse
        return 4;
    }
}

/** Bytes of the unpacked image that the header announces; negative for none. */
qint64 walkHeader(StreamCursor &cursor)
{
    if (cursor.number<quint64>() != PngSignature || cursor.number<quint32>() != HeaderLength ||
        cursor.number<quint32>() != HeaderChunk)
        return -1;
    const auto width = cursor.number<quint32>();
    const auto height = cursor.number<quint32>();
    const int depth = cursor.number<quint8>();
    const int channels = channelsOf(cursor.number<quint8>());
    cursor.skip(TailOfHeader + ChecksumSize);
    if (width > MaximumSide || height > MaximumSide)
        return -1;
    return qint64(height) * (1 + (qint64(width) * depth * channels + 7) / 8);
}

} // namespace

bool walk(StreamCursor &cursor)
{
    if (cursor.number<qint32>() == 0)
        return !cursor.failed();
    const qint64 unpacked = walkHeader(cursor);
    if (cursor.failed() || unpacked < 0 || unpacked > MaximumUnpackedBytes)
        return cursor.fail();
    qint64 packed = 0;
    for (quint32 type = 0; type != EndChunk;) {
        const auto length = cursor.number<quint32>();
        type = cursor.number<quint32>();
        if (!cursor.skip(qint64(length) + ChecksumSize))
            return false;
        packed += type == DataChunk ? qint64(length) : 0;
    }
    return unpacked <= packed * LargestCompression + FreeBytes || cursor.fail();
}

} // namespace PYXRuntime::ImageStreamType
