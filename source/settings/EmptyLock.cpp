// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "EmptyLock.h"

#include <QtCore/QDeadlineTimer>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QLockFile>
#include <QtCore/QThread>

namespace PYXRuntime::EmptyLock {
namespace {

// The names that QSettings, and QLockFile where it removes a stale lock, give to their locks.
const QLatin1String LockSuffix(".lock");
const QLatin1String RemovalSuffix(".rmlock");

// A process writes its number right after it has made the file.
constexpr int PatienceMs = 500;
constexpr ulong PauseMs = 10;

bool isEmptyFile(const QString &path)
{
    const QFileInfo file(path);
    return file.isFile() && file.size() == 0;
}

} // namespace

void remove(const QString &settingsFile)
{
    const QString lock = settingsFile + LockSuffix;
    const QDeadlineTimer deadline(PatienceMs);
    while (isEmptyFile(lock)) {
        if (!deadline.hasExpired()) {
            QThread::msleep(PauseMs);
            continue;
        }
        // Nobody else removes it now, and nobody can make another one as long as it is there.
        QLockFile removal(lock + RemovalSuffix);
        if (removal.tryLock() && isEmptyFile(lock))
            QFile::remove(lock);
        return;
    }
}

} // namespace PYXRuntime::EmptyLock
