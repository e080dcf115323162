// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
//
// One thread fills frames, another one shows them, and the memory goes round.
#include <PYXAlignedMemoryAllocator.h>
#include <PYXMemoryPool.h>
#include <PYXRuntime.h>

#include <QApplication>
#include <QTextStream>

#include <algorithm>
#include <condition_variable>
#include <mutex>
#include <queue>
#include <thread>

using namespace PYXRuntime;
using Frame = QSharedPointer<PYXMemoryBlock>;

namespace {

constexpr quint64 FrameBytes = 65'536;
constexpr int Frames = 1000;

class FrameQueue
{
public:
    void push(const Frame &frame)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_frames.push(frame);
        m_notEmpty.notify_one();
    }
    Frame pop()
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        m_notEmpty.wait(lock, [this] { return !m_frames.empty(); });
        Frame frame = m_frames.front();
        m_frames.pop();
        return frame;
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_notEmpty;
    std::queue<Frame> m_frames;
};

void receive(PYXMemoryPool &pool, FrameQueue &queue)
{
    for (int i = 0; i < Frames; ++i) {
        const Frame frame = pool.acquire(FrameBytes); // with a bound it waits until a block comes back
        if (frame == nullptr || frame->data() == nullptr)
            return; // there is no memory
        auto *samples = static_cast<float *>(frame->data());
        std::fill_n(samples, FrameBytes / sizeof(float), float(i)); // what was in it is still in it
        frame->setByteSize_Payload(FrameBytes);
        queue.push(frame);
    }
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    initialize_PYXRuntime();

    PYXMemoryPool pool(QSharedPointer<PYXAlignedMemoryAllocator>::create()); // null: the plain heap
    pool.setMaximumPoolSize(8);                                              // 0, as at first: unbounded
    pool.preallocate(FrameBytes, 8);

    FrameQueue queue;
    std::thread receiver([&] { receive(pool, queue); });
    int shown = 0;
    for (int i = 0; i < Frames; ++i) {
        const Frame frame = queue.pop(); // goes back into the pool at the end of this turn
        shown += static_cast<const float *>(frame->data())[0] == float(i) ? 1 : 0;
    }
    receiver.join();

    const auto statistics = pool.statistics();
    QTextStream(stdout) << shown << " frames shown, in " << statistics.peakBytes / FrameBytes
                        << " blocks at most, " << statistics.refusals << " refused\n";
    uninitialize_PYXRuntime();
    return shown == Frames ? 0 : 1;
}
