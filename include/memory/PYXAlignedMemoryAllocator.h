// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "PYXStdMemoryAllocator.h"

namespace PYXRuntime {

/**
 * Memory of the process heap whose areas begin at multiples of an alignment, as vector instructions and
 * direct input and output want it. Not zeroed; any thread.
 */
class PYXRUNTIME_EXPORT PYXAlignedMemoryAllocator final : public PYXStdMemoryAllocator
{
public:
    /** The line of the processor's caches, and the width of its widest vectors. */
    static constexpr quint64 CacheLine = 64;

    /** @param alignment in bytes; raised to the next power of two, and to 16 at least; at most 2^30. */
    explicit PYXAlignedMemoryAllocator(quint64 alignment = CacheLine);

    quint64 alignment() const { return m_alignment; }

    void *allocateMemory(quint64 byteSize) override;
    void freeMemory(void *data) override;

private:
    quint64 m_alignment;
};

} // namespace PYXRuntime
