// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "MemoryPoolCore.h"

#include "Platform.h"

#include <QtCore/QDateTime>

#include <chrono>

namespace PYXRuntime {
namespace {

// The heap keeps what is freed for later; less than this is not worth asking it.
constexpr quint64 BytesWorthReturning = quint64(4) * 1024 * 1024;

// Longer waits are without limit: 23 days, and no clock's type overflows.
constexpr unsigned long LongestTimeoutMs = 2'000'000'000;

/** What lies in a closed lane: the address of no block. */
PooledBlock *const ClosedLane = reinterpret_cast<PooledBlock *>(quintptr(1));

} // namespace

/** Keeps the lane closed, and what lay there in the books. Lives under the lock, and only once at a time. */
class MemoryPoolCore::LaneClosure final
{
    Q_DISABLE_COPY(LaneClosure)
public:
    explicit LaneClosure(MemoryPoolCore &core)
        : m_core(core)
    {
        PooledBlock *const block = core.m_lane.exchange(ClosedLane, std::memory_order_acq_rel);
        if (block != nullptr && block != ClosedLane)
            core.m_books.putBack(block);
    }
    ~LaneClosure()
    {
        const bool bOpen = m_core.m_waitingThreads == 0 && m_core.m_allocator != nullptr;
        m_core.m_lane.store(bOpen && !m_core._isAboveBound() ? nullptr : ClosedLane,
                            std::memory_order_release);
    }

private:
    MemoryPoolCore &m_core;
};

MemoryPoolCore::MemoryPoolCore(AllocatorPointer allocator)
    : m_lane(nullptr)
    , m_allocator(std::move(allocator))
{}

PooledBlock *MemoryPoolCore::acquire(quint64 byteSize, unsigned long timeoutMs)
{
    PooledBlock *misfit = nullptr;
    PooledBlock *block = _takeFromLane(byteSize, misfit);
    if (block == nullptr)
        block = _acquireLocked(byteSize, timeoutMs, misfit);
    if (block != nullptr)
        block->stampHandOut();
    return block;
}

/**
 * @return a block of exactly this size, which in the lane is the one that came back last
 * @param misfit a block of another size, which got there while the lane's size changed
 */
PooledBlock *MemoryPoolCore::_takeFromLane(quint64 byteSize, PooledBlock *&misfit)
{
    PooledBlock *block = m_lane.load(std::memory_order_relaxed);
    if (block == nullptr || block == ClosedLane || byteSize == 0 ||
        m_laneSize.load(std::memory_order_relaxed) != byteSize)
        return nullptr;
    // What is loaded may have been taken and destroyed since: it is looked into only once it is ours.
    if (!m_lane.compare_exchange_strong(block, nullptr, std::memory_order_acquire, std::memory_order_relaxed))
        return nullptr;
    if (block->byteSize() != byteSize) {
        misfit = block;
        return nullptr;
    }
    block->countLaneHit();
    return block;
}

PooledBlock *MemoryPoolCore::_acquireLocked(quint64 byteSize, unsigned long timeoutMs, PooledBlock *misfit)
{
    std::shared_ptr<MemoryPoolCore> self;
    Locker locker(m_mutex);
    if (misfit != nullptr) {
        m_books.putBack(misfit);
        if (_announceReturn())
            m_waitCondition.notify_all();
    }
    const LaneClosure closure(*this);
    PooledBlock *block = _tryAcquire(byteSize);
    if (block == nullptr && timeoutMs > 0) {
        // The pool may go while this waits.
        self = shared_from_this();
        ++m_waits;
        // The lock is held from the moment of waking to the end of the second attempt, which is the last.
        if (_waitForReturn(locker, timeoutMs))
            block = _tryAcquire(byteSize);
    }
    if (block == nullptr)
        ++m_refusals;
    else
        m_laneSize.store(block->byteSize(), std::memory_order_relaxed);
    return block;
}

/** Expects the lock to be held, as all that follows in this class and is private. */
PooledBlock *MemoryPoolCore::_tryAcquire(quint64 byteSize)
{
    if (PooledBlock *const block = m_books.takeFitting(byteSize)) {
        ++m_hits;
        return block;
    }
    if (!_hasRoom() || m_allocator == nullptr)
        return nullptr;
    ++m_misses;
    return m_books.addAcquired(_newBlock(byteSize));
}

/** @return false if no block came back in time. */
bool MemoryPoolCore::_waitForReturn(Locker &locker, unsigned long timeoutMs)
{
    const auto hasReturned = [this, seen = m_returns] { return m_returns != seen; };
    bool bReturned = true;
    ++m_waitingThreads;
    if (timeoutMs > LongestTimeoutMs)
        m_waitCondition.wait(locker, hasReturned);
    else
        bReturned = m_waitCondition.wait_for(locker, std::chrono::milliseconds(timeoutMs), hasReturned);
    --m_waitingThreads;
    return bReturned;
}

/** @return whether somebody is to be woken, once the lock is released. */
bool MemoryPoolCore::_announceReturn()
{
    if (m_waitingThreads == 0)
        return false;
    ++m_returns;
    return true;
}

std::unique_ptr<PooledBlock> MemoryPoolCore::_newBlock(quint64 byteSize)
{
    return std::make_unique<PooledBlock>(m_allocator, byteSize, shared_from_this());
}

void MemoryPoolCore::giveBack(PooledBlock *block)
{
    MemoryPoolCore &core = block->core();
    PooledBlock *empty = nullptr;
    if (block->byteSize() == core.m_laneSize.load(std::memory_order_relaxed) && block->isAsBooked() &&
        core.m_lane.compare_exchange_strong(empty, block, std::memory_order_release,
                                            std::memory_order_relaxed))
        return; // The block may be another's or destroyed, and the core with it.

    std::shared_ptr<MemoryPoolCore> awaited;
    std::unique_ptr<PooledBlock> surplus;
    {
        const Locker locker(core.m_mutex);
        const LaneClosure closure(core);
        if (core.m_allocator == nullptr) {
            surplus.reset(block);
        } else if (core._isAboveBound()) {
            surplus = core.m_books.leaveBehind(block);
        } else {
            core.m_books.putBack(block);
            if (core._announceReturn())
                awaited = core.shared_from_this();
        }
    }
    // As above: only what has been kept is used from here on.
    if (awaited != nullptr)
        awaited->m_waitCondition.notify_all();
}

unsigned int MemoryPoolCore::preallocate(quint64 byteSize, unsigned int count)
{
    const Locker locker(m_mutex);
    const LaneClosure closure(*this);
    unsigned int made = 0;
    for (; made < count && _hasRoom(); ++made) {
        auto block = _newBlock(byteSize);
        if (block->data() == nullptr)
            break;
        m_books.addFree(std::move(block));
    }
    return made;
}

void MemoryPoolCore::purge(int ageSeconds)
{
    quint64 freed = 0;
    {
        // Destroyed without the lock: freeing much memory takes long, and nobody needs to wait for it.
        MemoryPoolBooks::Blocks old;
        const Locker locker(m_mutex);
        const LaneClosure closure(*this);
        old = m_books.takeOlderThan(QDateTime::currentMSecsSinceEpoch(), ageSeconds);
        freed = m_books.removedBytes() - m_returnedBytes;
        if (freed >= BytesWorthReturning)
            m_returnedBytes = m_books.removedBytes();
    }
    if (freed >= BytesWorthReturning)
        Platform::returnFreedMemory();
}

void MemoryPoolCore::setMaximum(quint32 maximum)
{
    MemoryPoolBooks::Blocks trimmed;
    const Locker locker(m_mutex);
    const LaneClosure closure(*this);
    // No bound, 0, counts as the smallest: coming from it nothing is trimmed.
    const bool bTrim = maximum != 0 && maximum < m_maximum;
    m_maximum = maximum;
    if (bTrim)
        trimmed = m_books.takeUntilSizeIs(maximum);
}

quint32 MemoryPoolCore::maximum()
{
    const Locker locker(m_mutex);
    return m_maximum;
}

PYXMemoryPool::struStatistics MemoryPoolCore::statistics()
{
    const Locker locker(m_mutex);
    const LaneClosure closure(*this);
    PYXMemoryPool::struStatistics statistics;
    statistics.hits = m_hits + m_books.laneHits();
    statistics.misses = m_misses;
    statistics.waits = m_waits;
    statistics.refusals = m_refusals;
    statistics.bytes = m_books.bytes();
    statistics.peakBytes = m_books.peakBytes();
    statistics.acquiredBlocks = m_books.acquiredCount();
    statistics.freeBlocks = m_books.freeCount();
    return statistics;
}

MemoryPoolBooks::Areas MemoryPoolCore::close(MemoryPoolBooks::Blocks &free)
{
    AllocatorPointer allocator;
    const Locker locker(m_mutex);
    const LaneClosure closure(*this);
    MemoryPoolBooks::Areas acquired = m_books.acquiredAreas();
    free = m_books.takeAllFree();
    allocator.swap(m_allocator);
    if (_announceReturn())
        m_waitCondition.notify_all();
    return acquired;
}

void MemoryPoolCore::destroy(MemoryPoolBooks::Blocks &free)
{
    free.clear();
    quint64 freed = 0;
    {
        const Locker locker(m_mutex);
        freed = m_books.removedBytes() - m_returnedBytes;
    }
    if (freed >= BytesWorthReturning)
        Platform::returnFreedMemory();
}

} // namespace PYXRuntime
