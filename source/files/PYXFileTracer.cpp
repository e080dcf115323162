// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXFileTracer.h"

#include "DataMutex.h"
#include "FileRegistration.h"
#include "PYXMessageOutput.h"
#include "PYXRetainingFileSet.h"
#include "TraceLines.h"

#include <QtCore/QDateTime>
#include <QtCore/QThread>

#include <atomic>
#include <mutex>
#include <utility>

namespace PYXRuntime {
namespace {

constexpr const char *TraceFile = "source\\PYXFileTracer";

/** Writes without a word: a trace from within a trace would wait for itself, or for another tracer. */
class TraceFileSet final : public PYXRetainingFileSet
{
public:
    TraceFileSet() { _setSilent(true); }
};

} // namespace

class FileTracerPrivate final
{
public:
    explicit FileTracerPrivate(const PYXFileTracer::struFiles &files);

    /** What is to be told when the lock is open again. */
    struct struNews
    {
        QStringList newPaths;
        QString trouble;
    };

    /** Runs with the lock held, and tells the news after it. */
    template <typename Function>
    void run(Function function);
    /** Whether this thread traces from within a call of run(): a message handler, say. */
    bool isRunningHere() const { return m_owner.load() == QThread::currentThreadId(); }

    void closeSet();
    void write(PYXTracerBase::eLevel severity, const QByteArray &line);
    bool put(const QByteArray &line);
    void putDebugLines();
    void putNoteOfLoss();
    bool putTimed(const QByteArray &line);
    void note(bool bSuccess);

    const PYXFileTracer::struFiles files;
    TraceFileSet set;
    LastLines debugLines;
    TimePrefix time;
    QByteArray timedLine;
    quint64 lostLines = 0;
    quint64 toldLostLines = 0;
    QString lastError;

private:
    DataMutex m_mutex;
    std::atomic<Qt::HANDLE> m_owner{nullptr};
    struNews m_news;
    QString m_knownPath;
    bool m_bTroubled = false;
    bool m_bTorn = false; ///< the last line was taken in part
};

FileTracerPrivate::FileTracerPrivate(const PYXFileTracer::struFiles &tracerFiles)
    : files(tracerFiles)
{
    set.setBaseDirectory(files.directory);
    set.setBaseFileName(files.baseFileName);
    set.setMaximumWeightPerFile(files.maximumBytesPerFile);
    set.setMaximumNumberOfFiles(files.maximumNumberOfFiles);
    QObject::connect(&set, &PYXCountingFileSet::si_writeError,
                     [this](const QString &message) { lastError = message; });
}

template <typename Function>
void FileTracerPrivate::run(Function function)
{
    struNews news;
    {
        const std::lock_guard<DataMutex> locker(m_mutex);
        m_owner = QThread::currentThreadId();
        function();
        std::swap(news, m_news);
        m_owner = nullptr;
    }
    if (files.componentName.isEmpty())
        news.newPaths.clear();
    // Later: a listener may be in the middle of a trace.
    for (const QString &path : qAsConst(news.newPaths))
        registerWrittenFile({path, PYXIFileList::ekFT_TEXT, files.componentName, {}, {}},
                            Qt::QueuedConnection);
    if (!news.trouble.isEmpty())
        pyx_message_output(QLatin1String("PYXFileTracer: ") + news.trouble);
}

/** What the disk does not take now is lost. */
void FileTracerPrivate::closeSet()
{
    const QString before = std::exchange(lastError, QString());
    set.close();
    if (lastError.isEmpty())
        lastError = before;
    else
        note(false);
}

void FileTracerPrivate::write(PYXTracerBase::eLevel severity, const QByteArray &line)
{
    if (!set.isOpen())
        return;
    timedLine.resize(0);
    time.appendTo(timedLine, QDateTime::currentMSecsSinceEpoch());
    timedLine.append(line);
    if (severity == PYXTracerBase::ekLevel_Debug && !files.bWriteDebug) {
        debugLines.add(timedLine);
        return;
    }
    if (lostLines != toldLostLines)
        putNoteOfLoss();
    if (severity == PYXTracerBase::ekLevel_Error)
        putDebugLines();
    if (!put(timedLine))
        ++lostLines;
    if (severity == PYXTracerBase::ekLevel_Warn || severity == PYXTracerBase::ekLevel_Error)
        note(set.flush());
}

bool FileTracerPrivate::put(const QByteArray &line)
{
    if (m_bTorn && set.write("\n", 1) != 1)
        return false;
    const qint64 written = set.write(line);
    m_bTorn = written > 0 && written < line.size();
    // The line may have been the last one of its file.
    const QString path = set.currentFilePath().isEmpty() && written > 0 ? set.previousFilesPaths().last()
                                                                        : set.currentFilePath();
    if (!path.isEmpty() && path != m_knownPath) {
        m_knownPath = path;
        m_news.newPaths += path;
    }
    note(written == line.size());
    return written == line.size();
}

bool FileTracerPrivate::putTimed(const QByteArray &line)
{
    QByteArray timed;
    time.appendTo(timed, QDateTime::currentMSecsSinceEpoch());
    return put(timed + line);
}

/** As far as the disk takes them: the rest waits for the next error. */
void FileTracerPrivate::putDebugLines()
{
    if (debugLines.isEmpty() ||
        !putTimed(QByteArray("---- ") + QByteArray::number(quint64(debugLines.size())) +
                  " debug traces from before the error:\n"))
        return;
    while (!debugLines.isEmpty()) {
        if (!put(debugLines.takeOldest())) {
            ++lostLines;
            return;
        }
    }
    putTimed("---- the error:\n");
}

void FileTracerPrivate::putNoteOfLoss()
{
    const QString text =
        QStringLiteral("%1 traces were lost: %2").arg(QString::number(lostLines - toldLostLines), lastError);
    if (putTimed(traceLine(PYXTracerBase::ekLevel_Warn, text, TraceFile, __LINE__)))
        toldLostLines = lostLines;
}

/** Tells of trouble once, when it begins. */
void FileTracerPrivate::note(bool bSuccess)
{
    if (!bSuccess && !m_bTroubled)
        m_news.trouble = lastError;
    m_bTroubled = !bSuccess;
}

PYXFileTracer::PYXFileTracer(const struFiles &files)
    : d(std::make_unique<FileTracerPrivate>(files))
{}

PYXFileTracer::~PYXFileTracer()
{
    // Not left to the set: it tells of errors, which nobody could take any more.
    close();
}

bool PYXFileTracer::open()
{
    bool bOpen = false;
    d->run([&] {
        bOpen = d->set.isOpen() || d->set.open(QIODevice::WriteOnly | QIODevice::Text);
        d->lastError = bOpen ? QString() : d->set.errorString();
    });
    return bOpen;
}

void PYXFileTracer::close()
{
    d->run([this] { d->closeSet(); });
}

bool PYXFileTracer::flush()
{
    bool bFlushed = false;
    d->run([&] {
        bFlushed = d->set.flush();
        d->note(bFlushed);
    });
    return bFlushed;
}

bool PYXFileTracer::isOpen() const
{
    bool bOpen = false;
    d->run([&] { bOpen = d->set.isOpen(); });
    return bOpen;
}

QString PYXFileTracer::currentFilePath() const
{
    QString path;
    d->run([&] { path = d->set.currentFilePath(); });
    return path;
}

QString PYXFileTracer::errorString() const
{
    QString error;
    d->run([&] { error = d->lastError; });
    return error;
}

quint64 PYXFileTracer::lostLines() const
{
    quint64 lines = 0;
    d->run([&] { lines = d->lostLines; });
    return lines;
}

void PYXFileTracer::trace(const struTrace &trace)
{
    if (d->isRunningHere())
        return;
    const QByteArray line = traceLine(trace.level, trace.wholeText(), trace.file, trace.line);
    d->run([&] { d->write(trace.severity(), line); });
}

} // namespace PYXRuntime
