// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXStringHelpers.h"

#include "BufferWiper.h"
#include "WipedValue.h"

#include <QtCore/QtEndian>

namespace PYXRuntime {
namespace {

/** Deflate packs no more than this many bytes into one (zlib, "Technical details"). */
constexpr quint32 HighestCompression = 1032;

/** The length that a compressed array claims in its first four bytes is allocated before it is looked at. */
bool isPlausible(const QByteArray &compressed)
{
    return compressed.size() > int(sizeof(quint32)) &&
           qFromBigEndian<quint32>(compressed.constData()) / HighestCompression <= quint32(compressed.size());
}

} // namespace

void PYXStringHelpers::safeOverwriteAndClear(QString &text)
{
    BufferWiper::wipe(text);
    text.clear();
}

QString PYXStringHelpers::trueCopy(const QString &text)
{
    return text.isNull() ? QString() : QString(text.constData(), text.size());
}

QString PYXStringHelpers::obfuscateString(const QString &text)
{
    const WipedBytes utf8(text.toUtf8());
    const WipedBytes compressed(qCompress(utf8.value));
    const WipedBytes base64(compressed.value.toBase64());
    return QString::fromLatin1(base64.value.constData(), base64.value.size());
}

QString PYXStringHelpers::unobfuscateString(const QString &obfuscated)
{
    const WipedBytes base64(obfuscated.toLatin1());
    const WipedBytes compressed(QByteArray::fromBase64(base64.value));
    if (!isPlausible(compressed.value))
        return {};
    const WipedBytes utf8(qUncompress(compressed.value));
    return QString::fromUtf8(utf8.value.constData(), utf8.value.size());
}

} // namespace PYXRuntime
