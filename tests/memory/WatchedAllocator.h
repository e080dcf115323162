// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "PYXStdMemoryAllocator.h"

#include <mutex>
#include <set>

/** Knows which of its areas are out; counts those that come back without having been out. */
class WatchedAllocator : public PYXRuntime::PYXStdMemoryAllocator
{
public:
    void *allocateMemory(quint64 byteSize) override
    {
        void *const data = PYXStdMemoryAllocator::allocateMemory(byteSize);
        const std::lock_guard<std::mutex> guard(m_mutex);
        if (data != nullptr)
            m_out.insert(data);
        return data;
    }
    void freeMemory(void *data) override
    {
        {
            const std::lock_guard<std::mutex> guard(m_mutex);
            if (data != nullptr && m_out.erase(data) == 0)
                ++m_wrong;
        }
        PYXStdMemoryAllocator::freeMemory(data);
    }
    std::size_t out() const
    {
        const std::lock_guard<std::mutex> guard(m_mutex);
        return m_out.size() + m_wrong;
    }

private:
    mutable std::mutex m_mutex;
    std::set<void *> m_out;
    std::size_t m_wrong = 0;
};
