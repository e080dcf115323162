// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
//
// Gives a part of the settings to a colleague, without the passwords in it.
#include <PYXRuntime.h>
#include <PYXSettings.h>
#include <PYXSettingsTransfer.h>

#include <QApplication>
#include <QTemporaryDir>
#include <QTextStream>

using PYXRuntime::PYXSettings;
using PYXRuntime::PYXSettingsTransfer;

namespace {

bool give(const QString &path)
{
    PYXSettings settings(PYXSettings::eUserApplicationSettings);
    settings.setValue("Station/Name", "North");
    settings.setValue("Station/Gain", 12.5);
    settings.setValue("Station/Password", "not for colleagues");

    const auto result = PYXSettingsTransfer::exportTo(path, settings, "Station");
    QTextStream(stdout) << "exported " << result.entries << " entries, left out " << result.leftOut.join(", ")
                        << result.error << '\n';
    return result.bOk;
}

bool take(const QString &path, const QString &store)
{
    PYXSettings settings(store);
    const auto result = PYXSettingsTransfer::importFrom(path, settings); // adds and replaces keys
    QTextStream(stdout) << "imported gain " << settings.doubleValue("Station/Gain") << result.error << '\n';
    return result.bOk && !settings.contains("Station/Password");
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QApplication::setOrganizationName("Example");
    QApplication::setApplicationName("04 Transfer");
    PYXRuntime::initialize_PYXRuntime();

    const QTemporaryDir directory;
    const QString path = directory.filePath("station.PYXXml");
    const bool ok = give(path) && take(path, directory.filePath("colleague.PYXXml"));

    PYXRuntime::uninitialize_PYXRuntime();
    return ok ? 0 : 1;
}
