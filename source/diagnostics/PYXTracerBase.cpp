// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXTracerBase.h"

namespace PYXRuntime {
namespace {

const QLatin1String ListSeparator(" | ");

} // namespace

PYXTracerBase::eLevel PYXTracerBase::struTrace::severity() const
{
    switch (level) {
    case ekLevel_DebugInfo:
        return ekLevel_Info;
    case ekLevel_DebugWarn:
        return ekLevel_Warn;
    case ekLevel_DebugError:
        return ekLevel_Error;
    default:
        return level;
    }
}

QString PYXTracerBase::struTrace::wholeText() const
{
    if (form == ekForm_List)
        return list.join(ListSeparator);
    const bool bOnlyText = form == ekForm_Text || logText.isEmpty() || logText == text;
    if (bOnlyText || text.isEmpty())
        return bOnlyText ? text : logText;
    return text + QLatin1String(": ") + logText;
}

void PYXTracerBase::traceDebug(const QStringList &list, const char *file, ushort line)
{
    trace({ekLevel_Debug, ekForm_List, {}, {}, list, file, line});
}

void PYXTracerBase::traceDebug(const QString &text, const char *file, ushort line)
{
    trace({ekLevel_Debug, ekForm_Text, text, {}, {}, file, line});
}

void PYXTracerBase::traceX_Debug(const QString &traceText, const QString &logText, const char *file,
                                 ushort line)
{
    trace({ekLevel_Debug, ekForm_TwoTexts, traceText, logText, {}, file, line});
}

void PYXTracerBase::traceInfo(const QStringList &list, const char *file, ushort line)
{
    trace({ekLevel_Info, ekForm_List, {}, {}, list, file, line});
}

void PYXTracerBase::traceInfo(const QString &text, const char *file, ushort line)
{
    trace({ekLevel_Info, ekForm_Text, text, {}, {}, file, line});
}

void PYXTracerBase::traceX_Info(const QString &traceText, const QString &logText, const char *file,
                                ushort line)
{
    trace({ekLevel_Info, ekForm_TwoTexts, traceText, logText, {}, file, line});
}

void PYXTracerBase::traceWarn(const QStringList &list, const char *file, ushort line)
{
    trace({ekLevel_Warn, ekForm_List, {}, {}, list, file, line});
}

void PYXTracerBase::traceWarn(const QString &text, const char *file, ushort line)
{
    trace({ekLevel_Warn, ekForm_Text, text, {}, {}, file, line});
}

void PYXTracerBase::traceX_Warn(const QString &traceText, const QString &logText, const char *file,
                                ushort line)
{
    trace({ekLevel_Warn, ekForm_TwoTexts, traceText, logText, {}, file, line});
}

void PYXTracerBase::traceError(const QStringList &list, const char *file, ushort line)
{
    trace({ekLevel_Error, ekForm_List, {}, {}, list, file, line});
}

void PYXTracerBase::traceError(const QString &text, const char *file, ushort line)
{
    trace({ekLevel_Error, ekForm_Text, text, {}, {}, file, line});
}

void PYXTracerBase::traceX_Error(const QString &traceText, const QString &logText, const char *file,
                                 ushort line)
{
    trace({ekLevel_Error, ekForm_TwoTexts, traceText, logText, {}, file, line});
}

void PYXTracerBase::traceDebug_Info(const QStringList &list, const char *file, ushort line)
{
    trace({ekLevel_DebugInfo, ekForm_List, {}, {}, list, file, line});
}

void PYXTracerBase::traceDebug_Info(const QString &text, const char *file, ushort line)
{
    trace({ekLevel_DebugInfo, ekForm_Text, text, {}, {}, file, line});
}

void PYXTracerBase::traceX_Debug_Info(const QString &traceText, const QString &logText, const char *file,
                                      ushort line)
{
    trace({ekLevel_DebugInfo, ekForm_TwoTexts, traceText, logText, {}, file, line});
}

void PYXTracerBase::traceDebug_Warn(const QStringList &list, const char *file, ushort line)
{
    trace({ekLevel_DebugWarn, ekForm_List, {}, {}, list, file, line});
}

void PYXTracerBase::traceDebug_Warn(const QString &text, const char *file, ushort line)
{
    trace({ekLevel_DebugWarn, ekForm_Text, text, {}, {}, file, line});
}

void PYXTracerBase::traceX_Debug_Warn(const QString &traceText, const QString &logText, const char *file,
                                      ushort line)
{
    trace({ekLevel_DebugWarn, ekForm_TwoTexts, traceText, logText, {}, file, line});
}

void PYXTracerBase::traceDebug_Error(const QStringList &list, const char *file, ushort line)
{
    trace({ekLevel_DebugError, ekForm_List, {}, {}, list, file, line});
}

void PYXTracerBase::traceDebug_Error(const QString &text, const char *file, ushort line)
{
    trace({ekLevel_DebugError, ekForm_Text, text, {}, {}, file, line});
}

void PYXTracerBase::traceX_Debug_Error(const QString &traceText, const QString &logText, const char *file,
                                       ushort line)
{
    trace({ekLevel_DebugError, ekForm_TwoTexts, traceText, logText, {}, file, line});
}

} // namespace PYXRuntime
