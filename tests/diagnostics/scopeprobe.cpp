// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXRuntimeCenter.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QTimer>

#include <cstdio>

using Center = PYXRuntime::PYXRuntimeCenter;

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
            Center::registerRuntimeScope("*", "");
        Center::handleConfigFiles();
        Center::handleConfigFiles(); // has no effect
    }
    Center::registerRuntimeScope("Late", "registered by its module");
    std::printf("td%d tw%d", Center::isEnabled_pyxDebugToTrace(), Center::isEnabled_pyxWarningToTrace());
    for (const QString &name : arguments.mid(2)) {
        std::printf(" %s%s d%d w%d", Center::runtimeScopeToken(name) != 0 ? "" : "unknown ", qPrintable(name),
                    Center::isEnabled_pyxDebug(name), Center::isEnabled_pyxWarning(name));
    }
    return 0;
}
