// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXMemoryPool.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QLibrary>

#include <benchmark/benchmark.h>

#include <condition_variable>
#include <cstddef>
#include <cstdlib>
#include <deque>
#include <memory>
#include <memory_resource>
#include <mutex>
#include <thread>
#include <vector>

#ifdef PYX_HAS_GSTREAMER
#include <gst/gst.h>
#endif

using namespace PYXRuntime;

namespace {

constexpr std::size_t Kilobyte = 1024;
constexpr std::size_t SampleBuffer = 64 * Kilobyte;
constexpr std::size_t FrameSizes[] = {300 * Kilobyte, 512 * Kilobyte, 700 * Kilobyte, 1024 * Kilobyte};
constexpr std::size_t LargestFrame = 1024 * Kilobyte;
constexpr std::size_t QueueLength = 8;
constexpr int FramesAtOnce = 400;
constexpr std::size_t Page = 4096;

// Each contestant is a class with an operation get(bytes), whose result gives the memory back when its last
// copy goes, and a function that tells where the result's memory is.

class PyxPool
{
public:
    using Pointer = QSharedPointer<PYXMemoryBlock>;
    Pointer get(std::size_t bytes) { return m_pool.acquire(bytes); }
    static void *data(const Pointer &pointer) { return pointer->data(); }

private:
    PYXMemoryPool m_pool{nullptr};
};

/** std::pmr with blocks of these sizes pooled: by itself it hands everything above 4 KiB to the heap. */
class PmrResource
{
protected:
    std::pmr::synchronized_pool_resource m_resource{std::pmr::pool_options{0, LargestFrame}};
};

/** The way one would write it: a deleter that knows the size, and its control block from the heap. */
class PmrPool : PmrResource
{
public:
    using Pointer = std::shared_ptr<void>;
    Pointer get(std::size_t bytes)
    {
        return {m_resource.allocate(bytes),
                [this, bytes](void *area) { m_resource.deallocate(area, bytes); }};
    }
    static void *data(const Pointer &pointer) { return pointer.get(); }
};

/** One allocation for the area and the count of its holders; for one size only. */
class PmrAllocateShared : PmrResource
{
public:
    struct struArea
    {
        struArea() {} // NOLINT(modernize-use-equals-default): that would zero the bytes
        std::byte bytes[SampleBuffer];
    };
    using Pointer = std::shared_ptr<struArea>;
    Pointer get(std::size_t)
    {
        return std::allocate_shared<struArea>(std::pmr::polymorphic_allocator<struArea>(&m_resource));
    }
    static void *data(const Pointer &pointer) { return pointer->bytes; }
};

class Heap
{
public:
    using Pointer = std::shared_ptr<void>;
    Pointer get(std::size_t bytes) { return {std::malloc(bytes), std::free}; }
    static void *data(const Pointer &pointer) { return pointer.get(); }
};

/** Areas that are there already, handed out in turn: more of a size than a queue and two threads hold. */
class ReadyAreas
{
public:
    using Pointer = std::shared_ptr<void>;
    Pointer get(std::size_t bytes)
    {
        if (bytes == SampleBuffer)
            return {m_areas.front().data(), [](void *) {}};
        return {m_areas[m_next++ % m_areas.size()].data(), [](void *) {}};
    }
    static void *data(const Pointer &pointer) { return pointer.get(); }

private:
    std::vector<std::vector<char>> m_areas{QueueLength + 4, std::vector<char>(LargestFrame)};
    std::size_t m_next = 0;
};

#ifdef PYX_MIMALLOC_LIBRARY
class Mimalloc
{
public:
    using Pointer = std::shared_ptr<void>;
    Pointer get(std::size_t bytes) { return {m_allocate(bytes), m_free}; }
    static void *data(const Pointer &pointer) { return pointer.get(); }

private:
    QLibrary m_library{PYX_MIMALLOC_LIBRARY};
    void *(*m_allocate)(std::size_t) =
        reinterpret_cast<void *(*)(std::size_t)>(m_library.resolve("mi_malloc"));
    void (*m_free)(void *) = reinterpret_cast<void (*)(void *)>(m_library.resolve("mi_free"));
};
#endif

#ifdef PYX_HAS_GSTREAMER
/** A pool of buffers of one size each, as the library has them; the buffer counts its holders itself. */
class GstPools
{
public:
    using Pointer = std::unique_ptr<GstBuffer, decltype(&gst_buffer_unref)>;
    GstPools()
    {
        gst_init(nullptr, nullptr);
        for (const std::size_t size :
             {SampleBuffer, FrameSizes[0], FrameSizes[1], FrameSizes[2], FrameSizes[3]})
            m_pools.emplace_back(size, activePool(size));
    }
    ~GstPools()
    {
        for (const auto &[size, pool] : m_pools) {
            gst_buffer_pool_set_active(pool, FALSE);
            gst_object_unref(pool);
        }
    }
    GstPools(const GstPools &) = delete;
    GstPools &operator=(const GstPools &) = delete;

    Pointer get(std::size_t bytes)
    {
        GstBuffer *buffer = nullptr;
        for (const auto &[size, pool] : m_pools) {
            if (size == bytes)
                gst_buffer_pool_acquire_buffer(pool, &buffer, nullptr);
        }
        return {buffer, gst_buffer_unref};
    }
    static void *data(const Pointer &pointer)
    {
        GstMapInfo map;
        gst_buffer_map(pointer.get(), &map, GST_MAP_READWRITE);
        void *const area = map.data;
        gst_buffer_unmap(pointer.get(), &map);
        return area;
    }

private:
    static GstBufferPool *activePool(std::size_t size)
    {
        GstBufferPool *const pool = gst_buffer_pool_new();
        GstStructure *const config = gst_buffer_pool_get_config(pool);
        gst_buffer_pool_config_set_params(config, nullptr, guint(size), 0, 0);
        gst_buffer_pool_set_config(pool, config);
        gst_buffer_pool_set_active(pool, TRUE);
        return pool;
    }

    std::vector<std::pair<std::size_t, GstBufferPool *>> m_pools;
};
#endif

/** Another thread that only is there: the counts of std::shared_ptr are cheaper where there is none. */
class Bystander
{
public:
    ~Bystander()
    {
        {
            const std::lock_guard<std::mutex> guard(m_mutex);
            m_bGo = true;
        }
        m_condition.notify_one();
        m_thread.join();
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_condition;
    bool m_bGo = false;
    std::thread m_thread{[this] {
        std::unique_lock<std::mutex> lock(m_mutex);
        m_condition.wait(lock, [this] { return m_bGo; });
    }};
};

template <typename Contestant>
void acquireAndRelease(benchmark::State &state)
{
    const Bystander bystander;
    Contestant contestant;
    for (auto _ : state)
        benchmark::DoNotOptimize(contestant.get(SampleBuffer));
}

template <typename Pointer>
class Queue
{
public:
    void push(Pointer pointer)
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        m_hasRoom.wait(lock, [this] { return m_pointers.size() < QueueLength; });
        m_pointers.push_back(std::move(pointer));
        lock.unlock();
        m_hasSome.notify_one();
    }
    Pointer pop()
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        m_hasSome.wait(lock, [this] { return !m_pointers.empty(); });
        Pointer pointer = std::move(m_pointers.front());
        m_pointers.pop_front();
        lock.unlock();
        m_hasRoom.notify_one();
        return pointer;
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_hasRoom;
    std::condition_variable m_hasSome;
    std::deque<Pointer> m_pointers;
};

/** One thread writes to every page of a frame, the other one reads there and lets go of the frame. */
template <typename Contestant>
void framePipeline(benchmark::State &state)
{
    Contestant contestant;
    Queue<typename Contestant::Pointer> queue;
    const int frames = int(state.max_iterations) * FramesAtOnce;
    std::thread consumer([&] {
        int sum = 0;
        for (int i = 0; i < frames; ++i) {
            const auto frame = queue.pop();
            const auto *const bytes = static_cast<const volatile char *>(contestant.data(frame));
            for (std::size_t at = 0; at < FrameSizes[i % 4]; at += Page)
                sum += bytes[at];
        }
        benchmark::DoNotOptimize(sum);
    });
    int made = 0;
    for (auto _ : state) {
        for (int i = 0; i < FramesAtOnce; ++i, ++made) {
            auto frame = contestant.get(FrameSizes[made % 4]);
            auto *const bytes = static_cast<volatile char *>(contestant.data(frame));
            for (std::size_t at = 0; at < FrameSizes[made % 4]; at += Page)
                bytes[at] = char(made);
            queue.push(std::move(frame));
        }
    }
    consumer.join();
    state.SetItemsProcessed(frames);
}

#ifdef PYX_BENCH_HEAP_ALONE
// In a process of its own: what other contestants leave in the heap changes when it asks the system for
// memory.
BENCHMARK_TEMPLATE(framePipeline, Heap)->Name("memory/frame pipeline/malloc")->UseRealTime();
#else
BENCHMARK_TEMPLATE(acquireAndRelease, PyxPool)->Name("memory/acquire and release 64 KiB/PYXMemoryPool");
BENCHMARK_TEMPLATE(acquireAndRelease, PmrPool)->Name("memory/acquire and release 64 KiB/pmr");
BENCHMARK_TEMPLATE(acquireAndRelease, PmrAllocateShared)
    ->Name("memory/acquire and release 64 KiB/pmr allocate_shared");
BENCHMARK_TEMPLATE(acquireAndRelease, Heap)->Name("memory/acquire and release 64 KiB/malloc");
BENCHMARK_TEMPLATE(acquireAndRelease, ReadyAreas)->Name("memory/acquire and release 64 KiB/floor");
BENCHMARK_TEMPLATE(framePipeline, ReadyAreas)->Name("memory/frame pipeline/floor")->UseRealTime();
BENCHMARK_TEMPLATE(framePipeline, PyxPool)->Name("memory/frame pipeline/PYXMemoryPool")->UseRealTime();
BENCHMARK_TEMPLATE(framePipeline, PmrPool)->Name("memory/frame pipeline/pmr")->UseRealTime();
#ifdef PYX_MIMALLOC_LIBRARY
BENCHMARK_TEMPLATE(acquireAndRelease, Mimalloc)->Name("memory/acquire and release 64 KiB/mimalloc");
BENCHMARK_TEMPLATE(framePipeline, Mimalloc)->Name("memory/frame pipeline/mimalloc")->UseRealTime();
#endif
#ifdef PYX_HAS_GSTREAMER
BENCHMARK_TEMPLATE(acquireAndRelease, GstPools)->Name("memory/acquire and release 64 KiB/GStreamer");
BENCHMARK_TEMPLATE(framePipeline, GstPools)->Name("memory/frame pipeline/GStreamer")->UseRealTime();
#endif
#endif

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv); // the pool has a timer
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
