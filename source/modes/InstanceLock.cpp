// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "InstanceLock.h"

#include "EmptyLock.h"

namespace PYXRuntime {
namespace {

const QLatin1String LockSuffix(".lock");
// The name that QLockFile gives to its lock while it removes a stale one.
const QLatin1String RemovalSuffix(".rmlock");
constexpr int PatienceMs = 500;

} // namespace

InstanceLock::InstanceLock(const QString &path)
    : m_path(path)
    , m_file(path + LockSuffix)
    , m_patience(PatienceMs)
{
    // It is held as long as its process lives.
    m_file.setStaleLockTime(0);
}

bool InstanceLock::tryLock()
{
    if (m_file.isLocked() || m_file.tryLock(0))
        return true;
    if (m_file.error() != QLockFile::LockFailedError)
        return false;
    EmptyLock::remove(m_path);
    if (m_patience.hasExpired())
        _removeAbandoned();
    return m_file.tryLock(0);
}

bool InstanceLock::cannotBeLocked() const
{
    return m_file.error() != QLockFile::NoError && m_file.error() != QLockFile::LockFailedError;
}

/**
 * QLockFile takes the lock of a process that has crashed for valid if the system has given the number of the
 * process to another one of the same name, as it does in containers. Whether anybody has the file open and
 * locked is sure: removeStaleLockFile() does not remove it then. Not before some patience, however, since a
 * process that unlocks closes the file first and removes it, or what then has its name, right after.
 */
void InstanceLock::_removeAbandoned()
{
    QLockFile removal(m_path + LockSuffix + RemovalSuffix);
    qint64 process = 0;
    QString host;
    QString application;
    // A file without content may not be locked yet.
    if (removal.tryLock(0) && m_file.getLockInfo(&process, &host, &application))
        m_file.removeStaleLockFile();
}

} // namespace PYXRuntime
