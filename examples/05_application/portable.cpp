// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
//
// With "--portable" the settings lie beside the program, on the stick that it is on.
#include <PYXApplicationInfoImpl.h>
#include <PYXBroker.h>
#include <PYXRuntime.h>
#include <PYXSettings.h>
#include <PYXXmlSettings.h>

#include <QApplication>
#include <QTextStream>

using namespace PYXRuntime;

static PYXApplicationInfoImpl *applicationInfo()
{
    QObject *object = PYXBroker::getInstance()->topObject(PYXBrokerInterface<PYXIApplicationInfo>::id(), 0);
    return qobject_cast<PYXApplicationInfoImpl *>(object);
}

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QApplication::setOrganizationName("Example");
    QApplication::setApplicationName("05 Portable");
    const bool isPortable = QApplication::arguments().contains("--portable");

    // Before the library is initialised, which reads the proxy from the settings.
    auto *info = applicationInfo();
    QSettings::setDefaultFormat(PYXXmlSettings::format());
    info->setPortable(isPortable); // where it is not known otherwise: by the drive, or a file "portable"
    info->ensureInitialized();     // points the settings at the portable folders
    initialize_PYXRuntime();

    const QString path = PYXSettings(PYXSettings::eUserApplicationSettings).fileName();
    const bool isBeside = path.startsWith(QApplication::applicationDirPath());
    QTextStream(stdout) << "settings " << (isBeside ? "beside the program: " : "of the user: ") << path
                        << '\n';

    uninitialize_PYXRuntime();
    return isBeside == isPortable ? 0 : 1;
}
