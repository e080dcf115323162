// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXXmlSettings.h"

#include "DamagedFileKeeper.h"
#include "Platform.h"
#include "SeenStates.h"
#include "WatchedStores.h"
#include "XmlSettingsReader.h"
#include "XmlSettingsWriter.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>

#include <mutex>

namespace PYXRuntime {
namespace {

const QLatin1String FileSuffix("PYXXml");

bool readOrKeep(QIODevice &device, QSettings::SettingsMap &map)
{
    auto *const file = qobject_cast<QFileDevice *>(&device);
    if (file != nullptr)
        SeenStates::noteRead(*file);
    if (XmlSettingsReader::read(device, map)) {
        WatchedStores::noteRead(device, map);
        return true;
    }
    if (file != nullptr)
        DamagedFileKeeper::keep(*file);
    return false;
}

bool write(QIODevice &device, const QSettings::SettingsMap &map)
{
    auto *const file = qobject_cast<QFileDevice *>(&device);
    if (file != nullptr && !SeenStates::mayReplace(file->fileName()))
        return false;
    if (!XmlSettingsWriter::write(device, map))
        return false;
    if (file != nullptr)
        SeenStates::noteWritten(*file);
    WatchedStores::noteWritten(device, map);
    return true;
}

} // namespace

QSettings::Format PYXXmlSettings::format()
{
    static std::mutex mutex;
    static QSettings::Format registered = QSettings::InvalidFormat;
    const std::lock_guard<std::mutex> locker(mutex);
    if (registered == QSettings::InvalidFormat) {
        registered = QSettings::registerFormat(FileSuffix, readOrKeep, write, Qt::CaseSensitive);
        Platform::registerXmlFileType(FileSuffix);
    }
    return registered;
}

bool PYXXmlSettings::isPYXXmlSettingsFile(const QString &fileName, QString &version)
{
    if (fileName.isEmpty() || !QFileInfo(fileName).isReadable())
        return false;
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) && XmlSettingsReader::readVersion(file, version);
}

} // namespace PYXRuntime
