// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "SpecialDirTable.h"

#include "PlatformFolders.h"
#include "PYXIApplicationInfo.h"

#include <algorithm>

namespace PYXRuntime::SpecialDirTable {
namespace {

using E = PYXIApplicationInfo;
using namespace Platform;

// The codes that have no name.
constexpr uint ApplicationPictures = 3;
constexpr uint OrganizationPictures = 30;
constexpr uint Pictures = 101;

#define PYX_NAMED(enumerator) E::enumerator, #enumerator

constexpr struSpecialDir special(uint code, const char *name, eRule rule, const char *suffix = nullptr)
{
    return {code, name, rule, 0, ekNames_None, suffix, nullptr};
}

constexpr struSpecialDir below(uint code, const char *name, uint base, const char *suffix)
{
    return {code, name, ekRule_Below, base, ekNames_None, suffix, nullptr};
}

constexpr struSpecialDir below(uint code, const char *name, uint base, eNames names)
{
    return {code, name, ekRule_Below, base, names, nullptr, nullptr};
}

constexpr struSpecialDir shared(uint code, const char *name, uint base, const char *suffix)
{
    return {code, name, ekRule_Shared, base, ekNames_None, suffix, nullptr};
}

constexpr struSpecialDir shell(uint code, const char *name, uint folder, const char *suffix = nullptr,
                               const char *compatibleSuffix = nullptr)
{
    return {code, name, ekRule_Shell, folder, ekNames_None, suffix, compatibleSuffix};
}

// Ordered by code.
constexpr Table Entries{{
    special(PYX_NAMED(eApplicationBaseDir), ekRule_Program),
    below(PYX_NAMED(eApplicationPluginsBaseDir), E::eApplicationBaseDir, "plugins"),
    below(PYX_NAMED(eApplicationUserPublicDataBaseDir), E::eSystemUserDocuments, ekNames_Both),
    below(ApplicationPictures, nullptr, Pictures, ekNames_Both),
    below(PYX_NAMED(eApplicationUserPrivateDataBaseDir), E::eSystemUserAppData, ekNames_Both),
    below(PYX_NAMED(eApplicationLocalDataBaseDir), E::eSystemUserLocalAppData, ekNames_Both),
    below(PYX_NAMED(eApplicationOutputBaseDir), E::eApplicationUserPublicDataBaseDir, nullptr),
    below(PYX_NAMED(eApplicationLogsDir), E::eApplicationOutputBaseDir, "logs"),
    below(PYX_NAMED(eApplicationDatastreamsDir), E::eApplicationOutputBaseDir, "datastreams"),
    below(PYX_NAMED(eApplicationResultsDir), E::eApplicationOutputBaseDir, "results"),
    below(PYX_NAMED(eApplicationJobsDir), E::eApplicationOutputBaseDir, "jobs"),
    below(PYX_NAMED(eApplicationProjectsDir), E::eApplicationOutputBaseDir, "projects"),
    below(PYX_NAMED(eApplicationCorrelationSamplesDir), E::eApplicationOutputBaseDir, "correlationsamples"),
    below(PYX_NAMED(eApplicationReportsDir), E::eApplicationOutputBaseDir, "reports"),
    below(PYX_NAMED(eApplicationDiagramsDir), E::eApplicationOutputBaseDir, "diagrams"),
    below(PYX_NAMED(eApplicationLayoutsDir), E::eApplicationOutputBaseDir, "layouts"),
    special(PYX_NAMED(eApplicationUserDiskCacheBaseDir), ekRule_DiskCache, "cache"),
    below(PYX_NAMED(eApplicationParamSetsDir), E::eApplicationUserPublicDataBaseDir, "paramsets"),
    below(PYX_NAMED(eApplicationDictionariesDir), E::eApplicationBaseDir, "dictionaries"),
    below(PYX_NAMED(eApplicationUserDictionariesDir), E::eApplicationUserPublicDataBaseDir, "dictionaries"),
    below(PYX_NAMED(eApplicationScriptsDir), E::eApplicationUserPublicDataBaseDir, "scripts"),
    special(PYX_NAMED(eApplicationDriveLetter), ekRule_DriveLetter),
    special(PYX_NAMED(eApplicationDriveRoot), ekRule_DriveRoot),
    below(PYX_NAMED(eApplicationCommonPrivateDataBaseDir), E::eOrganizationCommonPrivateDataBaseDir,
          ekNames_Application),
    below(PYX_NAMED(eApplicationCommonPublicDataBaseDir), E::eOrganizationCommonPublicDataBaseDir,
          ekNames_Application),
    shared(PYX_NAMED(eOrganizationSharedRootDir), E::eOrganizationUserPublicDataBaseDir, "Shared"),
    shared(PYX_NAMED(eOrganizationSharedScriptsDir), E::eOrganizationSharedRootDir, "scripts"),
    shared(PYX_NAMED(eOrganizationSharedCollectionsDir), E::eOrganizationSharedRootDir, "collections"),
    shared(PYX_NAMED(eOrganizationSharedDetectorProfilesDir), E::eOrganizationSharedRootDir,
           "detectorprofiles"),
    below(PYX_NAMED(eOrganizationUserPublicDataBaseDir), E::eSystemUserDocuments, ekNames_Organization),
    below(OrganizationPictures, nullptr, Pictures, ekNames_Organization),
    below(PYX_NAMED(eOrganizationUserPrivateDataBaseDir), E::eSystemUserAppData, ekNames_Organization),
    below(PYX_NAMED(eOrganizationLocalDataBaseDir), E::eSystemUserLocalAppData, ekNames_Organization),
    below(PYX_NAMED(eOrganizationOutputBaseDir), E::eOrganizationUserPublicDataBaseDir, nullptr),
    below(PYX_NAMED(eOrganizationCommonPrivateDataBaseDir), E::eSystemCommonAppData, ekNames_Organization),
    below(PYX_NAMED(eOrganizationCommonPublicDataBaseDir), E::eSystemCommonDocuments, ekNames_Organization),
    shell(PYX_NAMED(eSystemUserDocuments), ekFolder_Documents, "Personal/Documents", "Personal Documents"),
    shell(Pictures, nullptr, ekFolder_Pictures, "Personal/Pictures", "Personal Pictures"),
    shell(PYX_NAMED(eSystemUserAppData), ekFolder_RoamingData, "Personal/AppData/Roaming", "Roaming Data"),
    shell(PYX_NAMED(eSystemUserLocalAppData), ekFolder_LocalData, "Personal/AppData/Local", "Local Data"),
    shell(PYX_NAMED(eSystemProgramFiles), ekFolder_Programs),
    shell(PYX_NAMED(eSystemProgramFilesCommon), ekFolder_CommonPrograms),
    shell(PYX_NAMED(eSystemDesktop), ekFolder_Desktop),
    special(PYX_NAMED(eSystemTemporaryFiles), ekRule_Temporary),
    shell(PYX_NAMED(eSystemCommonAppData), ekFolder_CommonData, "Common/AppData"),
    shell(PYX_NAMED(eSystemCommonDocuments), ekFolder_CommonDocuments, "Common/Documents"),
}};

#undef PYX_NAMED

} // namespace

const Table &entries()
{
    return Entries;
}

const struSpecialDir *find(uint code)
{
    const auto entry =
        std::lower_bound(Entries.cbegin(), Entries.cend(), code,
                         [](const struSpecialDir &dir, uint wanted) { return dir.code < wanted; });
    return entry != Entries.cend() && entry->code == code ? &*entry : nullptr;
}

} // namespace PYXRuntime::SpecialDirTable
