// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include <PYXRuntime.h>
#include <PYXTraceWrapper.h>

#include <QApplication>

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("Consumer"));
    const bool bInitialized = PYXRuntime::initialize_PYXRuntime();
    PYXRuntime::PYXTraceWrapper::staticTraceInfo(QStringLiteral("reached"), "source\\consumer", 1);
    PYXRuntime::uninitialize_PYXRuntime();
    return bInitialized ? 0 : 1;
}
