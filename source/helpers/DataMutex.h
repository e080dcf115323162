// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QDeadlineTimer>
#include <QtCore/QMutex>
#include <QtCore/QWaitCondition>

#if defined(__SANITIZE_THREAD__)
#define PYX_THREAD_SANITIZER
#elif defined(__has_feature)
#if __has_feature(thread_sanitizer)
#define PYX_THREAD_SANITIZER
#endif
#endif
#ifdef PYX_THREAD_SANITIZER
#include <sanitizer/tsan_interface.h>
#endif

namespace PYXRuntime {

/**
 * A QMutex that the thread sanitizer understands: Qt's own is built on system calls that it does not see,
 * so it is told of every lock and unlock. Without the sanitizer nothing is added. Use with std::lock_guard.
 */
class DataMutex final
{
public:
    DataMutex() = default;
    Q_DISABLE_COPY(DataMutex)

    void lock()
    {
        announceLock();
        m_mutex.lock();
        confirmLock();
    }

    void unlock()
    {
        announceUnlock();
        m_mutex.unlock();
        confirmUnlock();
    }

    /** Waits with the mutex unlocked; it is locked again when this returns. */
    bool wait(QWaitCondition &condition, QDeadlineTimer deadline)
    {
        announceUnlock();
        confirmUnlock();
        const bool bWoken = condition.wait(&m_mutex, deadline);
        announceLock();
        confirmLock();
        return bWoken;
    }

private:
#ifdef PYX_THREAD_SANITIZER
    void announceLock()
    {
        __tsan_mutex_pre_lock(&m_mutex, 0);
    }
    void confirmLock()
    {
        __tsan_mutex_post_lock(&m_mutex, 0, 0);
    }
    void announceUnlock()
    {
        __tsan_mutex_pre_unlock(&m_mutex, 0);
    }
    void confirmUnlock()
    {
        __tsan_mutex_post_unlock(&m_mutex, 0);
    }
#else
    void announceLock() {}
    void confirmLock() {}
    void announceUnlock() {}
    void confirmUnlock() {}
#endif

    QMutex m_mutex;
};

} // namespace PYXRuntime
