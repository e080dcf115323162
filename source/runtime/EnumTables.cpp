// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "EnumTables.h"

#include "Enums.h"
#include "Flags.h"
#include "PYXApplicationInfoImpl.h"
#include "PYXIAppInternals.h"
#include "PYXIFileList.h"
#include "PYXRecentFilesMenu.h"
#include "PYXRetainingFileSet.h"
#include "PYXRuntime.h"
#include "PYXSettings.h"
#include "PYXSettingsBinder.h"
#include "PYXSettingsTransfer.h"
#include "PYXSingleInstance.h"
#include "PYXStandardIconIds.h"
#include "PYXStrings.h"
#include "PYXStyleHints.h"
#include "PYXTracerBase.h"
#include "PYXWinResVersion.h"
#include "QIconHelpers.h"

#include <algorithm>

namespace PYXRuntime {
namespace {

// The interfaces of these two have no meta-object.
Enums::Keys appModes()
{
    return {{QStringLiteral("ekAppMode_Debug"), PYXIAppInternals::ekAppMode_Debug},
            {QStringLiteral("ekAppMode_Expert"), PYXIAppInternals::ekAppMode_Expert}};
}

Enums::Keys specialDirs()
{
    Enums::Keys keys;
    const QHash<QString, uint> &names = PYXApplicationInfoImpl::staticSpecialDirsEnumByName();
    for (auto name = names.cbegin(); name != names.cend(); ++name)
        keys.append({name.key(), name.value()});
    std::sort(keys.begin(), keys.end(),
              [](const auto &left, const auto &right) { return left.second < right.second; });
    return keys;
}

template <typename... Types>
void registerEnumerations()
{
    (Enums::registerEnumeration<Types>(), ...);
}

} // namespace

void fillEnumTables()
{
    registerEnumerations<PYXStrings::eText, PYXIFileList::eFileType, PYXRecentFilesMenu::eMissingFiles,
                         PYXRetainingFileSet::eWeight, PYXSettings::ePurpose,
                         PYXSettings::eThisRunOnlySettings, PYXSettingsBinder::eComboValue,
                         PYXSettingsTransfer::eSecrets, PYXSingleInstance::eResult,
                         PYXStandardIconIds::eStandardIcon, PYXStyleHints::eColor, PYXStyleHints::eIconSize,
                         PYXTracerBase::eForm, PYXTracerBase::eLevel, PYXWinResVersion::eVersionType>();
    Enums::registerEnumeration(QStringLiteral("PYXRuntime::PYXIApplicationInfo::eSpecialDir"), specialDirs());
    Flags::registerFlags<ePYXInitializeFlags>();
    Flags::registerFlags<QIconHelpers::eOverlayRegionFlags>();
    Flags::registerFlags(QStringLiteral("PYXRuntime::PYXIAppInternals::eAppMode"), appModes());
}

} // namespace PYXRuntime
