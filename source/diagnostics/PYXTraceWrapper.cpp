// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXTraceWrapper.h"

#include "Platform.h"
#include "PrintfLine.h"
#include "PYXMessageOutput.h"
#include "SingletonHolder.h"

#include <QtCore/QStringBuilder>

#include <atomic>

namespace PYXRuntime {
namespace {

using Interfaces::IPYXTracer;
using Interfaces::IPYXTracer2;
using Holder = SingletonHolder<PYXTraceWrapper>;

const QLatin1String DebugPrefix("Debug: ");
const QLatin1String ListSeparator(" | ");

std::atomic<bool> s_bDebugOutEnabled(false);
std::atomic<bool> s_bUsePrintf(false);
std::atomic<bool> s_bColored(false);

/** Never destroyed: tracing works until the process ends. */
QList<IPYXTracer *> &tracerList()
{
    static auto *const list = new QList<IPYXTracer *>;
    return *list;
}

template <typename Tracer, typename... Texts>
using Operation = void (Tracer::*)(Texts..., const char *, ushort);

template <typename Tracer>
struct struOperations
{
    Operation<Tracer, const QStringList &> list;
    Operation<Tracer, const QString &> text;
    Operation<Tracer, const QString &, const QString &> twoTexts;
};

struct struLevel
{
    const char *tag;
    Platform::eConsoleColour colour;
    /** The plain level, for a debug-qualified level the one that it falls back on. */
    struOperations<IPYXTracer> plain;
    /** Null in the plain levels. */
    struOperations<IPYXTracer2> qualified;
};

constexpr struOperations<IPYXTracer> DebugOperations = {&IPYXTracer::traceDebug, &IPYXTracer::traceDebug,
                                                        &IPYXTracer::traceX_Debug};
constexpr struOperations<IPYXTracer> InfoOperations = {&IPYXTracer::traceInfo, &IPYXTracer::traceInfo,
                                                       &IPYXTracer::traceX_Info};
constexpr struOperations<IPYXTracer> WarnOperations = {&IPYXTracer::traceWarn, &IPYXTracer::traceWarn,
                                                       &IPYXTracer::traceX_Warn};
constexpr struOperations<IPYXTracer> ErrorOperations = {&IPYXTracer::traceError, &IPYXTracer::traceError,
                                                        &IPYXTracer::traceX_Error};
constexpr struOperations<IPYXTracer2> Unqualified = {nullptr, nullptr, nullptr};

constexpr struLevel Debug = {"DEBUG", Platform::ekConsole_Cyan, DebugOperations, Unqualified};
constexpr struLevel Info = {"INFO", Platform::ekConsole_Green, InfoOperations, Unqualified};
constexpr struLevel Warn = {"WARN", Platform::ekConsole_Yellow, WarnOperations, Unqualified};
constexpr struLevel Error = {"ERROR", Platform::ekConsole_Red, ErrorOperations, Unqualified};
constexpr struLevel DebugInfo = {
    "DEBUG_INFO",
    Platform::ekConsole_Green,
    InfoOperations,
    {&IPYXTracer2::traceDebug_Info, &IPYXTracer2::traceDebug_Info, &IPYXTracer2::traceX_Debug_Info}};
constexpr struLevel DebugWarn = {
    "DEBUG_WARN",
    Platform::ekConsole_Yellow,
    WarnOperations,
    {&IPYXTracer2::traceDebug_Warn, &IPYXTracer2::traceDebug_Warn, &IPYXTracer2::traceX_Debug_Warn}};
constexpr struLevel DebugError = {
    "DEBUG_ERROR",
    Platform::ekConsole_Red,
    ErrorOperations,
    {&IPYXTracer2::traceDebug_Error, &IPYXTracer2::traceDebug_Error, &IPYXTracer2::traceX_Debug_Error}};

const struLevel &levelOf(PYXTracerBase::eLevel level)
{
    static constexpr const struLevel *Levels[] = {&Debug,     &Info,      &Warn,      &Error,
                                                  &DebugInfo, &DebugWarn, &DebugError};
    return *Levels[level];
}

QString prefixed(const QString &text)
{
    return text.isEmpty() ? text : DebugPrefix + text;
}

void writeDebugOut(const struLevel &level, const char *kind, const QString &text, const char *file,
                   ushort line)
{
    const bool bColored = s_bColored.load(std::memory_order_relaxed);
    if (bColored)
        Platform::setConsoleColour(level.colour);
    const QString output = QLatin1String(file) % QLatin1Char('(') % QString::number(line) %
                           QLatin1String(") : ") % QLatin1String(kind) % QLatin1String(level.tag) %
                           QLatin1String(" : ") % text;
    if (s_bUsePrintf.load(std::memory_order_relaxed))
        Platform::writeStandardOutputLine(printfLine(output.toUtf8()));
    else
        pyx_message_output(output);
    if (bColored)
        Platform::setConsoleColour(Platform::ekConsole_White);
}

bool writesDebugOut()
{
    return s_bDebugOutEnabled.load(std::memory_order_relaxed) || qAsConst(tracerList()).isEmpty();
}

/**
 * Hands a call to every tracer: @p qualified to those that know the debug-qualified level, @p plain to
 * the others. A copy of the list is walked, so that a tracer may add and remove tracers.
 */
template <typename Plain, typename Qualified>
void forEachTracer(const struLevel &level, Plain plain, Qualified qualified)
{
    const QList<IPYXTracer *> tracers = tracerList();
    for (IPYXTracer *tracer : tracers) {
        Q_ASSERT(tracer != nullptr); // addTracer() lets none in
        auto *const tracer2 = level.qualified.text != nullptr ? dynamic_cast<IPYXTracer2 *>(tracer) : nullptr;
        if (tracer2 != nullptr)
            qualified(tracer2);
        else
            plain(tracer);
    }
}

void dispatch(const struLevel &level, const QString &text, const char *file, ushort line)
{
    if (writesDebugOut())
        writeDebugOut(level, "TRACE_", text, file, line);
    const bool bQualified = level.qualified.text != nullptr;
    forEachTracer(
        level,
        [&](IPYXTracer *tracer) {
            if (!bQualified)
                (tracer->*level.plain.text)(text, file, line);
            else if (!text.isEmpty())
                (tracer->*level.plain.text)(prefixed(text), file, line);
        },
        [&](IPYXTracer2 *tracer) { (tracer->*level.qualified.text)(text, file, line); });
}

void dispatch(const struLevel &level, const QStringList &list, const char *file, ushort line)
{
    if (writesDebugOut())
        writeDebugOut(level, "TRACE_", list.join(ListSeparator), file, line);
    // A plain tracer gets the list of a debug-qualified call unchanged, without prefix and even if empty.
    forEachTracer(
        level, [&](IPYXTracer *tracer) { (tracer->*level.plain.list)(list, file, line); },
        [&](IPYXTracer2 *tracer) { (tracer->*level.qualified.list)(list, file, line); });
}

void dispatch(const struLevel &level, const QString &traceText, const QString &logText, const char *file,
              ushort line)
{
    if (writesDebugOut()) {
        if (logText.isEmpty())
            writeDebugOut(level, "TRACE_", traceText, file, line);
        else
            writeDebugOut(level, "LOG_", logText, file, line);
    }
    const bool bQualified = level.qualified.text != nullptr;
    forEachTracer(
        level,
        [&](IPYXTracer *tracer) {
            if (bQualified)
                (tracer->*level.plain.twoTexts)(prefixed(traceText), prefixed(logText), file, line);
            else
                (tracer->*level.plain.twoTexts)(traceText, logText, file, line);
        },
        [&](IPYXTracer2 *tracer) { (tracer->*level.qualified.twoTexts)(traceText, logText, file, line); });
}

} // namespace

PYXTraceWrapper::PYXTraceWrapper() = default;
PYXTraceWrapper::~PYXTraceWrapper() = default;

PYXTraceWrapper *PYXTraceWrapper::getInstance()
{
    return Holder::instance([] { return new PYXTraceWrapper; });
}

bool PYXTraceWrapper::hasInstance()
{
    return Holder::existing() != nullptr;
}

void PYXTraceWrapper::destroyInstance()
{
    Holder::destroy();
}

IPYXTracer *PYXTraceWrapper::tracer()
{
    return getInstance();
}

void PYXTraceWrapper::addTracer(IPYXTracer *tracer)
{
    // The wrapper as its own tracer would call itself without end.
    if (tracer == nullptr || dynamic_cast<PYXTraceWrapper *>(tracer) != nullptr || containsTracer(tracer))
        return;
    tracerList().append(tracer);
}

void PYXTraceWrapper::removeTracer(IPYXTracer *tracer)
{
    if (containsTracer(tracer))
        tracerList().removeAll(tracer);
}

bool PYXTraceWrapper::containsTracer(IPYXTracer *tracer)
{
    return tracer != nullptr && qAsConst(tracerList()).contains(tracer);
}

QList<IPYXTracer *> PYXTraceWrapper::tracers()
{
    return tracerList();
}

void PYXTraceWrapper::enableDebugOutTrace(bool enable)
{
    s_bDebugOutEnabled = enable;
}

bool PYXTraceWrapper::isDebugOutTraceEnabled()
{
    return s_bDebugOutEnabled;
}

void PYXTraceWrapper::setUsePrintfForDebugOutTrace(bool usePrintf)
{
    s_bUsePrintf = usePrintf;
}

bool PYXTraceWrapper::usingPrintfForDebugOutTrace()
{
    return s_bUsePrintf;
}

void PYXTraceWrapper::setColorConsoleOutput(bool colored)
{
    s_bColored = colored;
}

bool PYXTraceWrapper::coloredConsoleOutput()
{
    return s_bColored;
}

void PYXTraceWrapper::staticTraceDebug(const QString &text, const char *file, ushort line)
{
    dispatch(Debug, text, file, line);
}

void PYXTraceWrapper::staticTraceDebug(const QStringList &list, const char *file, ushort line)
{
    dispatch(Debug, list, file, line);
}

void PYXTraceWrapper::staticTraceX_Debug(const QString &traceText, const QString &logText, const char *file,
                                         ushort line)
{
    dispatch(Debug, traceText, logText, file, line);
}

void PYXTraceWrapper::staticTraceInfo(const QString &text, const char *file, ushort line)
{
    dispatch(Info, text, file, line);
}

void PYXTraceWrapper::staticTraceInfo(const QStringList &list, const char *file, ushort line)
{
    dispatch(Info, list, file, line);
}

void PYXTraceWrapper::staticTraceX_Info(const QString &traceText, const QString &logText, const char *file,
                                        ushort line)
{
    dispatch(Info, traceText, logText, file, line);
}

void PYXTraceWrapper::staticTraceWarn(const QString &text, const char *file, ushort line)
{
    dispatch(Warn, text, file, line);
}

void PYXTraceWrapper::staticTraceWarn(const QStringList &list, const char *file, ushort line)
{
    dispatch(Warn, list, file, line);
}

void PYXTraceWrapper::staticTraceX_Warn(const QString &traceText, const QString &logText, const char *file,
                                        ushort line)
{
    dispatch(Warn, traceText, logText, file, line);
}

void PYXTraceWrapper::staticTraceError(const QString &text, const char *file, ushort line)
{
    dispatch(Error, text, file, line);
}

void PYXTraceWrapper::staticTraceError(const QStringList &list, const char *file, ushort line)
{
    dispatch(Error, list, file, line);
}

void PYXTraceWrapper::staticTraceX_Error(const QString &traceText, const QString &logText, const char *file,
                                         ushort line)
{
    dispatch(Error, traceText, logText, file, line);
}

void PYXTraceWrapper::staticTrace_Debug_Info(const QString &text, const char *file, ushort line)
{
    dispatch(DebugInfo, text, file, line);
}

void PYXTraceWrapper::staticTrace_Debug_Info(const QStringList &list, const char *file, ushort line)
{
    dispatch(DebugInfo, list, file, line);
}

void PYXTraceWrapper::staticTraceX_Debug_Info(const QString &traceText, const QString &logText,
                                              const char *file, ushort line)
{
    dispatch(DebugInfo, traceText, logText, file, line);
}

void PYXTraceWrapper::staticTrace_Debug_Warn(const QString &text, const char *file, ushort line)
{
    dispatch(DebugWarn, text, file, line);
}

void PYXTraceWrapper::staticTrace_Debug_Warn(const QStringList &list, const char *file, ushort line)
{
    dispatch(DebugWarn, list, file, line);
}

void PYXTraceWrapper::staticTraceX_Debug_Warn(const QString &traceText, const QString &logText,
                                              const char *file, ushort line)
{
    dispatch(DebugWarn, traceText, logText, file, line);
}

void PYXTraceWrapper::staticTrace_Debug_Error(const QString &text, const char *file, ushort line)
{
    dispatch(DebugError, text, file, line);
}

void PYXTraceWrapper::staticTrace_Debug_Error(const QStringList &list, const char *file, ushort line)
{
    dispatch(DebugError, list, file, line);
}

void PYXTraceWrapper::staticTraceX_Debug_Error(const QString &traceText, const QString &logText,
                                               const char *file, ushort line)
{
    dispatch(DebugError, traceText, logText, file, line);
}

void PYXTraceWrapper::trace(const struTrace &trace)
{
    const struLevel &level = levelOf(trace.level);
    switch (trace.form) {
    case ekForm_List:
        return dispatch(level, trace.list, trace.file, trace.line);
    case ekForm_TwoTexts:
        return dispatch(level, trace.text, trace.logText, trace.file, trace.line);
    default:
        return dispatch(level, trace.text, trace.file, trace.line);
    }
}

} // namespace PYXRuntime
