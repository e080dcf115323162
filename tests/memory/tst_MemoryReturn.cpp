// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXMemoryPool.h"

#include <QtTest/QtTest>

#include <cstdio>
#include <cstring>
#include <future>
#include <unistd.h>

using namespace PYXRuntime;

namespace {

constexpr qint64 Megabyte = 1'000'000;

qint64 residentBytes()
{
    qint64 pages = 0;
    if (std::FILE *const file = std::fopen("/proc/self/statm", "r")) {
        if (std::fscanf(file, "%*d %lld", &pages) != 1)
            pages = 0;
        std::fclose(file);
    }
    return pages * qint64(sysconf(_SC_PAGESIZE));
}

/** Blocks of the sizes of frames, every page of them touched. */
QVector<QSharedPointer<PYXMemoryBlock>> filled(PYXMemoryPool &pool, qint64 bytes)
{
    constexpr quint64 sizes[] = {300 * 1024ULL, 512 * 1024ULL, 700 * 1024ULL, 1024 * 1024ULL};
    QVector<QSharedPointer<PYXMemoryBlock>> blocks;
    for (std::size_t i = 0; bytes > 0; ++i) {
        blocks += pool.acquire(sizes[i % 4]);
        std::memset(blocks.last()->data(), 1, std::size_t(sizes[i % 4]));
        bytes -= qint64(sizes[i % 4]);
    }
    return blocks;
}

} // namespace

/** In a process of its own, as it looks at the memory of the process. */
class tst_MemoryReturn : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void goesBackAfterAPeak();
};

void tst_MemoryReturn::goesBackAfterAPeak()
{
    PYXMemoryPool pool(nullptr);
    filled(pool, 10 * Megabyte).clear(); // what the first use alone costs
    pool.purgeNow(-1);
    const qint64 before = residentBytes();
    QVERIFY(before > 0);
    {
        // From two threads, whose heaps are not the same.
        auto others = std::async(std::launch::async, filled, std::ref(pool), 450 * Megabyte);
        const auto own = filled(pool, 450 * Megabyte);
        others.wait();
        QVERIFY(residentBytes() - before > 900 * Megabyte);
    }
    pool.setAutoPurgeAge(-1);
    pool.setAutoPurgeInterval(1);
    QTRY_COMPARE(pool.statistics().freeBlocks, 0U);
    QVERIFY2(residentBytes() - before < 10 * Megabyte, qPrintable(QString::number(residentBytes() - before)));
}

QTEST_GUILESS_MAIN(tst_MemoryReturn)
#include "tst_MemoryReturn.moc"
