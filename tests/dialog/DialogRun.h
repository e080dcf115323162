// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "PYXSettings.h"
#include "PYXSettingsDialog.h"
#include "RecordingTracer.h"
#include "SettingsHome.h"

#include <QtCore/QTimer>
#include <QtTest/QTest>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QPushButton>

/** A dialog on stores of its own. */
class DialogRun
{
public:
    DialogRun() { PYXRuntime::PYXTraceWrapper::addTracer(&tracer); }

    /** Runs the dialog; the function is called inside its loop and may leave it running: it is closed then.
     */
    template <typename Function>
    int run(Function inside, PYXRuntime::PYXSettingsHandlerWidget *page = nullptr)
    {
        QTimer::singleShot(0, &dialog, [&] {
            if (QTest::qWaitForWindowActive(&dialog))
                inside();
            if (dialog.isVisible())
                dialog.done(-1);
        });
        return dialog.exec(settings, defaults, shared, sharedDefaults, page);
    }
    /** Of the box "Page" or "Dialog". */
    QPushButton *button(const QString &box, QDialogButtonBox::StandardButton which)
    {
        return dialog.findChild<QDialogButtonBox *>("m_ButtonBox" + box)->button(which);
    }

    RecordingTracer tracer;
    SettingsHome home;
    PYXRuntime::PYXSettings settings{PYXRuntime::PYXSettings::eUserApplicationSettings};
    PYXRuntime::PYXSettings defaults{PYXRuntime::PYXSettings::eDefaultApplicationSettings};
    PYXRuntime::PYXSettings shared{PYXRuntime::PYXSettings::eUserSharedSettings};
    PYXRuntime::PYXSettings sharedDefaults{PYXRuntime::PYXSettings::eDefaultSharedSettings};
    PYXRuntime::PYXSettingsDialog dialog;
};
