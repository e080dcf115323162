// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
//
// The XML format under a file name of one's own, somebody else's file, and a damaged one.
#include <PYXRuntime.h>
#include <PYXXmlSettings.h>

#include <QApplication>
#include <QDir>
#include <QSettings>
#include <QTemporaryDir>
#include <QTextStream>

using PYXRuntime::PYXXmlSettings;

namespace {

void save(const QString &path)
{
    QSettings settings(path, PYXXmlSettings::format());
    settings.setValue("Paths/Recordings", "/data/band 3");
    settings.setValue("Origin", QPoint(1, 2));
}

/** Before somebody else's file is opened: whether it is one. */
QString kindOf(const QString &path)
{
    QString version;
    if (!PYXXmlSettings::isPYXXmlSettingsFile(path, version))
        return "no settings file";
    return "a settings file of version " + version;
}

/** A file that cannot be read looks empty; before it is replaced, it is copied aside. */
QString writeTo(const QString &damaged)
{
    QSettings settings(damaged, PYXXmlSettings::format());
    if (settings.status() != QSettings::FormatError)
        return "accepted";
    settings.setValue("Paths/Recordings", "/data");
    settings.sync();
    const QFileInfo file(damaged);
    return "refused, and kept as " + file.dir().entryList({file.fileName() + ".damaged-*"}).join(", ");
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QApplication::setOrganizationName("Example");
    QApplication::setApplicationName("04 Settings File");
    PYXRuntime::initialize_PYXRuntime();

    const QTemporaryDir directory;
    const QString whole = directory.filePath("whole.PYXXml");
    save(whole);
    QTextStream out(stdout);
    out << "whole: " << kindOf(whole) << '\n';

    const QString damaged = directory.filePath("damaged.PYXXml");
    QFile(whole).copy(damaged);
    QFile(damaged).resize(QFile(damaged).size() / 2);
    out << "damaged: " << writeTo(damaged) << '\n';

    PYXRuntime::uninitialize_PYXRuntime();
    return 0;
}
