// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PooledBlock.h"

#include "Platform.h"

namespace PYXRuntime {

void PooledBlock::stampHandOut()
{
    const quint64 cycles = Platform::cycleCounter();
    if (cycles - m_stampedAtCycle >= m_stampHoldsFor) {
        const Platform::struUtcTime now = Platform::utcTime();
        m_stamp = now.milliseconds;
        m_stampedAtCycle = cycles;
        m_stampHoldsFor = cycles != 0 ? now.cycles : 0;
    }
    m_allocatedAt = m_stamp;
}

} // namespace PYXRuntime
