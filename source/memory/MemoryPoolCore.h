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
 *
 * A program that takes a block and lets it go again, over and over, would spend most of its time in the lock
 * and the books. So there is a lane beside them, with room for one block of the size that was asked for last:
 * a block that comes back is put down there, and taken up again, by one atomic step each. In the books it
 * counts as handed out. Whoever has the lock first closes the lane and books what lies there as free, so to
 * everything under the lock it never was elsewhere. The lane stays closed while a block that comes back has
 * to be looked at: while somebody waits, above the bound, and after the pool's end.
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
    quint32 maximum();
    PYXMemoryPool::struStatistics statistics();

    /** The pool goes: wakes who waits. @param free gets the free blocks @return the blocks that are out. */
    MemoryPoolBooks::Areas close(MemoryPoolBooks::Blocks &free);
    /** Destroys what close() has given away, and sees to it that the memory goes back to the system. */
    void destroy(MemoryPoolBooks::Blocks &free);

private:
    using Locker = std::unique_lock<std::mutex>;
    class LaneClosure;

    PooledBlock *_takeFromLane(quint64 byteSize, PooledBlock *&misfit);
    PooledBlock *_acquireLocked(quint64 byteSize, unsigned long timeoutMs, PooledBlock *misfit);
    PooledBlock *_tryAcquire(quint64 byteSize);
    bool _waitForReturn(Locker &locker, unsigned long timeoutMs);
    bool _announceReturn();
    bool _isAboveBound() const { return m_maximum != 0 && m_books.poolSize() > m_maximum; }
    bool _hasRoom() const { return m_maximum == 0 || m_books.poolSize() < m_maximum; }
    std::unique_ptr<PooledBlock> _newBlock(quint64 byteSize);

    std::atomic<PooledBlock *> m_lane;  ///< null: empty, or the mark of a closed lane; opened under the lock
    std::atomic<quint64> m_laneSize{0}; ///< set under the lock

    std::mutex m_mutex; ///< guards all that follows
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
