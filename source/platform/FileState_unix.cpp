// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "FileState.h"

#include <QtCore/QFile>

#include <sys/stat.h>

namespace PYXRuntime::Platform {
namespace {

constexpr qint64 NanosecondsPerSecond = 1'000'000'000;

struFileState stateOf(const struct stat &status)
{
    return {status.st_dev, status.st_ino, status.st_size,
            status.st_mtim.tv_sec * NanosecondsPerSecond + status.st_mtim.tv_nsec};
}

} // namespace

struFileState fileState(const QString &path)
{
    struct stat status = {};
    return stat(QFile::encodeName(path).constData(), &status) == 0 ? stateOf(status) : struFileState();
}

struFileState fileState(int fileHandle)
{
    struct stat status = {};
    return fstat(fileHandle, &status) == 0 ? stateOf(status) : struFileState();
}

} // namespace PYXRuntime::Platform
