// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "KeychainEntry.h"

#include "PYXByteArrayHelpers.h"
#include "WipedValue.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QEventLoop>
#include <QtCore/QTimer>

#include <qt5keychain/keychain.h>

namespace PYXRuntime {
namespace {

/** Ends a job with its scope. One that has not been answered by then may still be, and ends itself after
 * that. */
template <typename Job>
class ScopedJob final
{
    Q_DISABLE_COPY(ScopedJob)
public:
    ScopedJob(const QString &service, const QString &name)
        : m_job(new Job(service))
    {
        m_job->setKey(name);
        m_job->setAutoDelete(false);
    }
    ~ScopedJob()
    {
        if (m_bFinished)
            delete m_job;
        else
            m_job->setAutoDelete(true);
    }

    Job *operator->() const { return m_job; }
    /** @return whether it has ended in time */
    bool run(int timeoutMs);
    /** For the user. */
    QString error() const;

private:
    Job *const m_job;
    bool m_bFinished = false;
};

template <typename Job>
bool ScopedJob<Job>::run(int timeoutMs)
{
    QEventLoop loop;
    QObject::connect(m_job, &QKeychain::Job::finished, &loop, [&] {
        m_bFinished = true;
        loop.quit();
    });
    QTimer::singleShot(timeoutMs, &loop, &QEventLoop::quit);
    m_job->start();
    loop.exec(QEventLoop::ExcludeUserInputEvents);
    return m_bFinished;
}

template <typename Job>
QString ScopedJob<Job>::error() const
{
    const QString reason = m_bFinished ? m_job->errorString()
                                       : QCoreApplication::translate("PYXRuntime::KeychainEntry",
                                                                     "It has not answered in time.");
    return QCoreApplication::translate("PYXRuntime::KeychainEntry",
                                       "The system's secret store cannot be used: %1")
        .arg(reason);
}

} // namespace

KeychainEntry::KeychainEntry(const QString &service, const QString &name, int timeoutMs)
    : m_service(service)
    , m_name(name)
    , m_timeoutMs(timeoutMs)
{}

KeychainEntry::eAnswer KeychainEntry::read(QByteArray &secret, QString &error) const
{
    ScopedJob<QKeychain::ReadPasswordJob> job(m_service, m_name);
    const bool bFinished = job.run(m_timeoutMs);
    if (bFinished && job->error() == QKeychain::EntryNotFound)
        return ekAnswer_Missing;
    if (!bFinished || job->error() != QKeychain::NoError) {
        error = job.error();
        return ekAnswer_Failed;
    }
    // The job's own copy, too, is wiped.
    const WipedBytes found(job->binaryData());
    secret = PYXByteArrayHelpers::trueCopy(found.value);
    return ekAnswer_Found;
}

KeychainEntry::eAnswer KeychainEntry::write(const QByteArray &secret, QString &error) const
{
    ScopedJob<QKeychain::WritePasswordJob> job(m_service, m_name);
    QByteArray copy = PYXByteArrayHelpers::trueCopy(secret);
    job->setBinaryData(copy);
    const bool bFinished = job.run(m_timeoutMs);
    // A late job still writes what it shares with this copy: better the key than what wiping leaves of it.
    if (bFinished)
        PYXByteArrayHelpers::safeOverwriteAndClear(copy);
    if (bFinished && job->error() == QKeychain::NoError)
        return ekAnswer_Found;
    error = job.error();
    return ekAnswer_Failed;
}

} // namespace PYXRuntime
