// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "PYXMemoryBlock.h"
#include "pyxruntime_export.h"

#include <QtCore/QObject>

#include <atomic>
#include <climits>
#include <memory>

class QTimer;

namespace PYXRuntime {

class MemoryPoolCore;

/**
 * Hands out blocks of memory that come back when their last holder lets go, and are handed out again.
 * @code
 * const auto block = pool.acquire(sampleCount * sizeof(float));
 * if (block != nullptr && block->data() != nullptr)
 *     receiver.readSamples(block->data(), sampleCount);
 * @endcode
 * A request gets the smallest free block that is large enough, of several of one size the one that came
 * back last; but none of twice the size or more: for that a new block is made, of exactly the size. What is
 * in a block is what was left there.
 *
 * Blocks that have not been handed out for a while are freed by a timer. The pool can be bounded to a number
 * of blocks, free ones included; a request beyond it waits for a block to come back.
 *
 * acquire(), preallocate(), purgeNow(), setMaximumPoolSize(), the getters of the bound and of the statistics
 * and the release of blocks: any thread. Everything else: the pool's thread, which needs an event loop for
 * the timer. The pool may be destroyed while blocks are out, which is reported through
 * pyx_message_output(); they live until their last holder lets go. A thread that waits in acquire()
 * meanwhile gets null.
 */
class PYXRUNTIME_EXPORT PYXMemoryPool final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(PYXMemoryPool)
    Q_PROPERTY(bool autoPurgeEnabled READ isAutoPurgeEnabled WRITE setAutoPurgeEnabled)
    Q_PROPERTY(int autoPurgeInterval READ autoPurgeInterval WRITE setAutoPurgeInterval)
    Q_PROPERTY(int autoPurgeAge READ autoPurgeAge WRITE setAutoPurgeAge)
    Q_PROPERTY(unsigned int maximumPoolSize READ maximumPoolSize WRITE setMaximumPoolSize)
public:
    /** Counted since the pool was made. */
    struct struStatistics
    {
        quint64 hits = 0;     ///< requests that got a block which was there
        quint64 misses = 0;   ///< requests for which a block was made
        quint64 waits = 0;    ///< requests that had to wait; they count as one of the others too
        quint64 refusals = 0; ///< requests that got nothing
        quint64 bytes = 0;    ///< now in blocks, free and handed out
        quint64 peakBytes = 0;
        quint32 acquiredBlocks = 0; ///< as the bound counts them, see setMaximumPoolSize()
        quint32 freeBlocks = 0;
    };

    /** @param allocator null: one of the pool's own, a PYXStdMemoryAllocator */
    explicit PYXMemoryPool(const QSharedPointer<Interfaces::IPYXMemoryAllocator> &allocator,
                           QObject *parent = nullptr);
    ~PYXMemoryPool() override;

    /**
     * A block of at least @p byteSize bytes. A request for 0 bytes always gets a new block.
     * @param timeoutMs longest time to wait where the pool is bounded and full; ULONG_MAX: without limit
     * @return null if no block came back in time, or if the one that came back does not fit or has gone to
     *         another waiting thread: a request tries once more after it has waited, not longer. The block's
     *         data() is null if the allocator had no memory.
     */
    QSharedPointer<PYXMemoryBlock> acquire(quint64 byteSize, unsigned long timeoutMs = ULONG_MAX);
    /**
     * Makes free blocks ahead of their use, up to the pool's bound and as long as there is memory. Their age
     * counts from now.
     * @return how many were made
     */
    unsigned int preallocate(quint64 byteSize, unsigned int count);

    /**
     * Frees the free blocks that were made or last handed out more than so many whole seconds ago, and sees
     * to it that the memory goes back to the system. -1: all free blocks.
     */
    void purgeNow(int ageSeconds);
    void purgeNow();

    struStatistics statistics() const;

    /** On at first. */
    bool isAutoPurgeEnabled() const { return m_autoPurgeTimer != nullptr; }
    /** In ms; 60 000 at first. */
    int autoPurgeInterval() const { return m_autoPurgeInterval; }
    /** In s; 30 at first. */
    int autoPurgeAge() const { return m_autoPurgeAge; }
    /** In blocks; 0, as at first: unbounded. */
    unsigned int maximumPoolSize() const;

public Q_SLOTS:
    void setAutoPurgeEnabled(bool enable);
    void setAutoPurgeInterval(int milliseconds);
    void setAutoPurgeAge(int seconds);
    /**
     * Coming from a higher bound, free blocks are freed, the smallest first: one at least, then until the
     * pool has exactly the new size or no free block is left. Coming from none, nothing is freed.
     *
     * Blocks that come back while the pool is larger than its bound are freed, but stay in the count of
     * acquired blocks. Threads that wait are not woken, neither by this nor by a purge.
     */
    void setMaximumPoolSize(unsigned int maximum);

private Q_SLOTS:
    void _sl_autoPurgeTimer_timeout();

private:
    QTimer *m_autoPurgeTimer = nullptr;
    int m_autoPurgeInterval;
    std::atomic<int> m_autoPurgeAge; ///< purgeNow() reads it in any thread
    const std::shared_ptr<MemoryPoolCore> m_core;
};

} // namespace PYXRuntime
