// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
//
// Notices what another process changes in the settings. Start it, and then once more with "--change".
#include <PYXRuntime.h>
#include <PYXSettings.h>
#include <PYXSettingsWatcher.h>

#include <QApplication>
#include <QProcess>
#include <QTextStream>
#include <QUuid>

using PYXRuntime::PYXSettings;
using PYXRuntime::PYXSettingsWatcher;

namespace {

int change()
{
    PYXSettings settings(PYXSettings::eUserApplicationSettings);
    settings.setValue("Station/Name", QUuid::createUuid().toString());
    return 0;
}

int watch()
{
    const PYXSettings settings(PYXSettings::eUserApplicationSettings);
    PYXSettingsWatcher watcher(settings);
    QObject::connect(&watcher, &PYXSettingsWatcher::si_changed, [](const QStringList &keys) {
        QTextStream(stdout) << "changed by another process: " << keys.join(", ") << '\n';
        QApplication::quit();
    });
    QProcess other;
    if (QApplication::arguments().contains("--quit"))
        other.start(QApplication::applicationFilePath(), {"--change"});
    const int result = QApplication::exec();
    other.waitForFinished();
    return result;
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QApplication::setOrganizationName("Example");
    QApplication::setApplicationName("04 Watcher");
    PYXRuntime::initialize_PYXRuntime();
    const int result = QApplication::arguments().contains("--change") ? change() : watch();
    PYXRuntime::uninitialize_PYXRuntime();
    return result;
}
