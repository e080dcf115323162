// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
//
// Typed values in the user's settings, and a store that is gone after this run.
#include <PYXRuntime.h>
#include <PYXSettings.h>

#include <QApplication>
#include <QColor>
#include <QFile>
#include <QTextStream>

using PYXRuntime::PYXSettings;

namespace {

void save()
{
    PYXSettings settings(PYXSettings::eUserApplicationSettings); // on the stack, as short as it is needed
    settings.setValue("Detector/Threshold", 12.5);
    settings.setValue("Detector/Antennas", QStringList{"North", "South"});
    settings.setValue("Window/Background", Qt::darkBlue);
} // here it is saved

QString restored()
{
    const PYXSettings settings(PYXSettings::eUserApplicationSettings);
    const double threshold = settings.doubleValue("Detector/Threshold");
    const QStringList antennas = settings.stringListValue("Detector/Antennas");
    const QColor background = settings.colorValue("Window/Background");
    // A bool would not be a default value here, but "look into this store only".
    const bool grid = settings.value("Window/Grid", QVariant(true)).toBool();

    return QString("threshold %1 dB, antennas %2, background %3, grid %4")
        .arg(threshold)
        .arg(antennas.join(", "), background.name(), grid ? "on" : "off");
}

/** What only this run is to know; a file as well, so that other parts of the program read it like the rest.
 */
QString saveForThisRunOnly()
{
    PYXSettings session(PYXSettings::eThisRunOnlyUserApplication);
    session.setValue("LastSearch", "125 MHz");
    session.sync();
    return session.fileName();
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QApplication::setOrganizationName("Example");
    QApplication::setApplicationName("04 Settings");
    PYXRuntime::initialize_PYXRuntime();

    save();
    const QString values = restored();
    const QString sessionFile = saveForThisRunOnly();
    const bool wasThere = QFile::exists(sessionFile);
    PYXRuntime::uninitialize_PYXRuntime(); // removes it

    const bool isGone = wasThere && !QFile::exists(sessionFile);
    QTextStream(stdout) << values << "\nsession gone: " << (isGone ? "yes" : "no") << '\n';
    return isGone ? 0 : 1;
}
