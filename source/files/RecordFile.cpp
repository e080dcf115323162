// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "RecordFile.h"

#include <QtCore/QCoreApplication>

namespace PYXRuntime {
namespace {

// How long what is written to a removed file may go unnoticed; each look takes a system call.
constexpr quint64 LookIntervalMs = 100;

} // namespace

RecordFile::RecordFile(const QString &path, bool bTranslateLineEnds)
    : QFile(path)
    , m_bTranslateLineEnds(bTranslateLineEnds)
{}

RecordFile::~RecordFile() = default;

bool RecordFile::create(OpenMode mode)
{
    return open(mode | Unbuffered);
}

bool RecordFile::drain()
{
    if (m_pendingSize == 0)
        return true;
    const qint64 written = qMax<qint64>(_put(m_buffer.get(), m_pendingSize), 0);
    m_pendingSize -= written;
    if (m_pendingSize > 0)
        std::memmove(m_buffer.get(), m_buffer.get() + written, static_cast<std::size_t>(m_pendingSize));
    return m_pendingSize == 0;
}

qint64 RecordFile::takeBack(qint64 size)
{
    const qint64 taken = qMin(size, m_pendingSize);
    m_pendingSize -= taken;
    return taken;
}

QByteArray RecordFile::takePending()
{
    QByteArray pending(m_buffer.get(), static_cast<int>(m_pendingSize));
    m_pendingSize = 0;
    return pending;
}

void RecordFile::putPending(const QByteArray &bytes)
{
    if (bytes.isEmpty())
        return;
    m_buffer = std::make_unique<char[]>(BufferSize);
    _buffer(bytes.constData(), qMin<qint64>(bytes.size(), BufferSize));
}

/** What append() does where the buffer has no room, or nothing in it yet. */
qint64 RecordFile::_appendSlowly(const char *data, qint64 size)
{
    if (size == 0)
        return 0;
    if (size > BufferSize - m_pendingSize && !drain())
        return -1;
    if (size >= BufferSize)
        return _put(data, size);
    if (m_buffer == nullptr)
        m_buffer = std::make_unique<char[]>(BufferSize);
    m_pendingSince = m_now;
    _buffer(data, size);
    return size;
}

bool RecordFile::_isGone()
{
    const quint64 now = Platform::tickMilliseconds();
    if (!m_bRemoved && now - m_lookedAt > LookIntervalMs) {
        m_bRemoved = Platform::isFileRemoved(handle());
        m_lookedAt = now;
    }
    return m_bRemoved;
}

/** @return how many bytes are written, fewer than given or -1 only where the system takes no more. */
qint64 RecordFile::_put(const char *data, qint64 size)
{
    if (_isGone()) {
        setErrorString(QCoreApplication::translate("PYXRuntime::PYXCountingFileSet", "The file is gone."));
        return -1;
    }
    return m_bTranslateLineEnds ? _putText(data, size) : QFile::writeData(data, size);
}

qint64 RecordFile::_putText(const char *data, qint64 size)
{
    // Not if the caller has taken the "\n" back.
    const bool bHalfWritten = m_bHalfLineEnd && *data == '\n';
    QByteArray text(data, static_cast<int>(size));
    text.replace("\n", "\r\n");
    if (bHalfWritten)
        text.remove(0, 1);
    const qint64 written = QFile::writeData(text.constData(), text.size());
    if (written <= 0)
        return written;
    qint64 taken = 0;
    qint64 translated = 0;
    for (; taken < size; ++taken) {
        const bool bTwoBytes = data[taken] == '\n' && !(taken == 0 && bHalfWritten);
        translated += bTwoBytes ? 2 : 1;
        if (translated > written)
            break;
    }
    m_bHalfLineEnd = taken < size && translated == written + 1 && data[taken] == '\n';
    return taken;
}

} // namespace PYXRuntime
