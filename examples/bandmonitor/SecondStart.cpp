// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#include "SecondStart.h"

#include "CommandLine.h"
#include "MainWindow.h"

#include <PYXAppInternalsSimple.h>
#include <PYXSingleInstance.h>

namespace BandMonitor {

using PYXRuntime::PYXSingleInstance;

void takeSecondStarts(PYXSingleInstance *instance, PYXRuntime::PYXAppInternalsSimple *internals,
                      MainWindow *window)
{
    internals->connectSingleInstance(instance); // before, so that it has the arguments already
    QObject::connect(instance, &PYXSingleInstance::si_argumentsReceived, window,
                     [internals, window](const QStringList &, const QString &workingDirectory) {
                         const QString recording = CommandLine::recordingOf(
                             internals->cmdLineArgs_withoutStandard(), workingDirectory);
                         window->bringToFront();
                         if (!recording.isEmpty())
                             window->openRecording(recording);
                     });
}

} // namespace BandMonitor
