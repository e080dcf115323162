// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXStdMemoryAllocator.h"

#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <limits>

namespace PYXRuntime {

void *PYXStdMemoryAllocator::allocateMemory(quint64 byteSize)
{
    if (byteSize > std::numeric_limits<std::ptrdiff_t>::max())
        return nullptr;
    return std::malloc(static_cast<std::size_t>(byteSize));
}

void PYXStdMemoryAllocator::freeMemory(void *data)
{
    std::free(data);
}

void PYXStdMemoryAllocator::copyMemory(const void *source, void *destination, quint64 byteSize)
{
    std::memcpy(destination, source, static_cast<std::size_t>(byteSize));
}

} // namespace PYXRuntime
