// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "FileState.h"

#include "Platform.h"

#include <QtCore/QDir>

#include <io.h>
#include <windows.h>

namespace PYXRuntime::Platform {
namespace {

constexpr qint64 NanosecondsPerTick = 100;

quint64 joined(DWORD high, DWORD low)
{
    return quint64(high) << 32 | low;
}

struFileState stateOf(HANDLE file)
{
    BY_HANDLE_FILE_INFORMATION info = {};
    if (file == INVALID_HANDLE_VALUE || GetFileInformationByHandle(file, &info) == 0)
        return {};
    const quint64 changed = joined(info.ftLastWriteTime.dwHighDateTime, info.ftLastWriteTime.dwLowDateTime);
    return {info.dwVolumeSerialNumber, joined(info.nFileIndexHigh, info.nFileIndexLow),
            qint64(joined(info.nFileSizeHigh, info.nFileSizeLow)),
            qint64(changed - fileTimeOfUnixEpoch()) * NanosecondsPerTick};
}

} // namespace

struFileState fileState(const QString &path)
{
    const QString native = QDir::toNativeSeparators(path);
    // No access is asked for, so whoever has it open does not stand in the way.
    const HANDLE file = CreateFileW(reinterpret_cast<const wchar_t *>(native.utf16()), 0,
                                    FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                    OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr); // directories too
    const struFileState state = stateOf(file);
    if (file != INVALID_HANDLE_VALUE)
        CloseHandle(file);
    return state;
}

struFileState fileState(int fileHandle)
{
    return stateOf(reinterpret_cast<HANDLE>(_get_osfhandle(fileHandle)));
}

} // namespace PYXRuntime::Platform
