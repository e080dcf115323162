// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "IPYXTracer.h"
#include "pyxruntime_export.h"

#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QStringList>

namespace PYXRuntime {

/**
 * A tracer with one operation to implement, trace(), instead of one for each level and form. Calls come in
 * whichever thread traces.
 */
class PYXRUNTIME_EXPORT PYXTracerBase : public Interfaces::IPYXTracer2
{
    Q_GADGET
public:
    enum eLevel {
        ekLevel_Debug,
        ekLevel_Info,
        ekLevel_Warn,
        ekLevel_Error,
        ekLevel_DebugInfo,
        ekLevel_DebugWarn,
        ekLevel_DebugError
    };
    Q_ENUM(eLevel)
    enum eForm { ekForm_Text, ekForm_List, ekForm_TwoTexts };
    Q_ENUM(eForm)

    struct PYXRUNTIME_EXPORT struTrace
    {
        eLevel level = ekLevel_Debug;
        eForm form = ekForm_Text;
        QString text;               ///< of the forms with one text or two
        QString logText;            ///< of the form with two texts
        QStringList list;           ///< of the form with a list
        const char *file = nullptr; ///< names the caller; may be null, and is only valid during the call
        ushort line = 0;

        /** How bad it is, debug-qualified or not: ekLevel_Debug to ekLevel_Error. */
        eLevel severity() const;
        /** In any form: the texts of a list with " | " between, two texts with ": " if they differ. */
        QString wholeText() const;
    };

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

protected:
    virtual void trace(const struTrace &trace) = 0;
};

} // namespace PYXRuntime
