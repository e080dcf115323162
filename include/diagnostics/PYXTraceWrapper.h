// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "pyxruntime_export.h"
#include "PYXTracerBase.h"

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QStringList>

namespace PYXRuntime {

/**
 * The one channel through which the library and its applications report diagnostics.
 *
 * A call goes to the debug-out (debugger or standard error) where that is enabled or where no tracer is
 * plugged in, and then to every plugged-in tracer in the order of adding.
 *
 * @p file and @p line name the caller; file may be null. Usable before the library is initialised and
 * after it is shut down. Trace calls may come from any thread; tracers and switches are changed in one
 * thread (the main thread) while no trace call runs elsewhere; getInstance() and tracer() are called there
 * first. No lock is held while a tracer is called, but one of the caller may be, see IPYXTracer.
 */
class PYXRUNTIME_EXPORT PYXTraceWrapper : public QObject, public PYXTracerBase
{
    Q_OBJECT
    Q_DISABLE_COPY(PYXTraceWrapper)
    Q_INTERFACES(Interfaces::IPYXTracer2 : Interfaces::IPYXTracer)
public:
    ~PYXTraceWrapper() override;

    /** The wrapper as an object that can be handed around as a tracer itself; created on first use. */
    static PYXTraceWrapper *getInstance();
    static bool hasInstance();
    static void destroyInstance();
    /** The singleton seen through its tracer interface; created on first use. */
    static Interfaces::IPYXTracer *tracer();

    /**
     * Plugs a tracer in; null, a tracer already present and the wrapper itself are ignored. The caller
     * keeps ownership.
     */
    static void addTracer(Interfaces::IPYXTracer *tracer);
    /** Unplugs a tracer; this must happen before the tracer is destroyed. */
    static void removeTracer(Interfaces::IPYXTracer *tracer);
    static bool containsTracer(Interfaces::IPYXTracer *tracer);
    static QList<Interfaces::IPYXTracer *> tracers();

    /** Writes debug-out even when tracers are plugged in. Default: off. */
    static void enableDebugOutTrace(bool enable);
    static bool isDebugOutTraceEnabled();
    /**
     * Debug-out goes to standard output and takes each line as a printf format: "%%" prints one "%", and
     * any other conversion prints as if its argument were zero or an empty string. Default: off.
     */
    static void setUsePrintfForDebugOutTrace(bool usePrintf);
    static bool usingPrintfForDebugOutTrace();
    /** Colours debug-out by severity where it reaches a console. Default: off. */
    static void setColorConsoleOutput(bool colored);
    static bool coloredConsoleOutput();

    static void staticTraceDebug(const QString &text, const char *file, ushort line);
    static void staticTraceDebug(const QStringList &list, const char *file, ushort line);
    static void staticTraceInfo(const QString &text, const char *file, ushort line);
    static void staticTraceInfo(const QStringList &list, const char *file, ushort line);
    static void staticTraceWarn(const QString &text, const char *file, ushort line);
    static void staticTraceWarn(const QStringList &list, const char *file, ushort line);
    static void staticTraceError(const QString &text, const char *file, ushort line);
    static void staticTraceError(const QStringList &list, const char *file, ushort line);
    static void staticTrace_Debug_Info(const QString &text, const char *file, ushort line);
    static void staticTrace_Debug_Info(const QStringList &list, const char *file, ushort line);
    static void staticTrace_Debug_Warn(const QString &text, const char *file, ushort line);
    static void staticTrace_Debug_Warn(const QStringList &list, const char *file, ushort line);
    static void staticTrace_Debug_Error(const QString &text, const char *file, ushort line);
    static void staticTrace_Debug_Error(const QStringList &list, const char *file, ushort line);

    /** Two-text forms: debug-out shows the log text only, or the trace text where the log text is empty. */
    static void staticTraceX_Debug(const QString &traceText, const QString &logText, const char *file,
                                   ushort line);
    static void staticTraceX_Info(const QString &traceText, const QString &logText, const char *file,
                                  ushort line);
    static void staticTraceX_Warn(const QString &traceText, const QString &logText, const char *file,
                                  ushort line);
    static void staticTraceX_Error(const QString &traceText, const QString &logText, const char *file,
                                   ushort line);
    static void staticTraceX_Debug_Info(const QString &traceText, const QString &logText, const char *file,
                                        ushort line);
    static void staticTraceX_Debug_Warn(const QString &traceText, const QString &logText, const char *file,
                                        ushort line);
    static void staticTraceX_Debug_Error(const QString &traceText, const QString &logText, const char *file,
                                         ushort line);

protected:
    void trace(const struTrace &trace) override;

private:
    PYXTraceWrapper();
};

} // namespace PYXRuntime
