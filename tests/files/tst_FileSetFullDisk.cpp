// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later

// What a full disk does to counting file sets, on a small file system of the test's own.

#include "DataRows.h"
#include "FileContents.h"
#include "FileSets.h"
#include "PYXFileListImpl.h"
#include "PYXSizeCountingFileSet.h"
#include "RecordFile.h"
#include "SmallDisk.h"

#include <QtTest/QtTest>

#include <random>

using namespace PYXRuntime;
using NumberedSet = Numbered<PYXSizeCountingFileSet>;

class tst_FileSetFullDisk : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void cleanup() { m_disk.clear(); }
    void losesAndDoublesNothing_data();
    void losesAndDoublesNothing();
    void tellsAtTheFlush();
    void takesTheRestToTheNextFile();
    void translatesLineEndsOnce();
    void noticesRemovedFiles();

private:
    const SmallDisk m_disk;
};

void tst_FileSetFullDisk::initTestCase()
{
    if (!m_disk.isMounted())
        QSKIP("the small file system cannot be mounted; root may, on most systems");
}

void tst_FileSetFullDisk::losesAndDoublesNothing_data()
{
    const Rows<int, quint64, bool> rows = {{"lines", 200, 1'000'000U, false},
                                           {"flushed lines", 200, 1'000'000U, true},
                                           {"blocks", 90'000, 1'000'000U, false},
                                           {"small files", 5'000, 10'000U, false}};
    addRows({"longestWrite", "maximum", "bFlush"}, rows);
}

void tst_FileSetFullDisk::losesAndDoublesNothing()
{
    QFETCH(int, longestWrite);
    QFETCH(quint64, maximum);
    QFETCH(bool, bFlush);
    auto *const list = PYXFileListImpl::getInstance();
    NumberedSet set(m_disk.path(), maximum);
    set.setFlushAfterWriting(bFlush);
    set.setRegisterWrittenFiles(true);
    QVERIFY(set.open(QIODevice::WriteOnly));
    m_disk.fill(300'000);
    const QSignalSpy spy(&set, &PYXCountingFileSet::si_writeError);
    QByteArray accepted;
    std::mt19937 random(7);
    int refusals = 0;
    // On a full disk for twenty writes, then with room again.
    for (int after = 0; after < 20;) {
        QByteArray data(int(random() % unsigned(longestWrite)) + 1, char('a' + random() % 26));
        const int errors = spy.count();
        const qint64 written = set.write(data);
        QVERIFY(written == -1 || (written > 0 && written <= data.size()));
        accepted += data.left(int(qMax<qint64>(written, 0)));
        const bool bRefused = written < data.size();
        QCOMPARE(spy.count() - errors, bRefused ? 1 : 0);
        refusals += bRefused ? 1 : 0;
        if (refusals == 20 && QFile::exists(m_disk.path("filler")))
            m_disk.makeRoom();
        after += refusals >= 20 && !bRefused ? 1 : 0;
    }
    set.close();
    QByteArray found;
    for (const QString &path : set.previousFilesPaths())
        found += get(path);
    QVERIFY(found == accepted);
    QCOMPARE(list->fileList().size(), set.previousFilesPaths().size());
    PYXFileListImpl::destroyInstance();
}

void tst_FileSetFullDisk::tellsAtTheFlush()
{
    NumberedSet set(m_disk.path(), 1'000'000);
    QVERIFY(set.open(QIODevice::WriteOnly));
    const QSignalSpy spy(&set, &PYXCountingFileSet::si_writeError);
    m_disk.fill(0);
    QCOMPARE(set.write("a line\n"), qint64(7));
    QVERIFY(!set.flush());
    QCOMPARE(spy.count(), 1);
    // What is accepted does not wait longer than a second for the disk, even if nobody flushes.
    QTRY_COMPARE(set.write("b"), qint64(-1));
    const QString path = set.currentFilePath();
    set.close();
    QVERIFY2(spy.last()[0].toString().contains(path), qPrintable(spy.last()[0].toString()));
}

void tst_FileSetFullDisk::takesTheRestToTheNextFile()
{
    const QTemporaryDir other;
    NumberedSet set(m_disk.path(), 1'000'000);
    QVERIFY(set.open(QIODevice::WriteOnly));
    m_disk.fill(4096);
    QCOMPARE(set.write(QByteArray(6000, 'a')), qint64(6000));
    QVERIFY(!set.flush());
    set.setBaseDirectory(other.path());
    QCOMPARE(set.write("b"), qint64(1));
    set.close();
    const QByteArray first = get(m_disk.path("1"));
    QCOMPARE(first.size(), 4096);
    QCOMPARE(first + get(other.filePath("2")), QByteArray(6000, 'a') + 'b');
}

void tst_FileSetFullDisk::translatesLineEndsOnce()
{
    RecordFile file(m_disk.path("text"), true);
    QVERIFY(file.create(QIODevice::WriteOnly | QIODevice::Text));
    const QByteArray text = QByteArray("\n").repeated(3000) + "a\r\nb\n";
    // The disk is full in the middle of a line end: after an odd number of bytes.
    QCOMPARE(file.append("x", 1), qint64(1));
    QVERIFY(file.drain());
    m_disk.fill(0);
    QCOMPARE(file.append(text.constData(), text.size()), qint64(text.size()));
    QVERIFY(!file.drain());
    m_disk.makeRoom();
    QVERIFY(file.drain());
    QByteArray expected = 'x' + text;
    expected.replace("\n", "\r\n");
    QVERIFY(get(m_disk.path("text")) == expected);

    // Who is told that a line end was not taken may write something else instead.
    QVERIFY(file.append("y", 1) == 1 && file.drain());
    m_disk.fill(0);
    QVERIFY(file.append(text.constData(), text.size()) == text.size() && !file.drain());
    file.takeBack(text.size());
    m_disk.makeRoom();
    QVERIFY(file.append("else", 4) == 4 && file.drain());
    QVERIFY(get(m_disk.path("text")).endsWith("\relse"));
}

void tst_FileSetFullDisk::noticesRemovedFiles()
{
    NumberedSet set(m_disk.path(), 1'000'000);
    set.setFlushAfterWriting(true);
    QVERIFY(set.open(QIODevice::WriteOnly));
    const QSignalSpy spy(&set, &PYXCountingFileSet::si_writeError);
    QCOMPARE(set.write("a"), qint64(1));
    QVERIFY(QFile::remove(set.currentFilePath()));
    QTRY_VERIFY(spy.count() == 1 || set.write("b") == -1);
    QCOMPARE(set.write("c"), qint64(1));
    QCOMPARE(get(m_disk.path("2")), QByteArray("c"));
}

QTEST_GUILESS_MAIN(tst_FileSetFullDisk)
#include "tst_FileSetFullDisk.moc"
