// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "pyxruntime_export.h"

#include <QtCore/QString>

#include <functional>

/**
 * What the system knows of folders and drives. Usable before QCoreApplication exists, the directory of the
 * program excepted. Any thread, while no answer is being replaced.
 */
namespace PYXRuntime::Platform {

/** The folders of the shell, by the numbers that Windows gives them (CSIDL). */
enum eShellFolder : uint {
    ekFolder_Desktop = 0,
    ekFolder_Documents = 5,
    ekFolder_RoamingData = 26,
    ekFolder_LocalData = 28,
    ekFolder_CommonData = 35,
    ekFolder_Programs = 38,
    ekFolder_Pictures = 39,
    ekFolder_CommonPrograms = 43,
    ekFolder_CommonDocuments = 46
};

/** Where the program lies; needs QCoreApplication. */
QString programDirectory();
/** Empty where the system has no such folder. Separated by "/". */
QString shellFolder(uint folder);
/** Whether the path lies on a drive that is made to be taken out. */
bool isOnRemovableDrive(const QString &path);
/** The root of the file system that holds the path. */
QString mountPoint(const QString &path);

/** Answers that stand in for those of the system; what is left empty is still asked of the system. */
struct struFolderAnswers
{
    std::function<QString()> programDirectory;
    std::function<QString(uint)> shellFolder;
    std::function<bool(const QString &)> isOnRemovableDrive;
    std::function<QString(const QString &)> mountPoint;
};

/** For tests. In a thread of its own only while no other one asks. */
PYXRUNTIME_EXPORT void replaceFolderAnswers(const struFolderAnswers &answers);

/** The system's own answers: one side in PlatformFolders_unix.cpp, the other in PlatformFolders_win.cpp. */
namespace System {
QString shellFolder(uint folder);
bool isOnRemovableDrive(const QString &path);
} // namespace System

} // namespace PYXRuntime::Platform
