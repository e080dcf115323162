// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "PYXTraceWrapper.h"

#include <QtCore/QStringList>

#include <functional>
#include <utility>

/** Overrides the three forms of one level. */
#define RECORD_LEVEL(level)                                                                                  \
    void trace##level(const QStringList &list, const char *file, ushort line) override                       \
    {                                                                                                        \
        record(#level, list.join('+'), file, line);                                                          \
    }                                                                                                        \
    void trace##level(const QString &text, const char *file, ushort line) override                           \
    {                                                                                                        \
        record(#level, text, file, line);                                                                    \
    }                                                                                                        \
    void traceX_##level(const QString &trace, const QString &log, const char *file, ushort line) override    \
    {                                                                                                        \
        record("X_" #level, trace + '/' + log, file, line);                                                  \
    }

/**
 * A tracer that writes every call down: "<operation>|<texts>|<file>|<line>", lists with "+" between.
 * It unplugs itself.
 */
template <typename Interface>
class RecordingTracerOf : public Interface
{
public:
    ~RecordingTracerOf() override { PYXRuntime::PYXTraceWrapper::removeTracer(this); }
    RECORD_LEVEL(Debug)
    RECORD_LEVEL(Info)
    RECORD_LEVEL(Warn)
    RECORD_LEVEL(Error)

    QStringList calls;

protected:
    void record(const char *operation, const QString &texts, const char *file, ushort line)
    {
        calls += QString("%1|%2|%3|%4")
                     .arg(QLatin1String(operation), texts, QLatin1String(file), QString::number(line));
    }
};

using RecordingTracer = RecordingTracerOf<Interfaces::IPYXTracer>;

/** The same for the debug-qualified levels. */
class RecordingTracer2 : public RecordingTracerOf<Interfaces::IPYXTracer2>
{
public:
    RECORD_LEVEL(Debug_Info)
    RECORD_LEVEL(Debug_Warn)
    RECORD_LEVEL(Debug_Error)
};

/** Does something at the first trace. */
class ActingTracer : public PYXRuntime::PYXTracerBase
{
public:
    explicit ActingTracer(std::function<void()> action)
        : m_action(std::move(action))
    {
        PYXRuntime::PYXTraceWrapper::addTracer(this);
    }
    ~ActingTracer() override { PYXRuntime::PYXTraceWrapper::removeTracer(this); }

protected:
    void trace(const struTrace &) override
    {
        if (const auto once = std::exchange(m_action, {}))
            once();
    }

private:
    std::function<void()> m_action;
};

/** What a tracer gets while a function runs. */
template <typename Function>
QStringList tracesOf(Function function)
{
    RecordingTracer tracer;
    PYXRuntime::PYXTraceWrapper::addTracer(&tracer);
    function();
    return tracer.calls;
}

/** The traces without their line numbers, which change with every edit. */
inline QStringList withoutLines(QStringList traces)
{
    for (QString &trace : traces)
        trace.truncate(trace.lastIndexOf('|'));
    return traces;
}
