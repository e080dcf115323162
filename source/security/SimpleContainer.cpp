// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "SimpleContainer.h"

#include <QtCore/QBuffer>

#include <array>

namespace PYXRuntime {
namespace {

constexpr auto StreamVersion = QDataStream::Qt_4_6;
/** All but the bytes of key and data. */
constexpr int FixedSize = 21;

/** CRC-16/X.25: the polynomial of the CCITT, bits reversed. */
constexpr quint16 Polynomial = 0x8408;
constexpr std::size_t Slices = 8;
using ChecksumTables = std::array<std::array<quint16, 256>, Slices>;

constexpr ChecksumTables makeTables()
{
    ChecksumTables tables{};
    for (std::size_t byte = 0; byte < 256; ++byte) {
        auto crc = unsigned(byte);
        for (int bit = 0; bit < 8; ++bit)
            crc = (crc & 1) != 0 ? (crc >> 1) ^ Polynomial : crc >> 1;
        tables[0][byte] = quint16(crc);
    }
    for (std::size_t slice = 1; slice < Slices; ++slice) {
        for (std::size_t byte = 0; byte < 256; ++byte) {
            const unsigned before = tables[slice - 1][byte];
            tables[slice][byte] = quint16((before >> 8) ^ tables[0][before & 0xFF]);
        }
    }
    return tables;
}

constexpr ChecksumTables Tables = makeTables();

/** The next array of a record, as a view; empty where fewer bytes are left than it claims. */
QByteArray readView(QDataStream &stream, const QByteArray &record)
{
    quint32 length = 0;
    stream >> length;
    const auto left = quint32(stream.device()->bytesAvailable());
    const auto start = int(stream.device()->pos());
    const auto taken = int(qMin(length, left));
    stream.skipRawData(taken);
    return length <= left ? QByteArray::fromRawData(record.constData() + start, taken) : QByteArray();
}

} // namespace

QByteArray SimpleContainer::toRecord() const
{
    QByteArray record;
    record.reserve(FixedSize + key.size() + data.size());
    QBuffer buffer(&record);
    buffer.open(QIODevice::WriteOnly);
    QDataStream stream(&buffer);
    stream.setVersion(StreamVersion);
    stream << magic << marker << plainLength << keyChecksum << key << dataChecksum << data;
    return record;
}

SimpleContainer SimpleContainer::fromRecord(const QByteArray &record)
{
    QDataStream stream(record);
    stream.setVersion(StreamVersion);
    SimpleContainer container;
    stream >> container.magic >> container.marker >> container.plainLength >> container.keyChecksum;
    container.key = readView(stream, record);
    stream >> container.dataChecksum;
    container.data = readView(stream, record);
    return container;
}

quint16 SimpleContainer::checksum(const QByteArray &bytes)
{
    unsigned crc = 0xFFFF;
    const auto *byte = reinterpret_cast<const uchar *>(bytes.constData());
    const uchar *const end = byte + bytes.size();
    // Eight bytes at once; the first two also carry what went before.
    for (; end - byte >= qptrdiff(Slices); byte += Slices) {
        crc = unsigned(Tables[7][byte[0] ^ (crc & 0xFF)] ^ Tables[6][byte[1] ^ (crc >> 8)] ^
                       Tables[5][byte[2]] ^ Tables[4][byte[3]] ^ Tables[3][byte[4]] ^ Tables[2][byte[5]] ^
                       Tables[1][byte[6]] ^ Tables[0][byte[7]]);
    }
    for (; byte != end; ++byte)
        crc = (crc >> 8) ^ Tables[0][(crc ^ *byte) & 0xFF];
    return quint16(~crc & 0xFFFF);
}

} // namespace PYXRuntime
