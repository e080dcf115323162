// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QtEndian>

namespace PYXRuntime {

/**
 * Walks over bytes that a QDataStream wrote (big-endian) without reading past their end. Once a step does
 * not fit the cursor has failed, and every further step fails.
 */
class StreamCursor final
{
public:
    /** @p bytes must outlive the cursor. */
    StreamCursor(const QByteArray &bytes, int offset)
        : m_bytes(bytes)
        , m_position(offset)
        , m_bFailed(offset < 0 || offset > bytes.size())
    {}

    bool failed() const { return m_bFailed; }
    int position() const { return m_position; }
    int left() const { return m_bFailed ? 0 : m_bytes.size() - m_position; }

    /** The bytes not walked over yet; they share the memory of the walked ones. */
    QByteArray rest() const { return QByteArray::fromRawData(m_bytes.constData() + m_position, left()); }

    bool fail()
    {
        m_bFailed = true;
        return false;
    }

    bool skip(qint64 count)
    {
        if (count < 0 || count > left())
            return fail();
        m_position += int(count);
        return !m_bFailed;
    }

    /** The next big-endian number; 0 where there is none. */
    template <typename Number>
    Number number()
    {
        const int at = m_position;
        if (!skip(qint64(sizeof(Number))))
            return Number(0);
        return qFromBigEndian<Number>(m_bytes.constData() + at);
    }

    /** A count of elements of at least @p elementSize bytes each: fails if the bytes left cannot hold them.
     */
    quint32 count(qint64 elementSize)
    {
        const auto claimed = number<quint32>();
        if (qint64(claimed) * elementSize <= left())
            return claimed;
        fail();
        return 0;
    }

    /** Elements of a fixed size behind their count. */
    bool skipArray(qint64 elementSize) { return skip(qint64(count(elementSize)) * elementSize); }

    /** The content of a QByteArray, a null one as an empty one. */
    QByteArray byteArray()
    {
        const auto length = number<quint32>();
        const int at = m_position;
        if (length == NullLength || !skip(qint64(length)))
            return QByteArray();
        return m_bytes.mid(at, int(length));
    }

    bool skipByteArray()
    {
        const auto length = number<quint32>();
        return length == NullLength ? !m_bFailed : skip(qint64(length));
    }

    /** A QString is stored as the bytes of its UTF-16 code units. */
    bool skipString()
    {
        const auto length = number<quint32>();
        if (length == NullLength)
            return !m_bFailed;
        return length % 2 == 0 ? skip(qint64(length)) : fail();
    }

private:
    static constexpr quint32 NullLength = 0xFFFFFFFF;

    const QByteArray &m_bytes;
    int m_position;
    bool m_bFailed;
};

} // namespace PYXRuntime
