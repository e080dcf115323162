// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PlatformFolders.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QStorageInfo>

namespace PYXRuntime::Platform {
namespace {

struFolderAnswers &answers()
{
    static auto *const replaced = new struFolderAnswers;
    return *replaced;
}

} // namespace

QString programDirectory()
{
    const auto &answer = answers().programDirectory;
    return answer ? answer() : QCoreApplication::applicationDirPath();
}

QString shellFolder(uint folder)
{
    const auto &answer = answers().shellFolder;
    return answer ? answer(folder) : System::shellFolder(folder);
}

bool isOnRemovableDrive(const QString &path)
{
    const auto &answer = answers().isOnRemovableDrive;
    return answer ? answer(path) : System::isOnRemovableDrive(path);
}

QString mountPoint(const QString &path)
{
    const auto &answer = answers().mountPoint;
    return answer ? answer(path) : QStorageInfo(path).rootPath();
}

void replaceFolderAnswers(const struFolderAnswers &replacement)
{
    answers() = replacement;
}

} // namespace PYXRuntime::Platform
