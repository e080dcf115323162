// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "pyxruntime_export.h"
#include "PYXTracerBase.h"

#include <QtCore/QString>

#include <memory>

namespace PYXRuntime {

class FileTracerPrivate;

/**
 * Writes traces to files that change before they grow too large; old files go.
 * @code
 * PYXFileTracer tracer({logsDirectory});
 * if (tracer.open())
 *     PYXTraceWrapper::addTracer(&tracer); // removeTracer() before it is destroyed
 * @endcode
 * A trace is a line "2026-11-21 07:20:00.125 WARN source\Frontend(42): antenna 2 is silent", in UTC and
 * UTF-8; further lines of its text begin with a tab. Warnings and errors are handed to the system at once.
 * Debug traces are held back: the last 1000 are written when an error comes, before it.
 *
 * What looks like a password ("password=...", "token: ...", "://user:...@host") is not written and not kept:
 * the rest of such a text is replaced by "***". That is a safety net; secrets do not belong into traces.
 *
 * Any thread may trace while any other does, or calls open(), close() or flush(). Memory is bounded; where
 * the disk takes nothing, lines are only counted, and the next one that is written tells how many.
 */
class PYXRUNTIME_EXPORT PYXFileTracer final : public PYXTracerBase
{
    Q_DISABLE_COPY(PYXFileTracer)
public:
    struct struFiles
    {
        QString directory; ///< must exist
        QString baseFileName = QStringLiteral("trace.txt");
        quint64 maximumBytesPerFile = 10'485'760; ///< 10 MiB
        int maximumNumberOfFiles = 10;            ///< with the current one; 0: all are kept
        QString componentName{};  ///< registers the files with PYXIFileList, unless it is empty
        bool bWriteDebug = false; ///< writes debug traces too, instead of holding them back
    };

    explicit PYXFileTracer(const struFiles &files);
    /** Closes. No trace may be under way. */
    ~PYXFileTracer() override;

    /** @return false where no file can be created; errorString() tells why. What is traced then is lost. */
    bool open();
    void close();
    /** Hands what is written to the system. */
    bool flush();
    bool isOpen() const;
    /** Empty where no file is open. */
    QString currentFilePath() const;
    QString errorString() const;
    /** Lines that could not be written since the tracer exists. */
    quint64 lostLines() const;

protected:
    void trace(const struTrace &trace) override;

private:
    const std::unique_ptr<FileTracerPrivate> d;
};

} // namespace PYXRuntime
