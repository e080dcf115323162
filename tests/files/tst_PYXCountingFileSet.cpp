// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "DataRows.h"
#include "FileContents.h"
#include "FileSets.h"
#include "PYXFileListImpl.h"
#include "PYXLineCountingFileSet.h"
#include "PYXRuntimeCenter.h"
#include "PYXSizeCountingFileSet.h"
#include "RecordingTracer.h"

#include <QtTest/QtTest>

#include <atomic>
#include <memory>
#include <random>
#include <thread>

using namespace PYXRuntime;
using LineSet = Numbered<PYXLineCountingFileSet>;
using SizeSet = Numbered<PYXSizeCountingFileSet>;

/** Its weight is the number of writes. */
class WriteSet : public Numbered<PYXCountingFileSet>
{
public:
    using Numbered::Numbered;

protected:
    quint64 _getWeightOfData(const char *, qint64, qint64) override
    {
        return ++m_writes - weightOfCurrentFile();
    }

private:
    quint64 m_writes = 0;
};

/** Writes all traces to a set. */
class SetTracer : public PYXTracerBase
{
public:
    explicit SetTracer(PYXCountingFileSet &set)
        : m_set(set)
    {}
    QByteArray written;

protected:
    void trace(const struTrace &trace) override
    {
        const QByteArray line = trace.text.toUtf8() + '\n';
        if (m_set.write(line) == line.size())
            written += line;
    }

private:
    PYXCountingFileSet &m_set;
};

class tst_PYXCountingFileSet : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init() { m_directory = std::make_unique<QTemporaryDir>(); }
    void cleanup() { PYXFileListImpl::destroyInstance(); }
    void namesFilesAfterTheMoment();
    void movesOnAfterTheMaximum();
    void opensAndTells();
    void followsItsSetters();
    void registersItsFiles();
    void losesAndDoublesNothing_data();
    void losesAndDoublesNothing();
    void goesOnWhenTheCauseIsGone();
    void letsListenersCloseOrDeleteIt();
    void letsListenersWriteToIt();

private:
    QString path(const QString &name) const { return m_directory->filePath(name); }

    std::unique_ptr<QTemporaryDir> m_directory;
};

void tst_PYXCountingFileSet::namesFilesAfterTheMoment()
{
    QCOMPARE(PYXCountingFileSet().baseDirectory(), QDir::tempPath());
    const char *const formats[][2] = {{"trace.log.txt", "'trace_'yyyy-MM-dd_hh-mm-ss'_UTC.log.txt'"},
                                      {"trace", "'trace_'yyyy-MM-dd_hh-mm-ss'_UTC'"},
                                      {"", "yyyy-MM-dd_hh-mm-ss'_UTC'"}};
    for (const auto &[baseFileName, format] : formats) {
        PYXCountingFileSet set;
        set.setBaseDirectory(m_directory->path());
        set.setBaseFileName(baseFileName);
        const QDateTime before = QDateTime::currentDateTimeUtc();
        QVERIFY(set.open(QIODevice::WriteOnly) && QFile::exists(set.currentFilePath()));
        const QStringList possible{path(before.toString(format)),
                                   path(QDateTime::currentDateTimeUtc().toString(format))};
        QVERIFY2(possible.contains(set.currentFilePath()), qPrintable(set.currentFilePath()));
    }
}

void tst_PYXCountingFileSet::movesOnAfterTheMaximum()
{
    Numbered<PYXCountingFileSet> each(m_directory->path());
    QVERIFY(each.open(QIODevice::WriteOnly));
    QCOMPARE(each.write("a"), qint64(1));
    QCOMPARE(each.write("b"), qint64(1));
    QCOMPARE(each.previousFilesPaths(), QStringList({path("1"), path("2")}));
    QCOMPARE(get(path("2")), QByteArray("b"));

    WriteSet writes(m_directory->path(), 3);
    QVERIFY(writes.open(QIODevice::WriteOnly));
    writes.setFlushAfterWriting(true);
    QVERIFY(writes.write("a") == 1 && writes.write("b") == 1);
    QCOMPARE(writes.weightOfCurrentFile(), quint64(2));

    LineSet lines(m_directory->path(), 3);
    // More than a counter of one byte holds, and an end that is no full row.
    const QByteArray ends = QByteArray(300 * 32 + 7, '\n') + QByteArray(100, '\r');
    QCOMPARE(lines._getWeightOfData(ends.constData(), ends.size(), ends.size()), quint64(300 * 32 + 7));
    QCOMPARE(lines._getWeightOfData("\n\n\n", 3, 2), quint64(2));
    QCOMPARE(lines._getWeightOfData(nullptr, 5, 5), quint64(0));
    QCOMPARE(lines._getWeightOfData("\n", 1, -1), quint64(0));
    const QSignalSpy weightSpy(&lines, &PYXCountingFileSet::si_maximumWeightReached);
    const QSignalSpy linesSpy(&lines, &PYXLineCountingFileSet::si_maximumNumberOfLinesReached);
    QVERIFY(lines.open(QIODevice::WriteOnly));
    lines.write("1\n2\n");
    QCOMPARE(lines.property("numberOfLinesOfCurrentFile").toULongLong(), quint64(2));
    QCOMPARE(weightSpy.count() + linesSpy.count(), 0);
    lines.write("3\n");
    QVERIFY(lines.currentFilePath().isEmpty());
    QVERIFY(weightSpy.count() == 1 && linesSpy.count() == 1);
    QCOMPARE(get(path("1")), QByteArray("1\n2\n3\n"));

    SizeSet size(m_directory->path(), 10);
    QCOMPARE(size._getWeightOfData(nullptr, 5, -1), quint64(0));
    QVERIFY(size.open(QIODevice::WriteOnly));
    size.write("abc");
    QCOMPARE(size.weightOfCurrentFile(), quint64(3));
    QVERIFY(!size.currentFilePath().isEmpty());
    size.setMaximumWeightPerFile(2);
    QVERIFY(size.currentFilePath().isEmpty());
    QCOMPARE(size.weightOfCurrentFile(), quint64(0));
}

void tst_PYXCountingFileSet::opensAndTells()
{
    using Device = QIODevice;
    // Scopes are switched on; the first one tells. What is told of the mode.
    const Rows<int, QStringList, QStringList> rows = {
        {"write, nobody hears", Device::WriteOnly, {}, {}},
        {"read", Device::ReadOnly, {"PYXRuntime"}, {}},
        {"append", Device::WriteOnly | Device::Append, {"CountingFileSet"}, {"Append"}},
        {"all",
         Device::WriteOnly | Device::Truncate | Device::Append | Device::Unbuffered,
         {"PYXRuntime", "CountingFileSet"},
         {"Unbuffered", "Append", "Truncate"}}};
    PYXRuntimeCenter::setEnabled_pyxDebugToTrace(true);
    forRows(rows, [this](int mode, const QStringList &scopes, const QStringList &ignored) {
        const bool bOpens = (mode & QIODevice::ReadOnly) == 0;
        for (const QString &scope : scopes)
            PYXRuntimeCenter::setEnabled_pyxDebug(scope, true);
        Numbered<PYXCountingFileSet> set(m_directory->path());
        set.setObjectName("%1");
        const QStringList traces = tracesOf([&] {
            QCOMPARE(set.open(QIODevice::OpenMode(mode)), bOpens);
            QVERIFY(!set.open(QIODevice::OpenMode(mode)));
            QCOMPARE(set.isOpen(), bOpens);
            if (bOpens)
                set.write("a");
        });
        PYXRuntimeCenter::setEnabled_pyxDebug(false);
        QStringList texts;
        for (const QString &flag : ignored)
            texts += "QIODevice::" + flag + " will be ignored";
        texts += QStringList({"opened next file [" + path("1") + ']', "maximum weight reached",
                              "closing current file [" + path("1") + ']'});
        const QString prefix = "Debug|PYXRuntime::PYXCountingFileSet(%1)[0x" +
                               QString("%1").arg(quintptr(&set), 8, 16, QChar('0')) + "]: ";
        const QStringList expected = bOpens && !scopes.isEmpty() ? texts : QStringList();
        QCOMPARE(traces.size(), expected.size());
        for (int i = 0; i < traces.size(); ++i)
            QCOMPARE(traces[i], prefix + expected[i] + '|' + scopes.first() + "|0");
    });
}

void tst_PYXCountingFileSet::followsItsSetters()
{
    SizeSet set(m_directory->path(), 100);
    QVERIFY(set.flush());
    QVERIFY(!set.switchToNextFile());
    QVERIFY(set.open(QIODevice::WriteOnly));
    set.write("abc");
    set.setFlushAfterWriting(true);
    QCOMPARE(get(path("1")), QByteArray("abc"));
    set.write("d");
    QCOMPARE(get(path("1")), QByteArray("abcd"));
    set.setFlushAfterWriting(false);
    set.write("e");
    QVERIFY(set.flush());
    QCOMPARE(get(path("1")), QByteArray("abcde"));
    set.setBaseFileName("");
    QVERIFY(!set.currentFilePath().isEmpty());
    set.setBaseFileName("g");
    QVERIFY(set.currentFilePath().isEmpty());
    QVERIFY(set.switchToNextFile());
    QCOMPARE(set.currentFilePath(), path("g2"));
    set.setBaseDirectory(path("."));
    set.write("x");
    set.close();
    QCOMPARE(get(path("g3")), QByteArray("x"));
    QCOMPARE(set.previousFilesPaths().size(), 3);
}

void tst_PYXCountingFileSet::registersItsFiles()
{
    auto *const list = PYXFileListImpl::getInstance();
    SizeSet set(m_directory->path());
    set.setRegisterWrittenFiles(true);
    set.setRegisterFileType(PYXIFileList::ekFT_RECORDING);
    set.setRegisterFileComponentName("Recorder");
    QVERIFY(set.open(QIODevice::WriteOnly));
    QCOMPARE(list->fileCount("Recorder"), 1);
    QCOMPARE(list->fileList()[0].filePath, path("1"));
    QCOMPARE(list->fileList()[0].fileType, PYXIFileList::ekFT_RECORDING);
    QVERIFY(list->fileList()[0].startDateTime.isValid());
    // In another thread the set does not touch the list itself.
    std::thread([&] { set.write("a") == 1 && set.write("b"); }).join();
    QCOMPARE(list->fileCount("Recorder"), 1);
    QTRY_COMPARE(list->fileCount("Recorder"), 2);
    // Lists may come and go meanwhile.
    std::atomic<bool> bDone(false);
    std::thread writer([&] {
        while (!bDone)
            set.write("c");
    });
    for (int i = 0; i < 100; ++i) {
        PYXFileListImpl::destroyInstance();
        PYXFileListImpl::makeSureInitialized();
    }
    bDone = true;
    writer.join();
}

void tst_PYXCountingFileSet::losesAndDoublesNothing_data()
{
    const Rows<bool, quint64, int> rows = {{"tiny files", false, 10U, 20},
                                           {"about a buffer", false, 80'000U, 20'000},
                                           {"long writes", false, 200'000U, 140'000},
                                           {"lines", true, 1000U, 20'000}};
    addRows({"bLines", "maximum", "longestWrite"}, rows);
}

void tst_PYXCountingFileSet::losesAndDoublesNothing()
{
    QFETCH(bool, bLines);
    QFETCH(quint64, maximum);
    QFETCH(int, longestWrite);
    for (const bool bText : {false, true}) {
        const QTemporaryDir directory;
        std::unique_ptr<PYXCountingFileSet> set;
        if (bLines)
            set = std::make_unique<LineSet>(directory.path(), maximum);
        else
            set = std::make_unique<SizeSet>(directory.path(), maximum);
        QVERIFY(set->open(bText ? QIODevice::WriteOnly | QIODevice::Text : QIODevice::WriteOnly));
        QCryptographicHash handedOver(QCryptographicHash::Sha256);
        std::mt19937 random(1);
        for (int i = 0; i < 200; ++i) {
            QByteArray data(int(random() % unsigned(longestWrite)) + 1, Qt::Uninitialized);
            for (char &byte : data)
                byte = char(random() % 32 == 0 ? '\n' : 'a' + random() % 26);
            QCOMPARE(set->write(data), qint64(data.size()));
            handedOver.addData(data);
            if (i % 50 == 49)
                QVERIFY(set->switchToNextFile());
        }
        set->close();
        QVERIFY(set->previousFilesPaths().size() > 4);
        QCryptographicHash found(QCryptographicHash::Sha256);
        for (const QString &file : set->previousFilesPaths()) {
            QByteArray content = get(file);
            if (TEXT_LINES_END_WITH_CARRIAGE_RETURN && bText)
                content.replace("\r\n", "\n");
            found.addData(content);
        }
        QCOMPARE(found.result().toHex(), handedOver.result().toHex());
    }
}

void tst_PYXCountingFileSet::goesOnWhenTheCauseIsGone()
{
    const QString place = path("records");
    SizeSet set(place, 2);
    const QSignalSpy spy(&set, &PYXCountingFileSet::si_writeError);
    QVERIFY(!set.open(QIODevice::WriteOnly));
    QVERIFY(!set.isOpen() && set.errorString().contains("records"));
    QVERIFY(QDir().mkpath(place));
    QVERIFY(set.open(QIODevice::WriteOnly));
    set.setRegisterWrittenFiles(true);
    set.write("ab");
    QVERIFY(QDir(place).removeRecursively());
    QCOMPARE(set.write("cd"), qint64(-1));
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy[0][0].toString(), set.errorString());
    QVERIFY(!set.switchToNextFile());
    QCOMPARE(set.previousFilesPaths().size(), 1);
    QVERIFY(PYXFileListImpl::getInstance()->fileList().isEmpty());
    QVERIFY(QDir().mkpath(place));
    QCOMPARE(set.write("cd"), qint64(2));
    QCOMPARE(get(set.previousFilesPaths().last()), QByteArray("cd"));
}

void tst_PYXCountingFileSet::letsListenersCloseOrDeleteIt()
{
    enum { AtTheMaximum, WhenRegistered, WhenAWriteFails };
    for (const int when : {AtTheMaximum, WhenRegistered, WhenAWriteFails}) {
        for (const bool bDelete : {false, true}) {
            QPointer<PYXCountingFileSet> set = new LineSet(m_directory->path());
            QVERIFY(set->open(QIODevice::WriteOnly));
            set->setRegisterWrittenFiles(true);
            set->setBaseDirectory(when == WhenAWriteFails ? path("missing") : path("."));
            int calls = 0;
            const auto end = [&] {
                ++calls;
                if (bDelete)
                    delete set.data();
                else
                    set->close();
            };
            if (when == AtTheMaximum)
                connect(set.data(), &PYXCountingFileSet::si_maximumWeightReached, end);
            else if (when == WhenRegistered)
                connect(PYXFileListImpl::getInstance(), &PYXIFileList::si_fileCountChanged, end);
            else
                connect(set.data(), &PYXCountingFileSet::si_writeError, end);
            QCOMPARE(set->write("a"), qint64(when == AtTheMaximum ? 1 : -1));
            QCOMPARE(calls, 1);
            QCOMPARE(set.isNull(), bDelete);
            QVERIFY(bDelete || !set->isOpen());
            delete set.data();
            PYXFileListImpl::destroyInstance(); // and with it the connection
        }
    }
}

void tst_PYXCountingFileSet::letsListenersWriteToIt()
{
    const auto contents = [](const PYXCountingFileSet &set) {
        QByteArray all;
        for (const QString &file : set.previousFilesPaths())
            all += get(file);
        return all;
    };
    const auto sorted = [](const QByteArray &text) {
        QList<QByteArray> lines = text.split('\n');
        std::sort(lines.begin(), lines.end());
        return lines;
    };
    for (const quint64 maximum : {2U, 3U, 100U}) {
        LineSet closing(m_directory->path(), maximum);
        connect(&closing, &QIODevice::aboutToClose, [&] { closing.write("end\n"); });
        QVERIFY(closing.open(QIODevice::WriteOnly));
        closing.write("begin\n");
        closing.close();
        QCOMPARE(contents(closing), QByteArray("begin\nend\n"));

        // A log of the application's own, in which the set's own messages are switched on.
        LineSet log(m_directory->path(), maximum);
        SetTracer tracer(log);
        PYXTraceWrapper::addTracer(&tracer);
        PYXRuntimeCenter::setEnabled_pyxDebug("CountingFileSet", true);
        PYXRuntimeCenter::setEnabled_pyxDebugToTrace(true);
        QVERIFY(log.open(QIODevice::WriteOnly) && log.switchToNextFile());
        PYXTraceWrapper::staticTraceInfo("by another", "", 0);
        log.close();
        PYXRuntimeCenter::setEnabled_pyxDebug(false);
        PYXTraceWrapper::removeTracer(&tracer);
        QVERIFY(tracer.written.contains("opened next file [") && tracer.written.contains("by another\n"));
        QCOMPARE(sorted(contents(log)), sorted(tracer.written));
    }
}

QTEST_GUILESS_MAIN(tst_PYXCountingFileSet)
#include "tst_PYXCountingFileSet.moc"
