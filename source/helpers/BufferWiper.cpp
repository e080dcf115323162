// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "BufferWiper.h"

#include <QtCore/QDateTime>
#include <QtCore/QtGlobal>

#include <atomic>
#include <cstring>

namespace PYXRuntime::BufferWiper {
namespace {

/** The state of each call begins where the one before it ended, in whichever thread. */
std::atomic<quint64> &sharedState()
{
    static std::atomic<quint64> state{quint64(QDateTime::currentMSecsSinceEpoch())};
    return state;
}

constexpr quint64 Step = 0x9E3779B97F4A7C15;

/** SplitMix64: Steele, Lea, Flood, "Fast splittable pseudorandom number generators", 2014. */
quint64 mixed(quint64 value)
{
    value = (value ^ (value >> 30)) * 0xBF58476D1CE4E5B9;
    value = (value ^ (value >> 27)) * 0x94D049BB133111EB;
    return value ^ (value >> 31);
}

} // namespace

void fillWithRandom(void *memory, std::size_t size)
{
    quint64 state = sharedState().fetch_add(Step * (size / sizeof(quint64) + 1), std::memory_order_relaxed);
    auto *target = static_cast<unsigned char *>(memory);
    while (size > 0) {
        const quint64 word = mixed(state += Step);
        const std::size_t part = qMin(size, sizeof word);
        std::memcpy(target, &word, part);
        target += part;
        size -= part;
    }
    // The memory is about to be freed: without this a compiler may leave the writing out.
    std::atomic_signal_fence(std::memory_order_seq_cst);
}

} // namespace PYXRuntime::BufferWiper
