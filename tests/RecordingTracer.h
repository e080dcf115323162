// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "IPYXTracer.h"

#include <QtCore/QStringList>

/** A tracer that writes every call down: "<operation>|<texts>|<file>|<line>", lists with "+" between. */
template <typename Interface>
class RecordingTracerOf : public Interface
{
public:
    using Text = const QString &;
    using List = const QStringList &;

    void traceDebug(List l, const char *f, ushort n) override { record("Debug", l.join('+'), f, n); }
    void traceDebug(Text t, const char *f, ushort n) override { record("Debug", t, f, n); }
    void traceInfo(List l, const char *f, ushort n) override { record("Info", l.join('+'), f, n); }
    void traceInfo(Text t, const char *f, ushort n) override { record("Info", t, f, n); }
    void traceWarn(List l, const char *f, ushort n) override { record("Warn", l.join('+'), f, n); }
    void traceWarn(Text t, const char *f, ushort n) override { record("Warn", t, f, n); }
    void traceError(List l, const char *f, ushort n) override { record("Error", l.join('+'), f, n); }
    void traceError(Text t, const char *f, ushort n) override { record("Error", t, f, n); }
    void traceX_Debug(Text t, Text l, const char *f, ushort n) override
    {
        record("X_Debug", t + '/' + l, f, n);
    }
    void traceX_Info(Text t, Text l, const char *f, ushort n) override
    {
        record("X_Info", t + '/' + l, f, n);
    }
    void traceX_Warn(Text t, Text l, const char *f, ushort n) override
    {
        record("X_Warn", t + '/' + l, f, n);
    }
    void traceX_Error(Text t, Text l, const char *f, ushort n) override
    {
        record("X_Error", t + '/' + l, f, n);
    }

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
    void traceDebug_Info(List l, const char *f, ushort n) override
    {
        record("Debug_Info", l.join('+'), f, n);
    }
    void traceDebug_Info(Text t, const char *f, ushort n) override { record("Debug_Info", t, f, n); }
    void traceDebug_Warn(List l, const char *f, ushort n) override
    {
        record("Debug_Warn", l.join('+'), f, n);
    }
    void traceDebug_Warn(Text t, const char *f, ushort n) override { record("Debug_Warn", t, f, n); }
    void traceDebug_Error(List l, const char *f, ushort n) override
    {
        record("Debug_Error", l.join('+'), f, n);
    }
    void traceDebug_Error(Text t, const char *f, ushort n) override { record("Debug_Error", t, f, n); }
    void traceX_Debug_Info(Text t, Text l, const char *f, ushort n) override
    {
        record("X_Debug_Info", t + '/' + l, f, n);
    }
    void traceX_Debug_Warn(Text t, Text l, const char *f, ushort n) override
    {
        record("X_Debug_Warn", t + '/' + l, f, n);
    }
    void traceX_Debug_Error(Text t, Text l, const char *f, ushort n) override
    {
        record("X_Debug_Error", t + '/' + l, f, n);
    }
};
