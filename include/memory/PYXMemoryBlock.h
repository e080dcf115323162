// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "IPYXMemoryAllocator.h"
#include "pyxruntime_export.h"

#include <QtCore/QDateTime>
#include <QtCore/QSharedPointer>

namespace PYXRuntime {

/**
 * One area of raw memory with its size and what is in use of it. Blocks are made by the static functions or
 * by a PYXMemoryPool, and held through shared pointers.
 *
 * A block with an allocator gives its area back to it when it is destroyed, and keeps the allocator alive
 * until then. A copy refers to the same area as the original, its allocator and time stamp included: of a
 * block with an allocator and its copies no two may be destroyed. One thread at a time.
 */
class PYXRUNTIME_EXPORT PYXMemoryBlock
{
public:
    using AllocatorPointer = QSharedPointer<Interfaces::IPYXMemoryAllocator>;

    /** An area of the allocator; data() is null where it has none, and without an allocator. */
    static QSharedPointer<PYXMemoryBlock> allocate(const AllocatorPointer &allocator, quint64 byteSize);
    /** allocate(), and a copy of @p byteSize bytes from @p source if both are there. */
    static QSharedPointer<PYXMemoryBlock> cloneFrom(const AllocatorPointer &allocator, const void *source,
                                                    quint64 byteSize);
    /** Takes an area over that the allocator can free. */
    static QSharedPointer<PYXMemoryBlock> placeAt(const AllocatorPointer &allocator, void *data,
                                                  quint64 byteSize);
    /** Foreign memory: it stays its owner's, and is never freed by the block. */
    static QSharedPointer<PYXMemoryBlock> wrappedAt(void *data, quint64 byteSize);

    PYXMemoryBlock(const PYXMemoryBlock &other);
    /** The area that this block had is not freed. */
    PYXMemoryBlock &operator=(const PYXMemoryBlock &other);
    ~PYXMemoryBlock();

    void *data() { return m_data; }
    const void *data() const { return m_data; }
    quint64 byteSize() const { return m_byteSize; }

    /** How much of the area is in use, as the user has said; byteSize() where that is unset or 0. */
    quint64 byteSize_Payload() const { return m_byteSize_Payload != 0 ? m_byteSize_Payload : m_byteSize; }
    /** Not compared with byteSize(). A pool hands a block on with the payload size that it was left with. */
    void setByteSize_Payload(quint64 byteSize) { m_byteSize_Payload = byteSize; }
    void unsetByteSize_Payload() { m_byteSize_Payload = 0; }

    /** When it was made, or last handed out by a pool. */
    QDateTime allocatedAtUTC() const;

private:
    friend class PYXMemoryPool;
    friend class PooledBlock;

    PYXMemoryBlock(const AllocatorPointer &allocator, void *data, quint64 byteSize);

    void *m_data;
    quint64 m_byteSize;
    quint64 m_byteSize_Payload = 0;
    qint64 m_allocatedAt; ///< ms since 1970; a date is made of it for whoever asks
    AllocatorPointer m_allocator;
};

} // namespace PYXRuntime
