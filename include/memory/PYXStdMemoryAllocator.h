// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "IPYXMemoryAllocator.h"
#include "pyxruntime_export.h"

namespace PYXRuntime {

/** Memory of the process heap, as it comes: not zeroed. Has no state; any thread. */
class PYXRUNTIME_EXPORT PYXStdMemoryAllocator : public Interfaces::IPYXMemoryAllocator
{
public:
    void *allocateMemory(quint64 byteSize) override;
    void freeMemory(void *data) override;
    void copyMemory(const void *source, void *destination, quint64 byteSize) override;
};

} // namespace PYXRuntime
