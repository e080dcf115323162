// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include <QtWidgets/QApplication>

#ifdef STARTPROBE_WITH_PYXRUNTIME
#include "PYXRuntime.h"
#include "PYXTraceWrapper.h"
#include "RecordingTracer.h"
#endif

/** Starts an application and ends it at once; with the library: "loaded", "no fonts" or "fonts". */
int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QCoreApplication::setApplicationName("startprobe");
#ifdef STARTPROBE_WITH_PYXRUNTIME
    RecordingTracer tracer; // instead of lines on standard error
    PYXRuntime::PYXTraceWrapper::addTracer(&tracer);
    const QByteArray variant = argc > 1 ? argv[1] : "loaded";
    if (variant != "loaded") {
        PYXRuntime::initialize_PYXRuntime(variant == "fonts" ? PYXRuntime::ekInitialize_Default
                                                             : PYXRuntime::ekInitialize_NoFonts);
    }
#endif
    return 0;
}
