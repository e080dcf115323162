// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "PYXIApplicationInfo.h"
#include "pyxruntime_export.h"

#include <QtCore/QHash>
#include <QtCore/QObject>
#include <QtCore/QSettings>

namespace PYXRuntime {

/**
 * The library's application information. The broker makes one while the library loads; an application that
 * wants some paths otherwise derives from it, overrides getSpecialDirPath() and registers its object on top.
 * A path that is below another one is asked for through that operation, so what is below moves along.
 *
 * A program is portable when it lies on a removable drive, when a file named "portable" lies in
 * eApplicationBaseDir, or when it asks for it (setPortable()). Its user's and common folders are then in a
 * tree of folders that travels with it:
 *  - where there are drive letters, "/portable" on the current drive;
 *  - elsewhere "portable" in the root of the removable drive, or beside another program;
 *  - in the compatibility mode "portable" in eApplicationBaseDir; the common folders stay the system's.
 * Where "portable" is the marking file itself, the tree is in "portable-data".
 *
 * The first query, and the first after a switch has changed, looks where the program lies, points the default
 * format of QSettings at the folders of a portable program, and outside of the compatibility mode writes
 * the default shared paths. A program that may be portable calls ensureInitialized() before its first
 * settings: best before initialize_PYXRuntime(), which reads the proxy from them, with
 * PYXXmlSettings::format() made the default format.
 *
 * Main thread only.
 */
class PYXRUNTIME_EXPORT PYXApplicationInfoImpl : public QObject, public PYXIApplicationInfo
{
    Q_OBJECT
    Q_DISABLE_COPY(PYXApplicationInfoImpl)
    Q_INTERFACES(PYXRuntime::PYXIApplicationInfo)
public:
    explicit PYXApplicationInfoImpl(QObject *parent = nullptr);
    ~PYXApplicationInfoImpl() override;

    /**
     * Does now what the next query would do first. Without a QCoreApplication there is nothing to be found
     * out: every path begins with "." then, which is told by a message, and the next query tries again.
     */
    void ensureInitialized();
    bool needsInitialize() const;

    /**
     * Whether the settings are pointed at the special directories: the user's at eSystemUserLocalAppData, the
     * machine's at eSystemCommonAppData (in the compatibility mode at "userSettings" and "defaultSettings" in
     * eApplicationLocalDataBaseDir). As long as it has not been set, only a portable program's are. What has
     * been pointed there stays so.
     */
    bool initializeSettingsPaths() const;
    void setInitializeSettingsPaths(bool initialize);
    /** Whether a portable program has its folders where programs of old have them. Default: false. */
    bool specialDirCompatibilityMode() const;
    void setSpecialDirCompatibilityMode(bool compatible);
    /**
     * Whether the program is portable wherever it lies, as with a switch on its command line. Default: false.
     * isRunningFromPortableDevice() tells whether it is portable for any reason.
     */
    bool isPortable() const;
    void setPortable(bool portable);

    bool isRunningFromPortableDevice() const override;
    QString modifyPathForPortableDevice(const QString &path) override;
    QString getSpecialDirPath(uint code, bool create) override;
    QDir getSpecialDir(uint code, bool create) override;
    QString getLastDirPath(const QString &id) override;
    QDir getLastDir(const QString &id) override;
    void saveLastDirPath(const QString &id, const QString &path) override;
    void saveLastDir(const QString &id, const QDir &dir) override;
    void setLayoutDirection(const QString &key, Qt::LayoutDirection direction) override;
    Qt::LayoutDirection getLayoutDirection(const QString &key) override;

    /**
     * Writes the default shared paths into the machine's shared settings. Where these cannot be written,
     * nothing happens but a debug message, once.
     */
    void initSharedPathsDefaults();
    /** The shared directories (eOrganizationShared...); "." for any other code. */
    QString getDefault_SharedSpecialDirPath(uint code, bool create);
    /** As the machine's shared settings have it; empty where they have none. The root is always the default.
     */
    QString getCurrent_SharedSpecialDirPath(uint code, bool create);
    QString getCurrentOrDefault_SharedSpecialDirPath(uint code, bool create);
    QDir getDefault_SharedSpecialDir(uint code, bool create);
    QDir getCurrent_SharedSpecialDir(uint code, bool create);
    QDir getCurrentOrDefault_SharedSpecialDir(uint code, bool create);

    /** The organisation's name, or defaultOrganizationName(). */
    static QString effectiveOrganizationName();
    /** The application's name, or that of its file, or "application". */
    static QString effectiveApplicationName();
    static QString effectiveOrganizationSubPath();
    static QString effectiveApplicationSubPath();
    /** Organisation "/" application. */
    static QString effectiveOrgAppSubPath();
    static QString defaultOrganizationName();

    /** Makes a directory with all its parents. @return true also for an empty path. */
    static bool createPath(const QString &path);
    /** The directory that an environment variable names; empty if it is not set. */
    static QString getDirFromEnv(const QString &variable);
    /**
     * A folder of the shell, by its Windows number (CSIDL); empty where there is none. Other systems have
     * counterparts for the numbers 0, 5, 26, 28, 35, 38, 39, 43 and 46.
     */
    static QString getWindowsSpecialDir(uint folder);

    /** For messages: a name also for the codes that have none. */
    static QString getSpecialDirEnumName(uint code);
    static const QHash<QString, uint> &staticSpecialDirsEnumByName();
    static const QHash<uint, QString> &staticSpecialDirsEnumByValue();

private:
    class Resolver;

    void _beforeQuery();
    void _locateProgram();
    void _prepareSettings();
    void _pointSettings();

    bool m_bNeedsInitialize = true;
    QString m_baseDir;
    bool m_bRemovableDrive = false;
    QChar m_driveLetter;
    QString m_driveRoot;
    QString m_portablePlace; ///< what "/portable" is appended to
    bool m_bSpecialDirCompatibilityMode = false;
    bool m_bPortable = false;
    bool m_bInitializeSettingsPaths = false;
    bool m_bInitializeSettingsPathsSet = false;
    QSettings::Format m_preparedFormat = QSettings::InvalidFormat;
    bool m_bUnwritableSharedPathsTold = false;
    bool m_bResolving = false;
    QHash<QString, Qt::LayoutDirection> m_layoutDirections;
};

} // namespace PYXRuntime
