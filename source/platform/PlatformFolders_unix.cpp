// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "BlockDevices_unix.h"
#include "PlatformFolders.h"

#include <QtCore/QFileInfo>
#include <QtCore/QStandardPaths>
#include <QtCore/QStorageInfo>

namespace PYXRuntime::Platform::System {

QString shellFolder(uint folder)
{
    const auto standard = [](QStandardPaths::StandardLocation location) {
        return QStandardPaths::writableLocation(location);
    };
    switch (folder) {
    case ekFolder_Desktop:
        return standard(QStandardPaths::DesktopLocation);
    case ekFolder_Documents:
        return standard(QStandardPaths::DocumentsLocation);
    case ekFolder_Pictures:
        return standard(QStandardPaths::PicturesLocation);
    case ekFolder_RoamingData:
        return standard(QStandardPaths::GenericConfigLocation);
    case ekFolder_LocalData:
        return standard(QStandardPaths::GenericDataLocation);
    // The rest as the Filesystem Hierarchy Standard 3.0 has it.
    case ekFolder_CommonData:
        return QStringLiteral("/var/lib");
    case ekFolder_CommonDocuments:
        return QStringLiteral("/usr/share");
    case ekFolder_Programs:
        return QStringLiteral("/opt");
    case ekFolder_CommonPrograms:
        return QStringLiteral("/usr/lib");
    default:
        return {};
    }
}

bool isOnRemovableDrive(const QString &path)
{
    const QString device = QString::fromLocal8Bit(QStorageInfo(path).device());
    // Names such as /dev/mapper/stick are links to the device.
    const QString file = QFileInfo(device).canonicalFilePath();
    return isRemovableBlockDevice(QFileInfo(file).fileName(), QStringLiteral("/sys"));
}

} // namespace PYXRuntime::Platform::System
