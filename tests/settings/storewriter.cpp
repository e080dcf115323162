// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later

// The other process: storewriter FILE set KEY VALUE [KEY VALUE]... | remove KEY | many PREFIX COUNT | forever
#include "PYXSettings.h"
#include "PYXXmlSettings.h"

#include <QtCore/QCoreApplication>

#include <cstdio>

using PYXRuntime::PYXSettings;

namespace {

constexpr int KeysPerSave = 25;
constexpr int KeysOfGeneration = 100;

/**
 * On Windows, looking at the file while another process replaces it is an access error as well, though
 * nothing is lost; the status keeps it. Another object on the file tells whether there is anything left to
 * save.
 */
bool isSaved(PYXSettings &settings)
{
    settings.sync();
    return settings.status() == QSettings::NoError ||
           PYXSettings(settings.fileName(), settings.format()).status() == QSettings::NoError;
}

bool writeMany(PYXSettings &settings, const QString &prefix, int count)
{
    for (int i = 1; i <= count; ++i) {
        settings.setValue(QString("%1/%2").arg(prefix).arg(i), i);
        if ((i % KeysPerSave == 0 || i == count) && !isSaved(settings))
            return false;
    }
    return true;
}

/** All keys of a file have the same value, if it is whole. Says so whenever it has saved. */
void writeForever(PYXSettings &settings)
{
    for (int generation = settings.intValue("Key0") + 1;; ++generation) {
        for (int i = 0; i < KeysOfGeneration; ++i)
            settings.setValue(QString("Key%1").arg(i), generation);
        settings.setValue("Padding", QString(generation % 100 * 100, 'x'));
        if (!isSaved(settings))
            return;
        std::fputs(".", stdout);
        std::fflush(stdout);
    }
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    const QStringList words = QCoreApplication::arguments();
    PYXSettings settings(words.at(1), PYXRuntime::PYXXmlSettings::format());
    const QString &what = words.at(2);
    if (what == "forever")
        writeForever(settings);
    else if (what == "many")
        return writeMany(settings, words.at(3), words.at(4).toInt()) ? 0 : 1;
    else if (what == "remove")
        settings.remove(words.at(3));
    else
        for (int i = 3; i + 1 < words.size(); i += 2)
            settings.setValue(words.at(i), words.at(i + 1));
    return isSaved(settings) ? 0 : 1;
}
