// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXAlignedMemoryAllocator.h"

#include <cstddef>
#include <limits>
#include <new>

namespace PYXRuntime {
namespace {

constexpr quint64 SmallestAlignment = 16;
constexpr quint64 LargestAlignment = 1U << 30;

} // namespace

PYXAlignedMemoryAllocator::PYXAlignedMemoryAllocator(quint64 alignment)
    : m_alignment(SmallestAlignment)
{
    while (m_alignment < qMin(alignment, LargestAlignment))
        m_alignment *= 2;
}

void *PYXAlignedMemoryAllocator::allocateMemory(quint64 byteSize)
{
    // The operator rounds the size up to the alignment, and does not look whether it overflows.
    if (byteSize > std::numeric_limits<std::ptrdiff_t>::max() - LargestAlignment)
        return nullptr;
    return ::operator new(static_cast<std::size_t>(byteSize), std::align_val_t(m_alignment), std::nothrow);
}

void PYXAlignedMemoryAllocator::freeMemory(void *data)
{
    ::operator delete(data, std::align_val_t(m_alignment));
}

} // namespace PYXRuntime
