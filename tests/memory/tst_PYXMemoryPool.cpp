// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "ChildProcess.h"
#include "MemoryPoolBooks.h"
#include "PYXMemoryPool.h"
#include "WatchedAllocator.h"

#include <QtTest/QtTest>

#include <array>
#include <future>
#include <random>
#include <thread>

using namespace PYXRuntime;

namespace {

using BlockPointer = QSharedPointer<PYXMemoryBlock>;
using Blocks = QVector<BlockPointer>;
using Sizes = QVector<quint64>;

#ifdef __SANITIZE_THREAD__
constexpr int OperationsPerThread = 6'250;
#else
constexpr int OperationsPerThread = 62'500;
#endif
constexpr std::size_t ThreadCount = 16;

Blocks acquireAll(PYXMemoryPool &pool, const Sizes &sizes)
{
    Blocks blocks;
    for (const quint64 size : sizes)
        blocks += pool.acquire(size, 0);
    return blocks;
}

/** Places where threads leave blocks for each other, so that many are released by another thread. */
class Exchange
{
public:
    void swap(std::size_t place, BlockPointer &block)
    {
        const std::lock_guard<std::mutex> guard(m_mutex);
        m_places[place % m_places.size()].swap(block);
    }

private:
    std::mutex m_mutex;
    std::array<BlockPointer, ThreadCount / 2> m_places;
};

/** Acquires, marks, passes on. @return how many blocks it got; 0 if one of them was in two hands. */
quint64 work(PYXMemoryPool &pool, Exchange &exchange, unsigned seed)
{
    std::minstd_rand random(seed);
    quint64 got = 0;
    for (int i = 0; i < OperationsPerThread; ++i) {
        // One size often: such blocks take another way.
        BlockPointer block = pool.acquire(random() % 2 == 0 ? 1024 : sizeof(unsigned) + random() % 4096, 1);
        if (block == nullptr)
            continue;
        ++got;
        auto *const mark = static_cast<volatile unsigned *>(block->data());
        *mark = seed;
        if (random() % 4 == 0)
            exchange.swap(random(), block);
        else if (*mark != seed)
            return 0;
    }
    return got;
}

int reportProbe(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    PYXMemoryPool(nullptr).acquire(1, 0); // comes back: nothing to report
    auto pool = std::make_unique<PYXMemoryPool>(nullptr);
    Blocks blocks = acquireAll(*pool, {8, 5});
    pool->setMaximumPoolSize(1);
    blocks.removeFirst(); // destroyed, but left behind in the books
    pool.reset();
    return 0;
}

} // namespace

class tst_PYXMemoryPool : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void handsOutTheBestFit();
    void handsOutLastReturnedFirst();
    void boundedPoolServesWhoWaits();
    void surplusStaysInTheBooks();
    void boundingFreesSmallestFirst();
    void purgesByAgeOfHandOut();
    void purgesByTimer();
    void preallocatesWithinTheBound();
    void reportsWhatIsOut();
    void booksComeOutEven();
    void poolMayGoWhileBlocksComeBack();

private:
    void checkBooks(const QVector<unsigned> &bounds);

    const QSharedPointer<WatchedAllocator> m_allocator = QSharedPointer<WatchedAllocator>::create();
};

void tst_PYXMemoryPool::handsOutTheBestFit()
{
    const Sizes both{150, 100};
    constexpr quint64 Absurd = ~quint64(0);
    const std::tuple<Sizes, quint64, quint64> requests[] = {
        // free sizes, request, hit
        {both, 80, 100}, {both, 150, 150}, {both, 50, 0}, // twice the size is too much
        {both, 51, 100}, {both, 151, 0},   {{1, 0}, 0, 0}, {{Absurd - 1}, Absurd, 0}};
    for (const auto &[freeSizes, request, hit] : requests) {
        PYXMemoryPool pool(m_allocator);
        acquireAll(pool, freeSizes).clear();
        QCOMPARE(pool.acquire(request)->byteSize(), hit != 0 ? hit : request);
        QCOMPARE(pool.statistics().hits, quint64(hit != 0 ? 1 : 0));
        QCOMPARE(pool.statistics().misses, quint64(freeSizes.size() + (hit != 0 ? 0 : 1)));
    }
}

void tst_PYXMemoryPool::handsOutLastReturnedFirst()
{
    PYXMemoryPool pool(m_allocator);
    Blocks blocks = acquireAll(pool, {100, 100, 100});
    const QDateTime before = blocks[1]->allocatedAtUTC();
    void *const data[] = {blocks[0]->data(), blocks[1]->data(), blocks[2]->data()};
    QTRY_VERIFY(QDateTime::currentDateTimeUtc() > before);
    for (const int i : {2, 0, 1})
        blocks[i].clear();
    for (const int i : {1, 0, 2}) {
        blocks[i] = pool.acquire(90);
        QCOMPARE(blocks[i]->data(), data[i]);
        QVERIFY(blocks[i]->allocatedAtUTC() > before);
    }
}

void tst_PYXMemoryPool::boundedPoolServesWhoWaits()
{
    const std::tuple<quint64, unsigned long, bool> requests[] = {
        {90, ULONG_MAX, true}, {100, 60'000, true}, {101, ULONG_MAX, false}, {0, 60'000, false}};
    for (const auto &request : requests) {
        PYXMemoryPool pool(m_allocator);
        pool.setMaximumPoolSize(2);
        Blocks blocks = acquireAll(pool, {100, 100});
        QVERIFY(pool.acquire(100, 0) == nullptr && pool.acquire(100, 1) == nullptr);
        auto waiter = std::async(std::launch::async,
                                 [&] { return pool.acquire(std::get<0>(request), std::get<1>(request)); });
        QTRY_COMPARE(pool.statistics().waits, quint64(2));
        void *const data = blocks[0]->data();
        blocks.removeFirst();
        const BlockPointer served = waiter.get();
        QCOMPARE(served != nullptr && served->data() == data, std::get<2>(request));
    }
}

void tst_PYXMemoryPool::surplusStaysInTheBooks()
{
    PYXMemoryPool pool(m_allocator);
    Blocks blocks = acquireAll(pool, {10, 20, 30, 40});
    pool.setMaximumPoolSize(3);
    blocks.clear();
    // The size never gets down to the bound, so none has become free; and so it stays full.
    QCOMPARE(m_allocator->out(), 0U);
    QCOMPARE(pool.statistics().acquiredBlocks, 4U);
    QCOMPARE(pool.statistics().bytes, quint64(0));
    QVERIFY(pool.acquire(10, 0) == nullptr);
    pool.setMaximumPoolSize(5);
    const BlockPointer block = pool.acquire(10, 0);
    QCOMPARE(pool.statistics().acquiredBlocks, 5U);
}

void tst_PYXMemoryPool::boundingFreesSmallestFirst()
{
    const Sizes all{10, 20, 30, 40};
    // Previous bound, what is acquired, new bound, what is left of free blocks.
    const std::tuple<unsigned, Sizes, unsigned, Sizes> bounds[] = {
        {0, {}, 2, all},      {9, {}, 10, all},   {9, {1}, 9, all}, {9, {}, 2, {30, 40}},
        {9, {1, 1}, 3, {40}}, {9, {1, 1}, 1, {}}, {9, {}, 4, {}}, // to the size it has: never met
        {9, {}, 6, {}}};                                          // to more than it has: never met
    for (const auto &[previous, acquired, bound, left] : bounds) {
        PYXMemoryPool pool(m_allocator);
        pool.setMaximumPoolSize(previous);
        acquireAll(pool, {40, 10, 30, 20}).clear();
        const Blocks held = acquireAll(pool, acquired);
        pool.setMaximumPoolSize(bound);
        QCOMPARE(pool.maximumPoolSize(), bound);
        QCOMPARE(pool.statistics().freeBlocks, unsigned(left.size()));
        const Blocks kept = acquireAll(pool, left);
        QCOMPARE(pool.statistics().hits, quint64(left.size()));
    }
}

void tst_PYXMemoryPool::purgesByAgeOfHandOut()
{
    MemoryPoolBooks books;
    PooledBlock *const block = books.addAcquired(std::make_unique<PooledBlock>(m_allocator, 10, nullptr));
    const qint64 handedOut = block->allocatedAtUTC().toMSecsSinceEpoch();
    QVERIFY(books.takeOlderThan(handedOut + 90'000, 30).empty());
    books.putBack(block);
    for (const qint64 ms : {30'000, 30'999})
        QVERIFY(books.takeOlderThan(handedOut + ms, 30).empty());
    QCOMPARE(books.takeOlderThan(handedOut + 31'000, 30).size(), 1U);
    QCOMPARE(books.poolSize(), 0U);
}

void tst_PYXMemoryPool::purgesByTimer()
{
    PYXMemoryPool pool(m_allocator);
    QCOMPARE(pool.property("autoPurgeInterval").toInt() + pool.property("autoPurgeAge").toInt(), 60'030);
    const BlockPointer kept = pool.acquire(10);
    pool.preallocate(10, 3);
    pool.purgeNow();
    pool.purgeNow(0);
    QCOMPARE(pool.statistics().freeBlocks, 3U);
    QVERIFY(pool.isAutoPurgeEnabled() && pool.setProperty("autoPurgeEnabled", false));
    QVERIFY(pool.findChild<QTimer *>() == nullptr);
    pool.setAutoPurgeAge(-1);
    pool.setAutoPurgeEnabled(true);
    pool.setAutoPurgeEnabled(true);
    QCOMPARE(pool.findChildren<QTimer *>().size(), 1);
    pool.setAutoPurgeInterval(1);
    QTRY_COMPARE(pool.statistics().freeBlocks, 0U);
    pool.preallocate(10, 1);
    QTRY_COMPARE(pool.statistics().freeBlocks, 0U);
    QCOMPARE(pool.statistics().acquiredBlocks, 1U);
}

void tst_PYXMemoryPool::preallocatesWithinTheBound()
{
    PYXMemoryPool pool(m_allocator);
    QCOMPARE(pool.preallocate(~quint64(0), 2), 0U);
    pool.setMaximumPoolSize(3);
    QCOMPARE(pool.preallocate(100, 5), 3U);
    acquireAll(pool, {100, 60}).clear();
    pool.purgeNow(-1);
    QCOMPARE(pool.statistics().hits, quint64(2));
    QCOMPARE(pool.statistics().peakBytes, quint64(300));
    QCOMPARE(pool.statistics().bytes, quint64(0));
}

void tst_PYXMemoryPool::reportsWhatIsOut()
{
    const ChildResult result = runOwnProbe("report");
    QCOMPARE(result.exitCode, 0);
    const QRegularExpression expected(
        "^PYXMemoryPool: there are still 2 block\\(s\\) acquired\n"
        "PYXMemoryPool: the blocks will be deleted when the last reference goes out of scope\n"
        "\t 8 bytes at 0x(?!0{16})[0-9a-f]{16}\n\t 5 bytes at 0x[0-9a-f]{16}\n$");
    QVERIFY2(expected.match(result.errors).hasMatch(), qPrintable(result.errors));
}

void tst_PYXMemoryPool::booksComeOutEven()
{
    // Unbounded, bounded, bounded meanwhile.
    for (const QVector<unsigned> &bounds : {QVector<unsigned>{0}, {24}, {0, 40, 20}})
        checkBooks(bounds);
}

void tst_PYXMemoryPool::checkBooks(const QVector<unsigned> &bounds)
{
    PYXMemoryPool pool(m_allocator);
    pool.setMaximumPoolSize(bounds[0]);
    std::vector<std::future<quint64>> workers;
    quint64 got = 0;
    {
        Exchange exchange;
        for (unsigned seed = 1; seed <= ThreadCount; ++seed)
            workers.push_back(std::async(std::launch::async, work, std::ref(pool), std::ref(exchange), seed));
        int round = 0;
        for (auto &worker : workers) {
            while (worker.wait_for(std::chrono::milliseconds(1)) != std::future_status::ready) {
                pool.purgeNow(round % 8 - 1);
                pool.setMaximumPoolSize(bounds[++round % bounds.size()]);
            }
            const quint64 blocks = worker.get();
            QVERIFY(blocks != 0);
            got += blocks;
        }
    }
    const auto statistics = pool.statistics();
    QCOMPARE(statistics.hits + statistics.misses, got);
    QCOMPARE(got + statistics.refusals, quint64(ThreadCount * OperationsPerThread));
    QCOMPARE(m_allocator->out(), std::size_t(statistics.freeBlocks));
    if (bounds.size() == 1)
        QCOMPARE(statistics.acquiredBlocks, 0U);
    pool.purgeNow(-1);
    QCOMPARE(pool.statistics().bytes, quint64(0));
    QCOMPARE(m_allocator->out(), 0U);
}

void tst_PYXMemoryPool::poolMayGoWhileBlocksComeBack()
{
    for (int round = 0; round < 40; ++round) {
        auto pool = std::make_unique<PYXMemoryPool>(m_allocator);
        pool->setMaximumPoolSize(ThreadCount);
        Blocks blocks = acquireAll(*pool, Sizes(ThreadCount, 100));
        std::future<BlockPointer> waiter;
        if (round % 4 < 2) {
            waiter = std::async(std::launch::async, [raw = pool.get()] { return raw->acquire(1000); });
            QTRY_COMPARE(pool->statistics().waits, quint64(1));
        }
        std::promise<void> start;
        const auto started = start.get_future().share();
        std::vector<std::thread> holders;
        for (auto &block : blocks)
            holders.emplace_back([started, own = std::move(block)] { started.wait(); });
        if (round % 2 == 0)
            start.set_value();
        pool.reset();
        QVERIFY(!waiter.valid() || waiter.get() == nullptr);
        if (round % 2 != 0)
            start.set_value();
        for (auto &holder : holders)
            holder.join();
        QCOMPARE(m_allocator->out(), 0U);
    }
}

PYX_TEST_MAIN_WITH_PROBE(tst_PYXMemoryPool, reportProbe)
#include "tst_PYXMemoryPool.moc"
