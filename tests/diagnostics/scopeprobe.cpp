// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXRuntimeCenter.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QTimer>

#include <cstdio>

using PYXRuntime::PYXRuntimeCenter;

/**
 * Applies the configuration file beside it, by the event loop ("loop") or by itself ("direct"; "star": with
 * a scope of that name), registers the scope "Late" and prints the state of the global switches and of each
 * scope named on the command line.
 */
int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == "loop") {
        QTimer::singleShot(0, &application, &QCoreApplication::quit);
        QCoreApplication::exec();
    } else {
        if (arguments.value(1) == "star")
            PYXRuntimeCenter::registerRuntimeScope("*", "");
        PYXRuntimeCenter::handleConfigFiles();
        PYXRuntimeCenter::handleConfigFiles(); // has no effect
    }
    PYXRuntimeCenter::registerRuntimeScope("Late", "registered by its module");
    std::printf("toTrace d%d w%d\n", int(PYXRuntimeCenter::isEnabled_pyxDebugToTrace()),
                int(PYXRuntimeCenter::isEnabled_pyxWarningToTrace()));
    for (const QString &name : arguments.mid(2)) {
        std::printf("%s %s d%d w%d\n", qPrintable(name),
                    PYXRuntimeCenter::runtimeScopeToken(name) != 0 ? "known" : "unknown",
                    int(PYXRuntimeCenter::isEnabled_pyxDebug(name)),
                    int(PYXRuntimeCenter::isEnabled_pyxWarning(name)));
    }
    return 0;
}
