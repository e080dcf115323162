// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PlatformFolders.h"
#include "PYXApplicationInfoImpl.h"
#include "SpecialDirTable.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFileInfo>

// What an application information knows without an object.
namespace PYXRuntime {

QString PYXApplicationInfoImpl::defaultOrganizationName()
{
    return QStringLiteral("Varnholt");
}

QString PYXApplicationInfoImpl::effectiveOrganizationName()
{
    const QString name = QCoreApplication::organizationName();
    return name.isEmpty() ? defaultOrganizationName() : name;
}

QString PYXApplicationInfoImpl::effectiveApplicationName()
{
    QString name = QCoreApplication::applicationName();
    if (name.isEmpty() && QCoreApplication::instance() != nullptr)
        name = QFileInfo(QCoreApplication::applicationFilePath()).baseName();
    return name.isEmpty() ? QStringLiteral("application") : name;
}

QString PYXApplicationInfoImpl::effectiveOrganizationSubPath()
{
    return effectiveOrganizationName();
}

QString PYXApplicationInfoImpl::effectiveApplicationSubPath()
{
    return effectiveApplicationName();
}

QString PYXApplicationInfoImpl::effectiveOrgAppSubPath()
{
    return effectiveOrganizationSubPath() + QLatin1Char('/') + effectiveApplicationSubPath();
}

bool PYXApplicationInfoImpl::createPath(const QString &path)
{
    return path.isEmpty() || QDir().mkpath(path);
}

QString PYXApplicationInfoImpl::getDirFromEnv(const QString &variable)
{
    const QString path = qEnvironmentVariable(variable.toLocal8Bit().constData());
    return path.isEmpty() ? path : QDir::cleanPath(QDir::fromNativeSeparators(path));
}

QString PYXApplicationInfoImpl::getWindowsSpecialDir(uint folder)
{
    return Platform::shellFolder(folder);
}

QString PYXApplicationInfoImpl::getSpecialDirEnumName(uint code)
{
    if (code > eSpecialDirFirstUser)
        return QStringLiteral("eSpecialDirFirstUser + %1").arg(code - eSpecialDirFirstUser);
    const auto name = staticSpecialDirsEnumByValue().constFind(code);
    return name != staticSpecialDirsEnumByValue().cend() ? *name : QStringLiteral("<unknown> %1").arg(code);
}

const QHash<QString, uint> &PYXApplicationInfoImpl::staticSpecialDirsEnumByName()
{
    static const QHash<QString, uint> table = [] {
        QHash<QString, uint> codes;
        for (const auto &dir : SpecialDirTable::entries()) {
            if (dir.name != nullptr)
                codes.insert(QLatin1String(dir.name), dir.code);
        }
        return codes;
    }();
    return table;
}

const QHash<uint, QString> &PYXApplicationInfoImpl::staticSpecialDirsEnumByValue()
{
    static const QHash<uint, QString> table = [] {
        QHash<uint, QString> names;
        for (const auto &dir : SpecialDirTable::entries()) {
            if (dir.name != nullptr)
                names.insert(dir.code, QLatin1String(dir.name));
        }
        return names;
    }();
    return table;
}

} // namespace PYXRuntime
