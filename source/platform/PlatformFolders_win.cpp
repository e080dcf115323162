// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PlatformFolders.h"

#include <windows.h>
// After windows.h, whose types it needs.
#include <shlobj.h>

namespace PYXRuntime::Platform::System {

QString shellFolder(uint folder)
{
    wchar_t path[MAX_PATH] = {};
    if (FAILED(SHGetFolderPathW(nullptr, int(folder), nullptr, SHGFP_TYPE_CURRENT, path)))
        return {};
    return QString::fromWCharArray(path).replace(QLatin1Char('\\'), QLatin1Char('/'));
}

bool isOnRemovableDrive(const QString &path)
{
    if (path.size() < 2 || path.at(1) != QLatin1Char(':'))
        return false;
    const wchar_t root[] = {wchar_t(path.at(0).unicode()), L':', L'\\', L'\0'};
    return GetDriveTypeW(root) == DRIVE_REMOVABLE;
}

} // namespace PYXRuntime::Platform::System
