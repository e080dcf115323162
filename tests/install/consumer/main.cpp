// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include <PYXBroker.h>
#include <PYXITransConnector.h>
#include <PYXRuntime.h>
#include <pyxruntime_version.h>
#include <PYXStrings.h>
#include <PYXTraceWrapper.h>

#include <QApplication>

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("Consumer"));
    const bool bInitialized = PYXRuntime::initialize_PYXRuntime();
    auto *const languages = PYXRuntime::PYXBroker::getInstance()->topObject<PYXRuntime::PYXITransConnector>();
    const bool bGerman = languages != nullptr && languages->changeLocale(QStringLiteral("de"));
    PYXRuntime::PYXTraceWrapper::staticTraceInfo(QStringLiteral("reached " PYXRUNTIME_VERSION_STRING ", ") +
                                                     PYXStrings::text(PYXStrings::ekText_Bandwidth),
                                                 "source\\consumer", 1);
    PYXRuntime::uninitialize_PYXRuntime();
    return bInitialized && bGerman ? 0 : 1;
}
