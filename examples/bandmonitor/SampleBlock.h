// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "SampleSource.h"

#include <PYXMemoryBlock.h>

namespace BandMonitor {

/** Some samples in memory that goes back to its pool when the last one who looks at them lets go. */
struct struSampleBlock
{
    QSharedPointer<PYXRuntime::PYXMemoryBlock> memory;
    std::size_t count = 0;

    const Sample *samples() const { return static_cast<const Sample *>(memory->data()); }
};

} // namespace BandMonitor
