// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QByteArray>

namespace PYXRuntime {

/** The record within a container of the Simple provider. */
struct SimpleContainer
{
    static constexpr quint32 Magic = 0x534D504C; // "SMPL"

    quint32 magic = Magic;
    quint8 marker = 0;
    qint32 plainLength = 0;
    quint16 keyChecksum = 0;
    QByteArray key;
    quint16 dataChecksum = 0;
    QByteArray data;

    /** The bytes of the record, in a buffer that never had to grow. */
    QByteArray toRecord() const;

    /**
     * Reads what there is of a record. A field that the record is too short for is 0 or empty, whatever
     * length it claims. Key and data are views of the record, which must outlive them unchanged.
     */
    static SimpleContainer fromRecord(const QByteArray &record);

    /** What qChecksum() answers for the bytes, in a fraction of its time. */
    static quint16 checksum(const QByteArray &bytes);
};

} // namespace PYXRuntime
