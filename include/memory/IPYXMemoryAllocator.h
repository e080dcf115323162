// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QtGlobal>

namespace Interfaces {

/**
 * Where memory blocks get their memory from. A pool calls it from all threads that use the pool, at times
 * in two of them at once, and must not be used from inside these calls. The order of the operations is part
 * of the binary contract.
 */
class IPYXMemoryAllocator
{
public:
    /** @return an area of @p byteSize bytes, or null where there is none. Nothing is thrown. */
    virtual void *allocateMemory(quint64 byteSize) = 0;
    /** Takes an area of allocateMemory() back; null is allowed. */
    virtual void freeMemory(void *data) = 0;
    /** Copies between areas that do not overlap. */
    virtual void copyMemory(const void *source, void *destination, quint64 byteSize) = 0;

    // The last one, so that the operations keep their places.
    virtual ~IPYXMemoryAllocator() = default;
};

} // namespace Interfaces
