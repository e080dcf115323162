// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QStringList>
#include <QtCore/QtGlobal>

/** Takes the warnings of Qt's message output for as long as it lives. One at a time. */
class WarningRecorder
{
public:
    WarningRecorder()
    {
        texts().clear();
        m_previous = qInstallMessageHandler(record);
    }
    ~WarningRecorder() { qInstallMessageHandler(m_previous); }
    Q_DISABLE_COPY(WarningRecorder)

    static QStringList &texts()
    {
        static QStringList list;
        return list;
    }

private:
    static void record(QtMsgType type, const QMessageLogContext &, const QString &text)
    {
        if (type == QtWarningMsg)
            texts().append(text);
    }

    QtMessageHandler m_previous;
};
