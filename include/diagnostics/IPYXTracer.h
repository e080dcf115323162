// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QStringList>

namespace Interfaces {

/**
 * Receives the traces of the library and of the application, once it is added to PYXTraceWrapper.
 *
 * Every level comes in three forms: one text, a list of texts, and a trace text with a separate log text.
 * @p file and @p line name the caller; the file is only valid during the call. Calls come in whichever
 * thread traces, so an implementation must be safe for all of them. They may come while a settings file is
 * being read or written: a tracer that then uses the same store waits for itself, so let it use no settings.
 * The order of the operations is part of the binary contract.
 */
class IPYXTracer
{
public:
    virtual ~IPYXTracer() = default;
    virtual void traceDebug(const QStringList &list, const char *file, ushort line) = 0;
    virtual void traceDebug(const QString &text, const char *file, ushort line) = 0;
    virtual void traceInfo(const QStringList &list, const char *file, ushort line) = 0;
    virtual void traceInfo(const QString &text, const char *file, ushort line) = 0;
    virtual void traceWarn(const QStringList &list, const char *file, ushort line) = 0;
    virtual void traceWarn(const QString &text, const char *file, ushort line) = 0;
    virtual void traceError(const QStringList &list, const char *file, ushort line) = 0;
    virtual void traceError(const QString &text, const char *file, ushort line) = 0;
    virtual void traceX_Debug(const QString &traceText, const QString &logText, const char *file,
                              ushort line) = 0;
    virtual void traceX_Info(const QString &traceText, const QString &logText, const char *file,
                             ushort line) = 0;
    virtual void traceX_Warn(const QString &traceText, const QString &logText, const char *file,
                             ushort line) = 0;
    virtual void traceX_Error(const QString &traceText, const QString &logText, const char *file,
                              ushort line) = 0;
};

/**
 * A tracer that also tells the debug-qualified levels apart. A tracer without this interface receives
 * them as the plain level, each text with "Debug: " in front.
 */
class IPYXTracer2 : public IPYXTracer
{
public:
    virtual void traceDebug_Info(const QStringList &list, const char *file, ushort line) = 0;
    virtual void traceDebug_Info(const QString &text, const char *file, ushort line) = 0;
    virtual void traceDebug_Warn(const QStringList &list, const char *file, ushort line) = 0;
    virtual void traceDebug_Warn(const QString &text, const char *file, ushort line) = 0;
    virtual void traceDebug_Error(const QStringList &list, const char *file, ushort line) = 0;
    virtual void traceDebug_Error(const QString &text, const char *file, ushort line) = 0;
    virtual void traceX_Debug_Info(const QString &traceText, const QString &logText, const char *file,
                                   ushort line) = 0;
    virtual void traceX_Debug_Warn(const QString &traceText, const QString &logText, const char *file,
                                   ushort line) = 0;
    virtual void traceX_Debug_Error(const QString &traceText, const QString &logText, const char *file,
                                    ushort line) = 0;
};

} // namespace Interfaces

Q_DECLARE_INTERFACE(Interfaces::IPYXTracer, "com.varnholt.Interfaces.IPYXTracer/1.0")
Q_DECLARE_INTERFACE(Interfaces::IPYXTracer2, "com.varnholt.Interfaces.IPYXTracer2/1.0")
