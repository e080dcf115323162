// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "RecordFile.h"

#include "Platform.h"

#include <QtCore/QCoreApplication>

namespace PYXRuntime {
namespace {

constexpr int BufferSize = 16 * 1024;
constexpr quint64 LongestPendingMs = 1000;

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

qint64 RecordFile::append(const char *data, qint64 size)
{
    if (m_pending.size() + size > BufferSize && !drain())
        return -1;
    if (size >= BufferSize) {
        // Nothing is pending now.
        return m_bRemoved ? -1 : _put(data, size);
    }
    if (m_pending.isEmpty()) {
        m_pending.reserve(BufferSize);
        m_pendingSince = Platform::tickMilliseconds();
    }
    m_pending.append(data, static_cast<int>(size));
    return size;
}

bool RecordFile::drain()
{
    if (m_pending.isEmpty())
        return true;
    const qint64 written = _put(m_pending.constData(), m_pending.size());
    if (written == m_pending.size()) {
        m_pending.resize(0);
        return true;
    }
    m_pending.remove(0, static_cast<int>(qMax<qint64>(written, 0)));
    return false;
}

bool RecordFile::isOverdue() const
{
    return Platform::tickMilliseconds() - m_pendingSince > LongestPendingMs;
}

qint64 RecordFile::takeBack(qint64 size)
{
    const int taken = static_cast<int>(qMin<qint64>(size, m_pending.size()));
    m_pending.chop(taken);
    return taken;
}

QByteArray RecordFile::takePending()
{
    QByteArray pending;
    pending.swap(m_pending);
    return pending;
}

void RecordFile::putPending(const QByteArray &bytes)
{
    m_pending = bytes;
    m_pendingSince = Platform::tickMilliseconds();
}

/** @return how many bytes are written, fewer than given or -1 only where the system takes no more. */
qint64 RecordFile::_put(const char *data, qint64 size)
{
    m_bRemoved = m_bRemoved || Platform::isFileRemoved(handle());
    if (m_bRemoved) {
        setErrorString(QCoreApplication::translate("PYXRuntime::PYXCountingFileSet", "The file is gone."));
        return -1;
    }
    return m_bTranslateLineEnds ? _putText(data, size) : QFile::writeData(data, size);
}

qint64 RecordFile::_putText(const char *data, qint64 size)
{
    QByteArray text(data, static_cast<int>(size));
    text.replace("\n", "\r\n");
    if (m_bHalfLineEnd)
        text.remove(0, 1);
    const qint64 written = QFile::writeData(text.constData(), text.size());
    if (written <= 0)
        return written;
    qint64 taken = 0;
    qint64 translated = 0;
    for (; taken < size; ++taken) {
        const bool bTwoBytes = data[taken] == '\n' && !(taken == 0 && m_bHalfLineEnd);
        translated += bTwoBytes ? 2 : 1;
        if (translated > written)
            break;
    }
    m_bHalfLineEnd = taken < size && translated == written + 1 && data[taken] == '\n';
    return taken;
}

} // namespace PYXRuntime
