// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <cstddef>

namespace PYXRuntime::BufferWiper {

/** Fills memory with random bytes: good enough to cover a secret, not to make one. Any thread. */
void fillWithRandom(void *memory, std::size_t size);

/**
 * Wipes what a Qt array keeps of its elements, in place and whoever shares it, together with the room
 * behind them, where a longer value may have been. The array is not cleared.
 */
template <typename Array>
void wipe(Array &array)
{
    auto *const data = array.data_ptr();
    // Nothing but what the array has allocated itself may be written.
    if (!data->isMutable() || data->ref.isStatic())
        return;
    auto *const elements = data->data();
    fillWithRandom(elements, std::size_t(data->size) * sizeof(*elements));
    for (auto *spare = elements + data->size; spare != elements + data->alloc; ++spare)
        *spare = {};
}

} // namespace PYXRuntime::BufferWiper
