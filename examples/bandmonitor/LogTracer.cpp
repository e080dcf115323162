// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#include "LogTracer.h"

#include <QtCore/QDateTime>

namespace BandMonitor {
namespace {

const QLatin1String ListSeparator(", ");

/** A trace that comes with a longer text for the log: both. */
QString joined(const QString &traceText, const QString &logText)
{
    return logText.isEmpty() || logText == traceText ? traceText : traceText + QLatin1String(": ") + logText;
}

} // namespace

QVector<LogTracer::struLine> LogTracer::takeLines()
{
    const std::lock_guard<std::mutex> locker(m_mutex);
    QVector<struLine> lines;
    lines.swap(m_lines);
    return lines;
}

void LogTracer::_add(eLevel level, const QString &text, const char *file)
{
    const struLine line{level, QDateTime::currentMSecsSinceEpoch(), QString::fromLatin1(file), text};
    bool bFirst = false;
    {
        const std::lock_guard<std::mutex> locker(m_mutex);
        bFirst = m_lines.isEmpty();
        if (m_lines.size() == MaximumLines)
            m_lines.removeFirst();
        m_lines += line;
    }
    if (bFirst)
        Q_EMIT si_linesWaiting();
}

void LogTracer::traceDebug(const QStringList &list, const char *file, ushort)
{
    _add(ekLevel_Debug, list.join(ListSeparator), file);
}

void LogTracer::traceDebug(const QString &text, const char *file, ushort)
{
    _add(ekLevel_Debug, text, file);
}

void LogTracer::traceX_Debug(const QString &traceText, const QString &logText, const char *file, ushort)
{
    _add(ekLevel_Debug, joined(traceText, logText), file);
}

void LogTracer::traceInfo(const QStringList &list, const char *file, ushort)
{
    _add(ekLevel_Info, list.join(ListSeparator), file);
}

void LogTracer::traceInfo(const QString &text, const char *file, ushort)
{
    _add(ekLevel_Info, text, file);
}

void LogTracer::traceX_Info(const QString &traceText, const QString &logText, const char *file, ushort)
{
    _add(ekLevel_Info, joined(traceText, logText), file);
}

void LogTracer::traceWarn(const QStringList &list, const char *file, ushort)
{
    _add(ekLevel_Warning, list.join(ListSeparator), file);
}

void LogTracer::traceWarn(const QString &text, const char *file, ushort)
{
    _add(ekLevel_Warning, text, file);
}

void LogTracer::traceX_Warn(const QString &traceText, const QString &logText, const char *file, ushort)
{
    _add(ekLevel_Warning, joined(traceText, logText), file);
}

void LogTracer::traceError(const QStringList &list, const char *file, ushort)
{
    _add(ekLevel_Error, list.join(ListSeparator), file);
}

void LogTracer::traceError(const QString &text, const char *file, ushort)
{
    _add(ekLevel_Error, text, file);
}

void LogTracer::traceX_Error(const QString &traceText, const QString &logText, const char *file, ushort)
{
    _add(ekLevel_Error, joined(traceText, logText), file);
}

void LogTracer::traceDebug_Info(const QStringList &list, const char *file, ushort)
{
    _add(ekLevel_Info, list.join(ListSeparator), file);
}

void LogTracer::traceDebug_Info(const QString &text, const char *file, ushort)
{
    _add(ekLevel_Info, text, file);
}

void LogTracer::traceX_Debug_Info(const QString &traceText, const QString &logText, const char *file, ushort)
{
    _add(ekLevel_Info, joined(traceText, logText), file);
}

void LogTracer::traceDebug_Warn(const QStringList &list, const char *file, ushort)
{
    _add(ekLevel_Warning, list.join(ListSeparator), file);
}

void LogTracer::traceDebug_Warn(const QString &text, const char *file, ushort)
{
    _add(ekLevel_Warning, text, file);
}

void LogTracer::traceX_Debug_Warn(const QString &traceText, const QString &logText, const char *file, ushort)
{
    _add(ekLevel_Warning, joined(traceText, logText), file);
}

void LogTracer::traceDebug_Error(const QStringList &list, const char *file, ushort)
{
    _add(ekLevel_Error, list.join(ListSeparator), file);
}

void LogTracer::traceDebug_Error(const QString &text, const char *file, ushort)
{
    _add(ekLevel_Error, text, file);
}

void LogTracer::traceX_Debug_Error(const QString &traceText, const QString &logText, const char *file, ushort)
{
    _add(ekLevel_Error, joined(traceText, logText), file);
}

} // namespace BandMonitor
