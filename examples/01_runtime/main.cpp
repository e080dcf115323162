// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
//
// Starts and stops the library, and shows what the start alone changes.
#include <PYXRuntime.h>

#include <QApplication>
#include <QFontDatabase>
#include <QSettings>
#include <QTextStream>
#include <QTimer>

namespace {

/** Waiting with active_msleep() serves timers, sockets and the user meanwhile; msleep() serves nobody. */
bool isServedWhileWaiting()
{
    bool served = false;
    QTimer::singleShot(20, [&served] { served = true; });

    const quint64 begin = PYXRuntime::perfCounterInMyS();
    PYXRuntime::active_msleep(200);
    const quint64 waited = PYXRuntime::perfCounterInMyS() - begin;
    return served && waited >= 200'000;
}

const char *yesOrNo(bool yes)
{
    return yes ? "yes" : "no";
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QApplication::setOrganizationName("Example"); // settings and directories are called after these two
    QApplication::setApplicationName("01 Runtime");
    if (!PYXRuntime::initialize_PYXRuntime())
        return 1;

    const QString settingsFile = QSettings().fileName(); // plain QSettings write XML from here on
    const bool hasFont = QFontDatabase().families().contains("KTCorpid");
    const bool isServed = isServedWhileWaiting();
    QTextStream(stdout) << "settings in " << settingsFile << '\n'
                        << "corporate font: " << yesOrNo(hasFont) << '\n'
                        << "served while waiting: " << yesOrNo(isServed) << '\n';

    PYXRuntime::uninitialize_PYXRuntime(); // before the application object goes
    return settingsFile.endsWith(".PYXXml") && hasFont && isServed ? 0 : 1;
}
