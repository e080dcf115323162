// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXApplicationInfoImpl.h"

#include "ApplicationInfoResolver.h"
#include "PlatformFolders.h"
#include "ProgramPaths.h"
#include "PYXMessageOutput.h"
#include "PYXRuntimeCenter.h"
#include "PYXSettings.h"
#include "SharedPathSettings.h"
#include "SpecialDirTable.h"
#include "StandardApplicationInfo.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFileInfo>
#include <QtCore/QScopedValueRollback>

namespace PYXRuntime {
namespace {

using SpecialDirTable::struSpecialDir;

const uint s_runtimeScope = PYXRuntimeCenter::registerRuntimeScope(
    QStringLiteral("PYXApplicationInfoImpl"),
    QStringLiteral(
        QT_TRANSLATE_NOOP("PYXRuntime::RuntimeScopes", "Application information and special directories")));

constexpr char Unknown[] = ".";
constexpr char MarkerFile[] = "portable";
constexpr char CompatibleUserSettings[] = "userSettings";
constexpr char CompatibleDefaultSettings[] = "defaultSettings";

QString keyOfLastDir(const QString &id)
{
    return QStringLiteral("%1/%2/%3")
        .arg(QLatin1String("::ApplicationInfo::"), QLatin1String("LastDirs"), id);
}

bool isSharedDir(uint code)
{
    const struSpecialDir *const dir = SpecialDirTable::find(code);
    return dir != nullptr && dir->rule == SpecialDirTable::ekRule_Shared;
}

/** The setting of a shared directory; null for the root and for all others. */
const SharedPathSettings::struSharedPath *sharedSetting(uint code)
{
    for (const auto *path : {&SharedPathSettings::Collections, &SharedPathSettings::DetectorProfiles,
                             &SharedPathSettings::Scripts}) {
        if (path->specialDir == code)
            return path;
    }
    return nullptr;
}

QString created(const QString &path, bool bCreate)
{
    if (bCreate)
        PYXApplicationInfoImpl::createPath(path);
    return path;
}

} // namespace

QObject *createStandardApplicationInfo(QObject *parent)
{
    return new PYXApplicationInfoImpl(parent);
}

PYXApplicationInfoImpl::PYXApplicationInfoImpl(QObject *parent)
    : QObject(parent)
{}

PYXApplicationInfoImpl::~PYXApplicationInfoImpl() = default;

void PYXApplicationInfoImpl::ensureInitialized()
{
    if (m_bNeedsInitialize) {
        _locateProgram();
        if (!m_bNeedsInitialize)
            _prepareSettings();
        return;
    }
    // The settings of a format that has become the default since then have not been prepared.
    const QSettings::Format format = QSettings::defaultFormat();
    if (format != m_preparedFormat && format != QSettings::NativeFormat)
        _prepareSettings();
}

void PYXApplicationInfoImpl::_beforeQuery()
{
    // Not for the parts of a path: without an application every part would tell so again.
    if (!m_bResolving)
        ensureInitialized();
}

bool PYXApplicationInfoImpl::needsInitialize() const
{
    return m_bNeedsInitialize;
}

void PYXApplicationInfoImpl::_locateProgram()
{
    m_bRemovableDrive = false;
    m_driveLetter = QChar();
    m_driveRoot.clear();
    m_portablePlace.clear();
    if (QCoreApplication::instance() == nullptr) {
        pyx_message_output("PYXRuntime::PYXApplicationInfoImpl: no QCoreApplication instance available, "
                           "cannot determine eApplicationBaseDir");
        m_baseDir = QLatin1String(Unknown);
        return;
    }
    m_baseDir = ProgramPaths::aboveBin(Platform::programDirectory());
    // Before the first path is asked for below: that must not come back here.
    m_bNeedsInitialize = false;
    if (ProgramPaths::hasDriveLetter(m_baseDir)) {
        m_driveLetter = m_baseDir.at(0).toUpper();
        m_driveRoot = m_driveLetter + QLatin1Char(':');
    }
    const bool bOnRemovableDrive =
        Platform::isOnRemovableDrive(m_driveRoot.isEmpty() ? m_baseDir : m_driveRoot);
    m_bRemovableDrive = bOnRemovableDrive || m_bPortable ||
                        QFileInfo(ProgramPaths::joined({m_baseDir, QLatin1String(MarkerFile)})).isFile();
    if (m_bRemovableDrive && m_driveRoot.isEmpty())
        m_portablePlace =
            ProgramPaths::withoutSeparator(bOnRemovableDrive ? Platform::mountPoint(m_baseDir) : m_baseDir);
}

void PYXApplicationInfoImpl::_prepareSettings()
{
    m_preparedFormat = QSettings::defaultFormat();
    if (m_bInitializeSettingsPaths || (!m_bInitializeSettingsPathsSet && m_bRemovableDrive))
        _pointSettings();
    if (!m_bSpecialDirCompatibilityMode)
        initSharedPathsDefaults();
}

void PYXApplicationInfoImpl::_pointSettings()
{
    QString user;
    QString system;
    if (m_bSpecialDirCompatibilityMode) {
        const QString local = getSpecialDirPath(eApplicationLocalDataBaseDir, false);
        user = ProgramPaths::joined({local, QLatin1String(CompatibleUserSettings)});
        system = ProgramPaths::joined({local, QLatin1String(CompatibleDefaultSettings)});
    } else {
        user = getSpecialDirPath(eSystemUserLocalAppData, false);
        system = getSpecialDirPath(eSystemCommonAppData, false);
    }
    QSettings::setPath(m_preparedFormat, QSettings::UserScope, user);
    QSettings::setPath(m_preparedFormat, QSettings::SystemScope, system);
}

bool PYXApplicationInfoImpl::initializeSettingsPaths() const
{
    return m_bInitializeSettingsPaths;
}

void PYXApplicationInfoImpl::setInitializeSettingsPaths(bool initialize)
{
    if (m_bInitializeSettingsPathsSet && m_bInitializeSettingsPaths == initialize)
        return;
    m_bInitializeSettingsPaths = initialize;
    m_bInitializeSettingsPathsSet = true;
    m_bNeedsInitialize = true;
}

bool PYXApplicationInfoImpl::specialDirCompatibilityMode() const
{
    return m_bSpecialDirCompatibilityMode;
}

void PYXApplicationInfoImpl::setSpecialDirCompatibilityMode(bool compatible)
{
    if (m_bSpecialDirCompatibilityMode == compatible)
        return;
    m_bSpecialDirCompatibilityMode = compatible;
    m_bNeedsInitialize = true;
}

bool PYXApplicationInfoImpl::isPortable() const
{
    return m_bPortable;
}

void PYXApplicationInfoImpl::setPortable(bool portable)
{
    if (m_bPortable == portable)
        return;
    m_bPortable = portable;
    m_bNeedsInitialize = true;
}

bool PYXApplicationInfoImpl::isRunningFromPortableDevice() const
{
    // What is found out on first use was so before: a question, though it leaves a trace in the settings.
    const_cast<PYXApplicationInfoImpl *>(this)->ensureInitialized();
    return m_bRemovableDrive;
}

QString PYXApplicationInfoImpl::modifyPathForPortableDevice(const QString &path)
{
    if (!isRunningFromPortableDevice() || m_driveRoot.isEmpty())
        return path;
    const QString absolute = ProgramPaths::absolute(path);
    if (!absolute.startsWith(m_driveRoot, Qt::CaseInsensitive))
        return path;
    return absolute.size() == m_driveRoot.size() ? QStringLiteral("/") : absolute.mid(m_driveRoot.size());
}

QString PYXApplicationInfoImpl::getSpecialDirPath(uint code, bool create)
{
    _beforeQuery();
    const struSpecialDir *const dir = SpecialDirTable::find(code);
    if (dir == nullptr)
        return QLatin1String(Unknown);
    const QScopedValueRollback<bool> resolving(m_bResolving, true);
    const bool bDirectory = code != eApplicationDriveLetter && code != eApplicationDriveRoot;
    return created(Resolver(*this).path(*dir), create && bDirectory);
}

QDir PYXApplicationInfoImpl::getSpecialDir(uint code, bool create)
{
    return QDir(getSpecialDirPath(code, create));
}

QString PYXApplicationInfoImpl::getLastDirPath(const QString &id)
{
    _beforeQuery();
    return PYXSettings(PYXSettings::eNoPurpose).stringValue(keyOfLastDir(id));
}

QDir PYXApplicationInfoImpl::getLastDir(const QString &id)
{
    return QDir(QDir(getLastDirPath(id)).absolutePath());
}

void PYXApplicationInfoImpl::saveLastDirPath(const QString &id, const QString &path)
{
    _beforeQuery();
    PYXSettings settings(PYXSettings::eNoPurpose);
    if (path.isEmpty())
        settings.remove(keyOfLastDir(id));
    else
        settings.setValue(keyOfLastDir(id), path);
}

void PYXApplicationInfoImpl::saveLastDir(const QString &id, const QDir &dir)
{
    saveLastDirPath(id, dir.absolutePath());
}

void PYXApplicationInfoImpl::setLayoutDirection(const QString &key, Qt::LayoutDirection direction)
{
    m_layoutDirections.insert(key, direction);
}

Qt::LayoutDirection PYXApplicationInfoImpl::getLayoutDirection(const QString &key)
{
    return m_layoutDirections.value(key, Qt::LeftToRight);
}

void PYXApplicationInfoImpl::initSharedPathsDefaults()
{
    _beforeQuery();
    // Where the program lies decides where they belong.
    if (m_bNeedsInitialize)
        return;
    PYXSettings settings(PYXSettings::eDefaultSharedSettings);
    for (const auto &path : {SharedPathSettings::Collections, SharedPathSettings::DetectorProfiles,
                             SharedPathSettings::Scripts}) {
        const QString directory = getDefault_SharedSpecialDirPath(path.specialDir, false);
        // Not written again at every start: other processes watch the file.
        if (settings.stringValue(path.key, true) == directory)
            continue;
        if (settings.isWritable()) {
            settings.setValue(path.key, directory);
            continue;
        }
        if (!m_bUnwritableSharedPathsTold)
            PYXRuntimeCenter::pyxDebug(s_runtimeScope,
                                       QLatin1String("default shared paths cannot be written to ") +
                                           settings.fileName());
        m_bUnwritableSharedPathsTold = true;
        return;
    }
}

QString PYXApplicationInfoImpl::getDefault_SharedSpecialDirPath(uint code, bool create)
{
    if (!isSharedDir(code))
        return QLatin1String(Unknown);
    const struSpecialDir *const dir = SpecialDirTable::find(code);
    const QString base = getSpecialDirPath(dir->base, false);
    return created(ProgramPaths::joined({base, QLatin1String(dir->suffix)}), create);
}

QString PYXApplicationInfoImpl::getCurrent_SharedSpecialDirPath(uint code, bool create)
{
    _beforeQuery();
    const auto *const setting = sharedSetting(code);
    if (setting == nullptr)
        return getDefault_SharedSpecialDirPath(code, create);
    return created(PYXSettings(PYXSettings::eDefaultSharedSettings).stringValue(setting->key), create);
}

QString PYXApplicationInfoImpl::getCurrentOrDefault_SharedSpecialDirPath(uint code, bool create)
{
    const QString current = getCurrent_SharedSpecialDirPath(code, create);
    return current.isEmpty() ? getDefault_SharedSpecialDirPath(code, create) : current;
}

QDir PYXApplicationInfoImpl::getDefault_SharedSpecialDir(uint code, bool create)
{
    return QDir(getDefault_SharedSpecialDirPath(code, create));
}

QDir PYXApplicationInfoImpl::getCurrent_SharedSpecialDir(uint code, bool create)
{
    return QDir(getCurrent_SharedSpecialDirPath(code, create));
}

QDir PYXApplicationInfoImpl::getCurrentOrDefault_SharedSpecialDir(uint code, bool create)
{
    return QDir(getCurrentOrDefault_SharedSpecialDirPath(code, create));
}

} // namespace PYXRuntime
