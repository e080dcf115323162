// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "DataRows.h"
#include "FileContents.h"
#include "PYXRetainingFileSet.h"

#include <QtTest/QtTest>

using namespace PYXRuntime;

namespace {

class RetainingSet : public PYXRetainingFileSet
{
public:
    explicit RetainingSet(const QString &directory)
    {
        setBaseDirectory(directory);
        setBaseFileName("a.b.txt");
    }
};

} // namespace

class tst_PYXRetainingFileSet : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void replacesNoFile();
    void keepsTheNewest_data();
    void keepsTheNewest();
};

void tst_PYXRetainingFileSet::replacesNoFile()
{
    const QTemporaryDir directory;
    {
        // One file per write, in few seconds; beside them another set of the same names.
        RetainingSet set(directory.path());
        RetainingSet other(directory.path());
        QVERIFY(set.open(QIODevice::WriteOnly) && other.open(QIODevice::WriteOnly));
        for (int i = 0; i < 100; ++i) {
            QCOMPARE(set.write(QByteArray::number(i)), qint64(QByteArray::number(i).size()));
            QCOMPARE(other.write("x"), qint64(1));
        }
    }
    const QStringList names = QDir(directory.path()).entryList(QDir::Files, QDir::Name);
    QCOMPARE(names.size(), 200);
    const QRegularExpression pattern("^a_\\d{4}-\\d\\d-\\d\\d_\\d\\d-\\d\\d-\\d\\d_UTC(_\\d{3})?\\.b\\.txt$");
    QSet<QByteArray> contents;
    for (const QString &name : names) {
        QVERIFY2(pattern.match(name).hasMatch(), qPrintable(name));
        contents += get(directory.filePath(name));
    }
    QCOMPARE(contents.size(), 101);
}

void tst_PYXRetainingFileSet::keepsTheNewest_data()
{
    const Rows<int, quint64, int> rows = {
        {"all", 0, 0U, 4},
        {"three files", 3, 0U, 2},
        {"the current file only", 1, 0U, 0},
        {"exactly the bytes", 0, 30U, 3},
        {"a byte less", 0, 29U, 2},
        {"bytes before files", 4, 15U, 1},
    };
    addRows({"files", "bytes", "kept"}, rows);
}

void tst_PYXRetainingFileSet::keepsTheNewest()
{
    QFETCH(int, files);
    QFETCH(quint64, bytes);
    QFETCH(int, kept);
    const QTemporaryDir directory;
    // Of an earlier run, the oldest first; not by the time of the last change.
    const QStringList old{"a_2017-12-31_23-59-59_UTC.b.txt", "a_2018-01-01_00-00-00_UTC.b.txt",
                          "a_2018-01-01_00-00-00_UTC_002.b.txt", "a_2018-01-01_00-00-00_UTC_010.b.txt"};
    const QStringList strangers{"a_2018-01-01_00-00-00_UTC.b.txt.bak", "a_2018-01-01_00-00-00_UTC.txt",
                                "a_b_2018-01-01_00-00-00_UTC.b.txt", "b_2018-01-01_00-00-00_UTC.b.txt"};
    for (int i = old.size() - 1; i >= 0; --i)
        put(directory.filePath(old[i]), QByteArray(10, 'x'));
    for (const QString &name : strangers)
        put(directory.filePath(name), QByteArray(10, 'x'));
    RetainingSet set(directory.path());
    set.setMaximumNumberOfFiles(files);
    set.setMaximumSizeOfFiles(bytes);
    QVERIFY(set.open(QIODevice::WriteOnly));
    QStringList expected =
        old.mid(old.size() - kept) + strangers + QStringList(QFileInfo(set.currentFilePath()).fileName());
    expected.sort();
    QCOMPARE(QDir(directory.path()).entryList(QDir::Files, QDir::Name), expected);

    set.setMaximumWeightPerFile(100);
    set.write("a\nb\nc");
    QCOMPARE(set.weightOfCurrentFile(), quint64(5));
    set.setCountedWeight(PYXRetainingFileSet::ekWeight_Lines);
    set.write("dd\n");
    QCOMPARE(set.weightOfCurrentFile(), quint64(6));
    // What goes leaves the list of files too.
    set.setMaximumNumberOfFiles(2);
    for (int i = 0; i < 5; ++i)
        QVERIFY(set.switchToNextFile());
    QCOMPARE(set.previousFilesPaths().size(), 1);
    QVERIFY(QFile::exists(set.previousFilesPaths().first()));
}

QTEST_GUILESS_MAIN(tst_PYXRetainingFileSet)
#include "tst_PYXRetainingFileSet.moc"
