// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "MemoryPoolBooks.h"

namespace PYXRuntime {
namespace {

/** Less than twice as large as what is asked for; written so that it cannot overflow. */
bool isThrifty(quint64 byteSize, quint64 requested)
{
    return byteSize - requested < requested;
}

} // namespace

MemoryPoolBooks::~MemoryPoolBooks()
{
    takeAllFree();
}

PooledBlock *MemoryPoolBooks::takeFitting(quint64 byteSize)
{
    const auto found = m_free.lower_bound(byteSize);
    if (found == m_free.end() || !isThrifty(found->first, byteSize))
        return nullptr;
    PooledBlock *const block = found->second;
    block->m_freeNode = m_free.extract(found);
    _bookAcquired(block);
    return block;
}

PooledBlock *MemoryPoolBooks::addAcquired(std::unique_ptr<PooledBlock> block)
{
    _addBytes(block->m_bookedSize);
    _bookAcquired(block.get());
    return block.release();
}

void MemoryPoolBooks::addFree(std::unique_ptr<PooledBlock> block)
{
    _addBytes(block->m_bookedSize);
    _insertFree(block.release());
}

void MemoryPoolBooks::putBack(PooledBlock *block)
{
    _unbookAcquired(block);
    // Blocks can be assigned to, and then have another area.
    m_bytes -= block->m_bookedSize;
    block->m_bookedSize = block->byteSize();
    block->m_bookedData = block->data();
    _addBytes(block->m_bookedSize);
    _insertFree(block);
}

std::unique_ptr<PooledBlock> MemoryPoolBooks::leaveBehind(PooledBlock *block)
{
    _unbookAcquired(block);
    _removeBytes(block->m_bookedSize);
    // Apart from the blocks that exist: a new one may get the same address.
    m_leftBehind.push_back({block->m_bookedSize, block->m_bookedData});
    return std::unique_ptr<PooledBlock>(block);
}

MemoryPoolBooks::Blocks MemoryPoolBooks::takeOlderThan(qint64 now, int ageSeconds)
{
    Blocks taken;
    for (auto at = m_free.begin(); at != m_free.end();) {
        const auto current = at++;
        if (current->second->ageInSeconds(now) > ageSeconds)
            taken.push_back(_takeFree(current));
    }
    return taken;
}

MemoryPoolBooks::Blocks MemoryPoolBooks::takeUntilSizeIs(quint32 size)
{
    Blocks taken;
    while (!m_free.empty()) {
        taken.push_back(_takeFree(m_free.begin()));
        if (poolSize() == size)
            break;
    }
    return taken;
}

MemoryPoolBooks::Blocks MemoryPoolBooks::takeAllFree()
{
    Blocks taken;
    taken.reserve(m_free.size());
    while (!m_free.empty())
        taken.push_back(_takeFree(m_free.begin()));
    return taken;
}

MemoryPoolBooks::Areas MemoryPoolBooks::acquiredAreas() const
{
    Areas areas = m_leftBehind;
    for (const PooledBlock *block : m_acquired)
        areas.push_back({block->m_bookedSize, block->m_bookedData});
    return areas;
}

quint64 MemoryPoolBooks::laneHits() const
{
    quint64 hits = m_laneHits;
    for (const PooledBlock *block : m_acquired)
        hits += block->m_laneHits.load(std::memory_order_relaxed);
    return hits;
}

std::unique_ptr<PooledBlock> MemoryPoolBooks::_takeFree(FreeBlocks::iterator at)
{
    PooledBlock *const block = at->second;
    m_free.erase(at);
    _removeBytes(block->m_bookedSize);
    return std::unique_ptr<PooledBlock>(block);
}

void MemoryPoolBooks::_insertFree(PooledBlock *block)
{
    const quint64 byteSize = block->m_bookedSize;
    const auto before = m_free.lower_bound(byteSize);
    if (block->m_freeNode.empty()) {
        m_free.emplace_hint(before, byteSize, block);
        return;
    }
    block->m_freeNode.key() = byteSize;
    m_free.insert(before, std::move(block->m_freeNode));
}

void MemoryPoolBooks::_bookAcquired(PooledBlock *block)
{
    block->m_acquiredIndex = m_acquired.size();
    m_acquired.push_back(block);
}

void MemoryPoolBooks::_unbookAcquired(PooledBlock *block)
{
    PooledBlock *const last = m_acquired.back();
    last->m_acquiredIndex = block->m_acquiredIndex;
    m_acquired[block->m_acquiredIndex] = last;
    m_acquired.pop_back();
    m_laneHits += block->m_laneHits.exchange(0, std::memory_order_relaxed);
}

void MemoryPoolBooks::_addBytes(quint64 byteSize)
{
    m_bytes += byteSize;
    m_peakBytes = qMax(m_peakBytes, m_bytes);
}

void MemoryPoolBooks::_removeBytes(quint64 byteSize)
{
    m_bytes -= byteSize;
    m_removedBytes += byteSize;
}

} // namespace PYXRuntime
