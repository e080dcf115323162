// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "PooledBlock.h"

#include <vector>

namespace PYXRuntime {

/**
 * What a pool knows about its blocks: which are free and which are handed out, counts and bytes. It owns the
 * free blocks. Not guarded: whoever uses it holds the pool's lock. It destroys nothing while in use; what
 * leaves the books is handed to the caller, who may let go of the lock first.
 */
class MemoryPoolBooks final
{
    Q_DISABLE_COPY(MemoryPoolBooks)
public:
    using Blocks = std::vector<std::unique_ptr<PooledBlock>>;
    struct struArea
    {
        quint64 byteSize;
        const void *data;
    };
    using Areas = std::vector<struArea>;

    MemoryPoolBooks() = default;
    ~MemoryPoolBooks();

    /** Takes the best fitting free block and books it as handed out; null if none fits. */
    PooledBlock *takeFitting(quint64 byteSize);
    /** Books a new block as handed out. */
    PooledBlock *addAcquired(std::unique_ptr<PooledBlock> block);
    /** Books a new block as free. */
    void addFree(std::unique_ptr<PooledBlock> block);
    /** Books a block that was handed out as free. */
    void putBack(PooledBlock *block);
    /** Lets go of a block that was handed out, but leaves its entry among those that are. */
    std::unique_ptr<PooledBlock> leaveBehind(PooledBlock *block);

    /** Takes the free blocks out that were handed out more than so many whole seconds before @p now (ms). */
    Blocks takeOlderThan(qint64 now, int ageSeconds);
    /** Takes the smallest free block out, and more until the pool has exactly this size or none is left. */
    Blocks takeUntilSizeIs(quint32 size);
    Blocks takeAllFree();

    /** Blocks that are free or, as far as the books know, handed out. */
    quint32 poolSize() const { return acquiredCount() + freeCount(); }
    quint32 acquiredCount() const { return quint32(m_acquired.size() + m_leftBehind.size()); }
    quint32 freeCount() const { return quint32(m_free.size()); }
    quint64 bytes() const { return m_bytes; }
    quint64 peakBytes() const { return m_peakBytes; }
    /** Of all blocks that have left the books. */
    quint64 removedBytes() const { return m_removedBytes; }
    /** How often blocks were handed out past the books. */
    quint64 laneHits() const;
    /** What acquiredCount() counts, the entries left behind included. */
    Areas acquiredAreas() const;

private:
    std::unique_ptr<PooledBlock> _takeFree(FreeBlocks::iterator at);
    void _insertFree(PooledBlock *block);
    void _bookAcquired(PooledBlock *block);
    void _unbookAcquired(PooledBlock *block);
    void _addBytes(quint64 byteSize);
    void _removeBytes(quint64 byteSize);

    FreeBlocks m_free;
    std::vector<PooledBlock *> m_acquired; ///< in no order; each block knows its index
    Areas m_leftBehind;
    quint64 m_bytes = 0;
    quint64 m_peakBytes = 0;
    quint64 m_removedBytes = 0;
    quint64 m_laneHits = 0; ///< of the blocks that are not handed out now
};

} // namespace PYXRuntime
