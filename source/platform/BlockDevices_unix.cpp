// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "BlockDevices_unix.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>

#include <algorithm>

namespace PYXRuntime::Platform {
namespace {

// An encrypted volume on a logical volume on a partition is three; more than this is no real system.
constexpr int DeepestStack = 8;

bool saysRemovable(const QDir &device)
{
    QFile file(device.filePath(QStringLiteral("removable")));
    return file.open(QIODevice::ReadOnly) && file.read(1) == "1";
}

bool isRemovable(const QString &device, const QString &sysDirectory, int depth)
{
    const QString link = sysDirectory + QLatin1String("/class/block/") + device;
    const QString path = QFileInfo(link).canonicalFilePath();
    if (path.isEmpty() || depth > DeepestStack)
        return false;
    QDir directory(path);
    // Only whole disks tell; a partition lies in the directory of its disk.
    if (directory.exists(QStringLiteral("partition")))
        directory.setPath(QFileInfo(path).path());
    if (saysRemovable(directory))
        return true;
    const QStringList parts =
        QDir(path + QLatin1String("/slaves")).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
    return std::any_of(parts.cbegin(), parts.cend(),
                       [&](const QString &part) { return isRemovable(part, sysDirectory, depth + 1); });
}

} // namespace

bool isRemovableBlockDevice(const QString &device, const QString &sysDirectory)
{
    return !device.isEmpty() && isRemovable(device, sysDirectory, 0);
}

} // namespace PYXRuntime::Platform
