// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "PYXBrokerInterface.h"
#include "PYXInterfaceIdentifiers.h"

#include <QtCore/QDir>
#include <QtCore/QString>

namespace PYXRuntime {

/**
 * Where an application keeps what: every path it uses, by code; the last directory per purpose; the layout
 * direction per key.
 *
 * The library registers an implementation, PYXApplicationInfoImpl, with the broker under the name 0; an
 * application may register its own on top.
 * @code
 * auto *info = PYXBroker::getInstance()->topObject<PYXIApplicationInfo>();
 * const QString logs = info->getSpecialDirPath(PYXIApplicationInfo::eApplicationLogsDir, true);
 * @endcode
 * Main thread only. No operation fails. The order of the operations is part of the contract.
 */
class PYXIApplicationInfo
{
public:
    /** The special directories. 3, 30 and 101 are codes too, but have no name. */
    enum eSpecialDir : uint {
        eApplicationBaseDir = 0, ///< where the program is installed; above "bin"
        eApplicationPluginsBaseDir = 1,
        eApplicationUserPublicDataBaseDir = 2,
        eApplicationUserPrivateDataBaseDir = 4,
        eApplicationLocalDataBaseDir = 5,
        eApplicationOutputBaseDir = 6,
        eApplicationLogsDir = 7,
        eApplicationDatastreamsDir = 8,
        eApplicationResultsDir = 9,
        eApplicationJobsDir = 10,
        eApplicationProjectsDir = 11,
        eApplicationCorrelationSamplesDir = 12,
        eApplicationReportsDir = 13,
        eApplicationDiagramsDir = 14,
        eApplicationLayoutsDir = 15,
        eApplicationUserDiskCacheBaseDir = 16,
        eApplicationParamSetsDir = 17,
        eApplicationDictionariesDir = 18,
        eApplicationUserDictionariesDir = 19,
        eApplicationScriptsDir = 20,
        eApplicationDriveLetter = 21, ///< "C"; empty where there are no drive letters
        eApplicationDriveRoot = 22,   ///< "C:"; empty where there are no drive letters
        eApplicationCommonPrivateDataBaseDir = 23,
        eApplicationCommonPublicDataBaseDir = 24,
        eOrganizationSharedRootDir = 25,
        eOrganizationSharedScriptsDir = 26,
        eOrganizationSharedCollectionsDir = 27,
        eOrganizationSharedDetectorProfilesDir = 28,
        eOrganizationUserPublicDataBaseDir = 29,
        eOrganizationUserPrivateDataBaseDir = 31,
        eOrganizationLocalDataBaseDir = 32,
        eOrganizationOutputBaseDir = 33,
        eOrganizationCommonPrivateDataBaseDir = 34,
        eOrganizationCommonPublicDataBaseDir = 35,
        eSystemUserDocuments = 100,
        eSystemUserAppData = 102,
        eSystemUserLocalAppData = 103,
        eSystemProgramFiles = 104,
        eSystemProgramFilesCommon = 105,
        eSystemDesktop = 106,
        eSystemTemporaryFiles = 107,
        eSystemCommonAppData = 108,
        eSystemCommonDocuments = 109,
        eSpecialDirFirstUser = 1000 ///< codes above belong to applications
    };

    /** Whether the program runs from a removable drive, or is marked as portable. */
    virtual bool isRunningFromPortableDevice() const = 0;
    /** Takes the drive from a path on the drive of a portable program; another path comes back as it is. */
    virtual QString modifyPathForPortableDevice(const QString &path) = 0;
    /**
     * The path of a special directory; "." for an unknown code.
     * @param create makes the directory with all its parents; whether that worked is not told.
     */
    virtual QString getSpecialDirPath(uint code, bool create) = 0;
    virtual QDir getSpecialDir(uint code, bool create) = 0;
    /** The directory last used for a purpose, kept in the user's settings; empty if there is none. */
    virtual QString getLastDirPath(const QString &id) = 0;
    /** The current directory if there is none. */
    virtual QDir getLastDir(const QString &id) = 0;
    /** An empty path forgets the directory. */
    virtual void saveLastDirPath(const QString &id, const QString &path) = 0;
    virtual void saveLastDir(const QString &id, const QDir &dir) = 0;
    /** Kept as long as the object lives. */
    virtual void setLayoutDirection(const QString &key, Qt::LayoutDirection direction) = 0;
    /** Left to right if none has been set. */
    virtual Qt::LayoutDirection getLayoutDirection(const QString &key) = 0;

protected:
    // Not virtual: a destructor would take slots of the table.
    ~PYXIApplicationInfo() = default;
};

} // namespace PYXRuntime

Q_DECLARE_INTERFACE(PYXRuntime::PYXIApplicationInfo, "com.varnholt.PYXRuntime.PYXIApplicationInfo/1.0")
PYX_DECLARE_BROKER_INTERFACE(PYXRuntime::PYXIApplicationInfo,
                             PYXRuntime::InterfaceIdentifiers::applicationInfo())
