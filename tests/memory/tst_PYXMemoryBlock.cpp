// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXAlignedMemoryAllocator.h"
#include "PYXMemoryBlock.h"
#include "WatchedAllocator.h"

#include <QtTest/QtTest>

#include <cstring>

using namespace PYXRuntime;

class tst_PYXMemoryBlock : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void givesBackWhatItOwns();
    void isUsableWithoutMemory();
    void keepsPayloadAndStampWhenCopied();
    void areasAreAligned();
};

void tst_PYXMemoryBlock::givesBackWhatItOwns()
{
    bool bGone = false;
    QSharedPointer<WatchedAllocator> allocator(new WatchedAllocator, [&bGone](WatchedAllocator *gone) {
        delete gone;
        bGone = true;
    });
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
    auto block = PYXMemoryBlock::allocate(allocator, 1);
    allocator.clear();
    QVERIFY(!bGone);
    block.clear();
    QVERIFY(bGone);
}

void tst_PYXMemoryBlock::isUsableWithoutMemory()
{
    const auto allocator = QSharedPointer<PYXStdMemoryAllocator>::create();
    for (const auto &block : {PYXMemoryBlock::cloneFrom({}, "x", 1), PYXMemoryBlock::allocate({}, 1),
                              PYXMemoryBlock::cloneFrom(allocator, "x", ~quint64(0))})
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

void tst_PYXMemoryBlock::areasAreAligned()
{
    const std::pair<quint64, quint64> alignments[] = {
        {0, 16}, {64, 64}, {65, 128}, {4096, 4096}, {~quint64(0), quint64(1) << 30}};
    for (const auto &[asked, given] : alignments) {
        const auto allocator = QSharedPointer<PYXAlignedMemoryAllocator>::create(asked);
        QCOMPARE(allocator->alignment(), given);
        const auto block = PYXMemoryBlock::allocate(allocator, 1000);
        QVERIFY(block->data() != nullptr);
        QCOMPARE(quintptr(block->data()) % given, 0U);
        std::memset(block->data(), 1, 1000);
        QVERIFY(PYXMemoryBlock::allocate(allocator, ~quint64(0))->data() == nullptr);
    }
}

QTEST_APPLESS_MAIN(tst_PYXMemoryBlock)
#include "tst_PYXMemoryBlock.moc"
