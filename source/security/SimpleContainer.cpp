// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "SimpleContainer.h"

#include <QtCore/QtEndian>

#include <array>

namespace PYXRuntime {
namespace {

// The fields are those of QDataStream. It would copy the secret into buffers of its own, though, and believe
// a length up to a megabyte.

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

template <typename Number>
void appendNumber(QByteArray &record, Number number)
{
    char bytes[sizeof number];
    qToBigEndian(number, bytes);
    record.append(bytes, int(sizeof number));
}

void appendArray(QByteArray &record, const QByteArray &array)
{
    appendNumber(record, quint32(array.size()));
    record.append(array.constData(), array.size());
}

/** Reads big-endian fields; the first one that is not there ends the record. */
class RecordCursor final
{
public:
    explicit RecordCursor(const QByteArray &record)
        : m_next(record.constData())
        , m_end(m_next + record.size())
    {}

    template <typename Number>
    Number number()
    {
        const char *const bytes = taken(sizeof(Number));
        return bytes != nullptr ? qFromBigEndian<Number>(bytes) : Number(0);
    }

    /** Refers to the bytes of the record. */
    QByteArray array()
    {
        const auto length = number<quint32>();
        const char *const bytes = taken(length);
        return bytes != nullptr ? QByteArray::fromRawData(bytes, int(length)) : QByteArray();
    }

private:
    const char *taken(quint32 size)
    {
        const bool bEnough = size <= quint32(m_end - m_next);
        const char *const found = bEnough ? m_next : nullptr;
        m_next = bEnough ? m_next + size : m_end;
        return found;
    }

    const char *m_next;
    const char *m_end;
};

} // namespace

QByteArray SimpleContainer::toRecord() const
{
    QByteArray record;
    record.reserve(FixedSize + key.size() + data.size());
    appendNumber(record, magic);
    appendNumber(record, marker);
    appendNumber(record, plainLength);
    appendNumber(record, keyChecksum);
    appendArray(record, key);
    appendNumber(record, dataChecksum);
    appendArray(record, data);
    return record;
}

SimpleContainer SimpleContainer::fromRecord(const QByteArray &record)
{
    RecordCursor cursor(record);
    SimpleContainer container;
    container.magic = cursor.number<quint32>();
    container.marker = cursor.number<quint8>();
    container.plainLength = cursor.number<qint32>();
    container.keyChecksum = cursor.number<quint16>();
    container.key = cursor.array();
    container.dataChecksum = cursor.number<quint16>();
    container.data = cursor.array();
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
