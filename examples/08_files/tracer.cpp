// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
//
// The trace goes to files; debug messages only when an error comes, but then those before it.
#include <PYXFileTracer.h>
#include <PYXRuntime.h>
#include <PYXTraceWrapper.h>

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>
#include <QTextStream>

using PYXRuntime::PYXFileTracer;
using PYXRuntime::PYXTraceWrapper;

static void work()
{
    PYXTraceWrapper::staticTraceDebug("gain 3 dB", "source\\Frontend", __LINE__);
    PYXTraceWrapper::staticTraceInfo("connected, password=secret", "source\\Frontend",
                                     __LINE__); // never do this
    PYXTraceWrapper::staticTraceError("no antenna", "source\\Frontend", __LINE__);
}

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QApplication::setOrganizationName("Example");
    QApplication::setApplicationName("08 Tracer");
    PYXRuntime::initialize_PYXRuntime();

    const QTemporaryDir logs;
    PYXFileTracer tracer({logs.path()}); // trace_2026-11-21_07-20-00_UTC.txt; 10 files of 10 MiB are kept
    if (tracer.open())
        PYXTraceWrapper::addTracer(&tracer);
    else
        QTextStream(stderr) << tracer.errorString() << '\n';

    work();

    PYXTraceWrapper::removeTracer(&tracer); // before it is destroyed
    QFile file(tracer.currentFilePath());
    tracer.close();
    file.open(QIODevice::ReadOnly);
    const QByteArray lines = file.readAll();
    const bool isMasked = !lines.contains("secret");
    QTextStream(stdout) << lines << "password masked: " << (isMasked ? "yes" : "no") << '\n';
    PYXRuntime::uninitialize_PYXRuntime();
    return isMasked ? 0 : 1;
}
