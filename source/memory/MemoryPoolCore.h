// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "MemoryPoolBooks.h"
#include "PYXMemoryPool.h"

#include <condition_variable>
#include <mutex>

namespace PYXRuntime {

/**
 * What a pool and its blocks share, and the pool's lock. Each block keeps it alive, so a block can come back
 * at any time, also while the pool is being destroyed in another thread, or later. Any thread.
 */
class MemoryPoolCore final : public std::enable_shared_from_this<MemoryPoolCore>
{
    Q_DISABLE_COPY(MemoryPoolCore)
public:
    using AllocatorPointer = PYXMemoryBlock::AllocatorPointer;

    explicit MemoryPoolCore(AllocatorPointer allocator);

    /** @return null if none could be had in time; else a block that is to be given to giveBack(). */
    PooledBlock *acquire(quint64 byteSize, unsigned long timeoutMs);
    /** The way of every block that was acquired, whether the pool is still there or not. */
    static void giveBack(PooledBlock *block);

    unsigned int preallocate(quint64 byteSize, unsigned int count);
    void purge(int ageSeconds);
    void setMaximum(quint32 maximum);
    quint32 maximum() const;
    PYXMemoryPool::struStatistics statistics() const;

    /** The pool goes: wakes who waits, frees what is free. @return the blocks that are still out. */
    MemoryPoolBooks::Areas close();

private:
    using Locker = std::unique_lock<std::mutex>;
    using Guard = std::lock_guard<std::mutex>;

    PooledBlock *_tryAcquire(quint64 byteSize);
    bool _waitForReturn(Locker &locker, unsigned long timeoutMs);
    bool _announceReturn();
    bool _hasRoom() const { return m_maximum == 0 || m_books.poolSize() < m_maximum; }
    std::unique_ptr<PooledBlock> _newBlock(quint64 byteSize);

    mutable std::mutex m_mutex; ///< guards all that follows
    std::condition_variable m_waitCondition;
    MemoryPoolBooks m_books;
    AllocatorPointer m_allocator; ///< null once the pool is gone
    quint32 m_maximum = 0;
    quint32 m_waitingThreads = 0;
    quint64 m_returns = 0;       ///< those that somebody waited for: tells a return from a spurious wake-up
    quint64 m_returnedBytes = 0; ///< of the bytes that left the books: those that the system has again
    quint64 m_hits = 0;
    quint64 m_misses = 0;
    quint64 m_waits = 0;
    quint64 m_refusals = 0;
};

} // namespace PYXRuntime
