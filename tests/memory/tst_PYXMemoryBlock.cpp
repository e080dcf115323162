// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXAlignedMemoryAllocator.h"
#include "PYXMemoryBlock.h"
#include "WatchedAllocator.h"

#include <QtTest/QtTest>

#include <cstring>
#include <limits>

using namespace PYXRuntime;

class tst_PYXMemoryBlock : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void givesBackWhatItOwns();
    void isUsableWithoutMemory();
    void keepsPayloadAndStampWhenCopied();
    void alignedAreas_data();
    void alignedAreas();
};

void tst_PYXMemoryBlock::givesBackWhatItOwns()
{
    const auto allocator = QSharedPointer<WatchedAllocator>::create();
    const QWeakPointer<WatchedAllocator> watched = allocator;
    char foreign[] = "foreign";
    {
        const auto clone = PYXMemoryBlock::cloneFrom(allocator, foreign, sizeof foreign);
        QCOMPARE(static_cast<const char *>(clone->data()), "foreign");
        const auto placed = PYXMemoryBlock::placeAt(allocator, allocator->allocateMemory(5), 5);
        const auto wrapped = PYXMemoryBlock::wrappedAt(foreign, 3);
        QCOMPARE(wrapped->data(), static_cast<void *>(foreign));
        QCOMPARE(placed->byteSize() + wrapped->byteSize(), 8U);
        QCOMPARE(allocator->out(), 2U);
    }
    QCOMPARE(allocator->out(), 0U);

    // A block keeps its allocator, whoever else lets go of it.
    auto owner = QSharedPointer<WatchedAllocator>::create();
    const QWeakPointer<WatchedAllocator> last = owner;
    auto block = PYXMemoryBlock::allocate(owner, 1);
    owner.clear();
    QVERIFY(!last.isNull());
    block.clear();
    QVERIFY(last.isNull());
}

void tst_PYXMemoryBlock::isUsableWithoutMemory()
{
    const auto none = std::numeric_limits<quint64>::max();
    const auto allocator = QSharedPointer<PYXStdMemoryAllocator>::create();
    for (const auto &block :
         {PYXMemoryBlock::cloneFrom({}, "x", 1), PYXMemoryBlock::allocate(allocator, none),
          PYXMemoryBlock::cloneFrom(allocator, "x", none)})
        QVERIFY(block->data() == nullptr && block->byteSize() != 0);
}

void tst_PYXMemoryBlock::keepsPayloadAndStampWhenCopied()
{
    char memory[8];
    const QDateTime before = QDateTime::currentDateTimeUtc();
    const auto block = PYXMemoryBlock::wrappedAt(memory, 8);
    QVERIFY(before <= block->allocatedAtUTC() && block->allocatedAtUTC() <= QDateTime::currentDateTimeUtc());
    QCOMPARE(block->allocatedAtUTC().timeSpec(), Qt::UTC);
    QCOMPARE(block->byteSize_Payload(), 8U);
    block->setByteSize_Payload(20);
    QTRY_VERIFY(QDateTime::currentDateTimeUtc() > block->allocatedAtUTC());
    PYXMemoryBlock copy(*block);
    QCOMPARE(copy.allocatedAtUTC(), block->allocatedAtUTC());
    QCOMPARE(copy.byteSize_Payload(), 20U);
    copy.setByteSize_Payload(0);
    block->unsetByteSize_Payload();
    QCOMPARE(copy.byteSize_Payload() + block->byteSize_Payload(), 16U);
}

void tst_PYXMemoryBlock::alignedAreas_data()
{
    QTest::addColumn<quint64>("asked");
    QTest::addColumn<quint64>("given");
    QTest::newRow("none") << quint64(0) << quint64(16);
    QTest::newRow("cache line") << quint64(64) << quint64(64);
    QTest::newRow("between powers") << quint64(65) << quint64(128);
    QTest::newRow("page") << quint64(4096) << quint64(4096);
    QTest::newRow("absurd") << std::numeric_limits<quint64>::max() << (quint64(1) << 30);
}

void tst_PYXMemoryBlock::alignedAreas()
{
    QFETCH(quint64, asked);
    QFETCH(quint64, given);
    const auto allocator = QSharedPointer<PYXAlignedMemoryAllocator>::create(asked);
    QCOMPARE(allocator->alignment(), given);
    for (const quint64 size : {quint64(1), quint64(300 * 1024)}) {
        const auto block = PYXMemoryBlock::allocate(allocator, size);
        QVERIFY(block->data() != nullptr);
        QCOMPARE(quintptr(block->data()) % given, 0U);
        std::memset(block->data(), 1, std::size_t(size));
    }
    for (const quint64 tooMuch : {~quint64(0), ~quint64(0) / 2})
        QVERIFY(PYXMemoryBlock::allocate(allocator, tooMuch)->data() == nullptr);
}

QTEST_APPLESS_MAIN(tst_PYXMemoryBlock)
#include "tst_PYXMemoryBlock.moc"
