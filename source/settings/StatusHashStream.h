// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QDataStream>
#include <QtCore/QVariant>

/** The binary form of status hashes: magic number, format version, and a streamed QVariantHash. */
namespace PYXRuntime::StatusHashStream {

constexpr quint32 FormatVersion = 1;
constexpr int HeaderSize = 8;

void write(QDataStream &stream, quint32 magicNumber, const QVariantHash &entries);

/** The entries that can be restored from their streamed form; traces which are left out. */
QVariantHash restorable(const QVariantHash &entries, QDataStream::Version version);

/** Whether entries that can be loaded begin behind the header. */
bool isIntact(const QByteArray &bytes, QDataStream::Version version);

/** Loads entries that were found intact. @return false, with @p entries empty, where that fails. */
bool loadEntries(QDataStream &stream, QVariantHash &entries);

/**
 * Whether a hash that can be loaded begins where a stream stands, which it does not move. Within
 * loadEntries() on the same device that is known, and not looked at again.
 */
bool isIntactAhead(const QDataStream &stream);

} // namespace PYXRuntime::StatusHashStream
