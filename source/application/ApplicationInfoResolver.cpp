// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "ApplicationInfoResolver.h"

#include "ProgramPaths.h"

#include <QtCore/QFileInfo>
#include <QtCore/QStandardPaths>

namespace PYXRuntime {
namespace {

using SpecialDirTable::struSpecialDir;

constexpr char Unknown[] = ".";
constexpr char PortableTree[] = "portable";
constexpr char PortableTreeBesideMarker[] = "portable-data";

QString subPath(SpecialDirTable::eNames names)
{
    switch (names) {
    case SpecialDirTable::ekNames_Application:
        return PYXApplicationInfoImpl::effectiveApplicationSubPath();
    case SpecialDirTable::ekNames_Organization:
        return PYXApplicationInfoImpl::effectiveOrganizationSubPath();
    case SpecialDirTable::ekNames_Both:
        return PYXApplicationInfoImpl::effectiveOrgAppSubPath();
    case SpecialDirTable::ekNames_None:
        break;
    }
    return {};
}

QString temporaryFiles()
{
    for (const char *variable : {"TEMP", "TMP"}) {
        QString path = PYXApplicationInfoImpl::getDirFromEnv(QLatin1String(variable));
        if (!path.isEmpty())
            return path;
    }
    return QStandardPaths::writableLocation(QStandardPaths::TempLocation);
}

} // namespace

QString PYXApplicationInfoImpl::Resolver::path(const struSpecialDir &dir) const
{
    switch (dir.rule) {
    case SpecialDirTable::ekRule_Program:
        return m_info.m_baseDir;
    case SpecialDirTable::ekRule_Below:
        return ProgramPaths::joined({_other(dir.base), subPath(dir.names), QLatin1String(dir.suffix)});
    case SpecialDirTable::ekRule_DiskCache:
        return _diskCache(dir);
    case SpecialDirTable::ekRule_DriveLetter:
        return m_info.m_driveLetter.isNull() ? QString() : QString(m_info.m_driveLetter);
    case SpecialDirTable::ekRule_DriveRoot:
        return m_info.m_driveRoot;
    case SpecialDirTable::ekRule_Shared:
        return m_info.getCurrentOrDefault_SharedSpecialDirPath(dir.code, false);
    case SpecialDirTable::ekRule_Shell:
        return _shellFolder(dir);
    case SpecialDirTable::ekRule_Temporary:
        return temporaryFiles();
    }
    return QLatin1String(Unknown);
}

/** A removable drive is slow, and wears out. */
QString PYXApplicationInfoImpl::Resolver::_diskCache(const struSpecialDir &dir) const
{
    const QLatin1String suffix(dir.suffix);
    if (!m_info.m_bRemovableDrive)
        return ProgramPaths::joined({_other(eApplicationLocalDataBaseDir), suffix});
    return ProgramPaths::joined({_other(eSystemTemporaryFiles), effectiveOrgAppSubPath(), suffix});
}

QString PYXApplicationInfoImpl::Resolver::_shellFolder(const struSpecialDir &dir) const
{
    const char *const suffix = m_info.m_bSpecialDirCompatibilityMode ? dir.compatibleSuffix : dir.suffix;
    if (m_info.m_bRemovableDrive && suffix != nullptr)
        return ProgramPaths::joined({_portableTree(), QLatin1String(suffix)});
    const QString path = getWindowsSpecialDir(dir.base);
    return path.isEmpty() ? QString(QLatin1String(Unknown)) : path;
}

QString PYXApplicationInfoImpl::Resolver::_portableTree() const
{
    const QString place =
        m_info.m_bSpecialDirCompatibilityMode ? _other(eApplicationBaseDir) : m_info.m_portablePlace;
    const QString parent = ProgramPaths::withoutSeparator(place) + QLatin1Char('/');
    const QString tree = parent + QLatin1String(PortableTree);
    return QFileInfo(tree).isFile() ? parent + QLatin1String(PortableTreeBesideMarker) : tree;
}

} // namespace PYXRuntime
