// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QFile>

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
    /** What is still pending is lost: see close(). */
    ~RecordFile() override;

    bool create(OpenMode mode);
    /** @return how many bytes were accepted, written or pending; -1 if none, though there were some. */
    qint64 append(const char *data, qint64 size);
    /** Hands what is pending to the system. @return false where some of it stays pending. */
    bool drain();
    /** Whether something has been pending for longer than a second; only looked at after append(). */
    bool isOverdue() const;
    /** Takes pending bytes back, the youngest first. @return how many there were, @p size at most. */
    qint64 takeBack(qint64 size);
    /** Everything that is pending, which is so no more. */
    QByteArray takePending();
    /** What another file has left, to be written first; before the first append(). */
    void putPending(const QByteArray &bytes);
    /** Whether the file has been found removed: what is written to it is lost. */
    bool isRemoved() const { return m_bRemoved; }

private:
    qint64 _put(const char *data, qint64 size);
    qint64 _putText(const char *data, qint64 size);

    const bool m_bTranslateLineEnds;
    bool m_bHalfLineEnd = false; ///< "\r" is written, its "\n" is still pending
    bool m_bRemoved = false;
    QByteArray m_pending;
    quint64 m_pendingSince = 0;
};

} // namespace PYXRuntime
