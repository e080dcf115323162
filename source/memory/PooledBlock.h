// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "PYXMemoryBlock.h"

#include <atomic>
#include <cstddef>
#include <map>
#include <memory>

namespace PYXRuntime {

class MemoryPoolCore;

/** Free blocks by size; of one size, the one that came back last is the first. */
using FreeBlocks = std::multimap<quint64, class PooledBlock *>;

/** A block of a pool, and what the pool has written down about it. Only the pool's books touch these. */
class PooledBlock final : public PYXMemoryBlock
{
    Q_DISABLE_COPY(PooledBlock)
public:
    PooledBlock(const AllocatorPointer &allocator, quint64 byteSize, std::shared_ptr<MemoryPoolCore> core)
        : PYXMemoryBlock(allocator, allocator->allocateMemory(byteSize), byteSize)
        , m_bookedSize(byteSize)
        , m_bookedData(data())
        , m_core(std::move(core))
    {}

    /** Stamps it with the time; the clock is not asked twice for the same millisecond. */
    void stampHandOut();

    MemoryPoolCore &core() const { return *m_core; }
    /** Whether it still has the area that it had when it was booked: blocks can be assigned to. */
    bool isAsBooked() const { return m_bookedSize == byteSize() && m_bookedData == data(); }
    /** Only its holder counts. */
    void countLaneHit()
    {
        m_laneHits.store(m_laneHits.load(std::memory_order_relaxed) + 1, std::memory_order_relaxed);
    }
    qint64 ageInSeconds(qint64 now) const { return (now - m_allocatedAt) / 1000; }

private:
    friend class MemoryPoolBooks;

    qint64 m_stamp = 0;
    quint64 m_stampedAtCycle = 0;
    quint64 m_stampHoldsFor = 0; ///< cycles
    quint64 m_bookedSize;
    const void *m_bookedData;
    std::atomic<quint64> m_laneHits{0}; ///< that the books have not taken over yet
    std::size_t m_acquiredIndex = 0;
    FreeBlocks::node_type m_freeNode; ///< kept while handed out, so that coming back allocates nothing
    std::shared_ptr<MemoryPoolCore> m_core;
};

} // namespace PYXRuntime
