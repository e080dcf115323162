// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QString>

namespace PYXRuntime::Platform {

/** Which file it is and how it was last changed. Two that had one name after each other differ. */
struct struFileState
{
    quint64 device = 0;
    quint64 number = 0;     ///< of the file on its device
    qint64 size = -1;       ///< in bytes; -1: there is no such file
    qint64 nanoseconds = 0; ///< when it was last changed, since 1970, as finely as the file system keeps it

    bool isPresent() const { return size >= 0; }
    bool isSameFile(const struFileState &other) const
    {
        return isPresent() && other.isPresent() && device == other.device && number == other.number;
    }
    bool operator==(const struFileState &other) const
    {
        return isSameFile(other) && size == other.size && nanoseconds == other.nanoseconds;
    }
};

/** Of the file or directory that has this name now; of the one that a symbolic link leads to. */
struFileState fileState(const QString &path);

/** Of an open file. */
struFileState fileState(int fileHandle);

} // namespace PYXRuntime::Platform
