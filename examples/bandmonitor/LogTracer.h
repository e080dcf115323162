// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <IPYXTracer.h>

#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QVector>

#include <mutex>

namespace BandMonitor {

/**
 * A tracer for a log that is shown in a window. Traces come in any thread and wait here until the log
 * takes them in its own; where they come faster than that, the oldest are dropped.
 */
class LogTracer final : public QObject, public Interfaces::IPYXTracer2
{
    Q_OBJECT
    Q_INTERFACES(Interfaces::IPYXTracer2 : Interfaces::IPYXTracer)
public:
    enum eLevel { ekLevel_Debug, ekLevel_Info, ekLevel_Warning, ekLevel_Error };

    struct struLine
    {
        eLevel level = ekLevel_Debug;
        qint64 time = 0; ///< in milliseconds since 1970, UTC
        QString origin;  ///< a module, or a runtime scope
        QString text;
    };

    /** As many lines as wait at most. */
    static constexpr int MaximumLines = 1000;

    using QObject::QObject;

    /** The lines that came since the last call. Any thread. */
    QVector<struLine> takeLines();

    void traceDebug(const QStringList &list, const char *file, ushort line) override;
    void traceDebug(const QString &text, const char *file, ushort line) override;
    void traceInfo(const QStringList &list, const char *file, ushort line) override;
    void traceInfo(const QString &text, const char *file, ushort line) override;
    void traceWarn(const QStringList &list, const char *file, ushort line) override;
    void traceWarn(const QString &text, const char *file, ushort line) override;
    void traceError(const QStringList &list, const char *file, ushort line) override;
    void traceError(const QString &text, const char *file, ushort line) override;
    void traceX_Debug(const QString &traceText, const QString &logText, const char *file,
                      ushort line) override;
    void traceX_Info(const QString &traceText, const QString &logText, const char *file,
                     ushort line) override;
    void traceX_Warn(const QString &traceText, const QString &logText, const char *file,
                     ushort line) override;
    void traceX_Error(const QString &traceText, const QString &logText, const char *file,
                      ushort line) override;
    void traceDebug_Info(const QStringList &list, const char *file, ushort line) override;
    void traceDebug_Info(const QString &text, const char *file, ushort line) override;
    void traceDebug_Warn(const QStringList &list, const char *file, ushort line) override;
    void traceDebug_Warn(const QString &text, const char *file, ushort line) override;
    void traceDebug_Error(const QStringList &list, const char *file, ushort line) override;
    void traceDebug_Error(const QString &text, const char *file, ushort line) override;
    void traceX_Debug_Info(const QString &traceText, const QString &logText, const char *file,
                           ushort line) override;
    void traceX_Debug_Warn(const QString &traceText, const QString &logText, const char *file,
                           ushort line) override;
    void traceX_Debug_Error(const QString &traceText, const QString &logText, const char *file,
                            ushort line) override;

Q_SIGNALS:
    /** Emitted in the thread that traces, once for all lines that then wait. */
    void si_linesWaiting();

private:
    void _add(eLevel level, const QString &text, const char *file);

    std::mutex m_mutex;
    QVector<struLine> m_lines;
};

} // namespace BandMonitor
