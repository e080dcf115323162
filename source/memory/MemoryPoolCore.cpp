// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "MemoryPoolCore.h"

#include "Platform.h"

#include <QtCore/QDateTime>

#include <chrono>

namespace PYXRuntime {
namespace {

// The heap keeps what is freed for later; less than this is not worth asking it.
constexpr quint64 BytesWorthReturning = 4 * 1024 * 1024;

// Longer waits are without limit: 23 days, and no clock's type overflows.
constexpr unsigned long LongestTimeoutMs = 2'000'000'000;

} // namespace

MemoryPoolCore::MemoryPoolCore(AllocatorPointer allocator)
    : m_allocator(std::move(allocator))
{}

PooledBlock *MemoryPoolCore::acquire(quint64 byteSize, unsigned long timeoutMs)
{
    std::shared_ptr<MemoryPoolCore> self;
    Locker locker(m_mutex);
    PooledBlock *block = _tryAcquire(byteSize);
    if (block == nullptr && timeoutMs > 0) {
        // The pool may go while this waits.
        self = shared_from_this();
        ++m_waits;
        // The lock is held from the moment of waking to the end of the second attempt, which is the last.
        if (_waitForReturn(locker, timeoutMs))
            block = _tryAcquire(byteSize);
    }
    if (block == nullptr) {
        ++m_refusals;
        return nullptr;
    }
    locker.unlock();
    block->_touchAllocatedAt();
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
    std::shared_ptr<MemoryPoolCore> awaited;
    std::unique_ptr<PooledBlock> surplus;
    {
        const Guard guard(core.m_mutex);
        if (core.m_allocator == nullptr) {
            surplus.reset(block);
        } else if (core.m_maximum != 0 && core.m_books.poolSize() > core.m_maximum) {
            surplus = core.m_books.leaveBehind(block);
        } else {
            core.m_books.putBack(block);
            if (core._announceReturn())
                awaited = core.shared_from_this();
        }
    }
    // From here on the block may be another's or destroyed, and the core with it.
    if (awaited != nullptr)
        awaited->m_waitCondition.notify_all();
}

unsigned int MemoryPoolCore::preallocate(quint64 byteSize, unsigned int count)
{
    const Guard guard(m_mutex);
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
        const Guard guard(m_mutex);
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
    const Guard guard(m_mutex);
    // No bound, 0, counts as the smallest: coming from it nothing is trimmed.
    const bool bTrim = maximum != 0 && maximum < m_maximum;
    m_maximum = maximum;
    if (bTrim)
        trimmed = m_books.takeUntilSizeIs(maximum);
}

quint32 MemoryPoolCore::maximum() const
{
    const Guard guard(m_mutex);
    return m_maximum;
}

PYXMemoryPool::struStatistics MemoryPoolCore::statistics() const
{
    const Guard guard(m_mutex);
    PYXMemoryPool::struStatistics statistics;
    statistics.hits = m_hits;
    statistics.misses = m_misses;
    statistics.waits = m_waits;
    statistics.refusals = m_refusals;
    statistics.bytes = m_books.bytes();
    statistics.peakBytes = m_books.peakBytes();
    statistics.acquiredBlocks = m_books.acquiredCount();
    statistics.freeBlocks = m_books.freeCount();
    return statistics;
}

MemoryPoolBooks::Areas MemoryPoolCore::close()
{
    MemoryPoolBooks::Areas acquired;
    AllocatorPointer allocator;
    quint64 freed = 0;
    {
        MemoryPoolBooks::Blocks free;
        const Guard guard(m_mutex);
        acquired = m_books.acquiredAreas();
        free = m_books.takeAllFree();
        freed = m_books.removedBytes() - m_returnedBytes;
        allocator.swap(m_allocator);
        if (_announceReturn())
            m_waitCondition.notify_all();
    }
    if (freed >= BytesWorthReturning)
        Platform::returnFreedMemory();
    return acquired;
}

} // namespace PYXRuntime
