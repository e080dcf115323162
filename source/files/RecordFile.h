// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "Platform.h"

#include <QtCore/QByteArray>
#include <QtCore/QFile>

#include <cstring>
#include <memory>

namespace PYXRuntime {

/**
 * A file that is written from its beginning, with a buffer of its own: unlike that of QFile it tells which of
 * the bytes a full disk has not taken, keeps them for the next try, and notices a file that was removed.
 *
 * All numbers count bytes as they are handed over, also where line ends are translated on the way out.
 */
class RecordFile final : public QFile
{
public:
    /** @param bTranslateLineEnds writes "\r\n" for "\n" */
    RecordFile(const QString &path, bool bTranslateLineEnds);
    /** What is still pending is lost. */
    ~RecordFile() override;

    bool create(OpenMode mode);
    /** @return how many bytes were accepted, written or pending; -1 if none, though there were some. */
    qint64 append(const char *data, qint64 size)
    {
        m_now = Platform::tickMilliseconds();
        if (size > BufferSize - m_pendingSize || m_pendingSize == 0 || size == 0)
            return _appendSlowly(data, size);
        _buffer(data, size);
        return size;
    }
    /** Hands what is pending to the system. @return false where some of it stays pending. */
    bool drain();
    /** Whether something has been pending for longer than a second; only looked at after append(). */
    bool isOverdue() const { return m_now - m_pendingSince > LongestPendingMs; }
    /** Takes pending bytes back, the youngest first. @return how many there were, @p size at most. */
    qint64 takeBack(qint64 size);
    /** Everything that is pending, which is so no more. */
    QByteArray takePending();
    /** What another file has left, to be written first; before the first append(). */
    void putPending(const QByteArray &bytes);
    /** Whether the file has been found removed: what is written to it is lost. */
    bool isRemoved() const { return m_bRemoved; }

private:
    static constexpr qint64 BufferSize = 65'536;
    static constexpr quint64 LongestPendingMs = 1000;

    /** There must be room, and a buffer. */
    void _buffer(const char *data, qint64 size)
    {
        std::memcpy(m_buffer.get() + m_pendingSize, data, static_cast<std::size_t>(size));
        m_pendingSize += size;
    }
    qint64 _appendSlowly(const char *data, qint64 size);
    bool _isGone();
    qint64 _put(const char *data, qint64 size);
    qint64 _putText(const char *data, qint64 size);

    const bool m_bTranslateLineEnds;
    bool m_bHalfLineEnd = false; ///< "\r" is written, its "\n" is still pending
    bool m_bRemoved = false;
    std::unique_ptr<char[]> m_buffer; ///< allocated when there is something to buffer
    qint64 m_pendingSize = 0;
    quint64 m_pendingSince = 0;
    quint64 m_now = 0;      ///< when something was appended last
    quint64 m_lookedAt = 0; ///< when the file was there last
};

} // namespace PYXRuntime
