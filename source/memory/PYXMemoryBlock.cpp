// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXMemoryBlock.h"

namespace PYXRuntime {

QSharedPointer<PYXMemoryBlock> PYXMemoryBlock::allocate(const AllocatorPointer &allocator, quint64 byteSize)
{
    return placeAt(allocator, allocator != nullptr ? allocator->allocateMemory(byteSize) : nullptr, byteSize);
}

QSharedPointer<PYXMemoryBlock> PYXMemoryBlock::cloneFrom(const AllocatorPointer &allocator,
                                                         const void *source, quint64 byteSize)
{
    auto block = allocate(allocator, byteSize);
    if (block->data() != nullptr && source != nullptr)
        allocator->copyMemory(source, block->data(), byteSize);
    return block;
}

QSharedPointer<PYXMemoryBlock> PYXMemoryBlock::placeAt(const AllocatorPointer &allocator, void *data,
                                                       quint64 byteSize)
{
    return QSharedPointer<PYXMemoryBlock>(new PYXMemoryBlock(allocator, data, byteSize));
}

QSharedPointer<PYXMemoryBlock> PYXMemoryBlock::wrappedAt(void *data, quint64 byteSize)
{
    return placeAt({}, data, byteSize);
}

PYXMemoryBlock::PYXMemoryBlock(const PYXMemoryBlock &other) = default;
PYXMemoryBlock &PYXMemoryBlock::operator=(const PYXMemoryBlock &other) = default;

PYXMemoryBlock::PYXMemoryBlock(const AllocatorPointer &allocator, void *data, quint64 byteSize)
    : m_data(data)
    , m_byteSize(byteSize)
    , m_allocatedAt(QDateTime::currentMSecsSinceEpoch())
    , m_allocator(allocator)
{}

PYXMemoryBlock::~PYXMemoryBlock()
{
    if (m_allocator != nullptr)
        m_allocator->freeMemory(m_data);
}

QDateTime PYXMemoryBlock::allocatedAtUTC() const
{
    return QDateTime::fromMSecsSinceEpoch(m_allocatedAt, Qt::UTC);
}

} // namespace PYXRuntime
