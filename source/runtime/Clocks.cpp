// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "Platform.h"
#include "PYXRuntime.h"

#include <atomic>

namespace PYXRuntime {
namespace {

constexpr quint64 FileTimeTicksPerMicrosecond = 10;

/** What is known of the high-resolution counter; zero until the first probe. */
struct struPerformanceCounter
{
    std::atomic<bool> bProbed;
    std::atomic<bool> bAvailable;
    std::atomic<bool> bFrequencyValid;
    std::atomic<qint64> frequency;
};
struPerformanceCounter s_counter;

void store(bool *ok, bool value)
{
    if (ok != nullptr)
        *ok = value;
}

} // namespace

qint64 rawPerfFrequency(bool *ok)
{
    if (!s_counter.bFrequencyValid) {
        bool bAvailable = false;
        s_counter.frequency = Platform::performanceFrequency(&bAvailable);
        s_counter.bAvailable = bAvailable;
        s_counter.bFrequencyValid = bAvailable;
        s_counter.bProbed = true;
    }
    store(ok, s_counter.bFrequencyValid);
    return s_counter.frequency;
}

qint64 rawPerfCounter(bool *ok)
{
    if (s_counter.bProbed && !s_counter.bAvailable) {
        store(ok, false);
        return 0;
    }
    return Platform::performanceCounter(ok);
}

quint64 perfCounterInMyS(qint64 *rawCounter, qint64 *frequency)
{
    const qint64 ticksPerSecond = rawPerfFrequency();
    const qint64 ticks = rawPerfCounter();
    if (rawCounter != nullptr)
        *rawCounter = ticks;
    if (frequency != nullptr)
        *frequency = ticksPerSecond;
    if (ticksPerSecond == 0)
        return 0;
    return static_cast<quint64>(double(ticks) * 1'000'000.0 / double(ticksPerSecond));
}

quint64 perfCounterInMS(qint64 *rawCounter, qint64 *frequency)
{
    return perfCounterInMyS(rawCounter, frequency) / 1000;
}

uint uptimeInMS()
{
    return Platform::uptimeMilliseconds();
}

quint64 currentUTCInMyS()
{
    static const quint64 epoch = Platform::fileTimeOfUnixEpoch();
    return (Platform::fileTimeNow() - epoch) / FileTimeTicksPerMicrosecond;
}

quint64 currentUTCInMS()
{
    return currentUTCInMyS() / 1000;
}

} // namespace PYXRuntime
