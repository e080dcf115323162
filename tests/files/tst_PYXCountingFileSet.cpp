// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXFileListImpl.h"
#include "PYXLineCountingFileSet.h"
#include "PYXRuntimeCenter.h"
#include "PYXSizeCountingFileSet.h"
#include "RecordingTracer.h"

#include <QtTest/QtTest>

#include <memory>
#include <random>

using namespace PYXRuntime;

namespace {

QByteArray get(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/** Names its files "<base>.1", "<base>.2" ... */
template <typename Set>
class Numbered : public Set
{
public:
    using Set::_getNextFileName;
    using Set::_getWeightOfData;
    explicit Numbered(const QString &directory)
    {
        this->setBaseDirectory(directory);
        this->setBaseFileName("f");
    }

protected:
    QString _getNextFileName() override { return this->baseFileName() + '.' + QString::number(++m_number); }

private:
    int m_number = 0;
};

} // namespace

class tst_PYXCountingFileSet : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void namesFilesAfterTheMoment_data();
    void namesFilesAfterTheMoment();
    void startsAFileForEachWriteByDefault();
    void movesOnAfterTheMaximum();
    void opensAsTheModeAllows_data();
    void opensAsTheModeAllows();
    void followsItsSetters();
    void tellsItsScopes_data();
    void tellsItsScopes();
    void registersFilesThatAreThere();
    void losesAndDoublesNothing_data();
    void losesAndDoublesNothing();
    void goesOnWhenTheCauseIsGone();
    void letsListenersCloseOrDeleteIt_data();
    void letsListenersCloseOrDeleteIt();

private:
    QTemporaryDir m_directory;
};

void tst_PYXCountingFileSet::namesFilesAfterTheMoment_data()
{
    QTest::addColumn<QString>("baseFileName");
    QTest::addColumn<QString>("pattern");
    const QString moment("\\d{4}-\\d\\d-\\d\\d_\\d\\d-\\d\\d-\\d\\d_UTC");
    QTest::addRow("two suffixes") << "trace.log.txt"
                                  << "trace_" + moment + "\\.log\\.txt";
    QTest::addRow("no suffix") << "trace"
                               << "trace_" + moment;
    QTest::addRow("empty") << "" << moment;
    QTest::addRow("suffix only") << ".txt" << moment + "\\.txt";
}

void tst_PYXCountingFileSet::namesFilesAfterTheMoment()
{
    QFETCH(QString, baseFileName);
    QFETCH(QString, pattern);
    const QTemporaryDir directory;
    PYXCountingFileSet set;
    QCOMPARE(set.baseDirectory(), QDir::tempPath());
    set.setBaseDirectory(directory.path());
    set.setBaseFileName(baseFileName);
    const QDateTime before = QDateTime::currentDateTimeUtc();
    QVERIFY(set.open(QIODevice::WriteOnly));
    const QString name = QFileInfo(set.currentFilePath()).fileName();
    QVERIFY2(QRegularExpression('^' + pattern + '$').match(name).hasMatch(), qPrintable(name));
    QDateTime moment = QDateTime::fromString(QRegularExpression("\\d{4}[-_\\d]{15}").match(name).captured(),
                                             "yyyy-MM-dd_hh-mm-ss");
    moment.setTimeSpec(Qt::UTC);
    QVERIFY(moment >= before.addSecs(-1) && moment <= QDateTime::currentDateTimeUtc());
    QCOMPARE(QDir(directory.path()).entryList(QDir::Files), QStringList(name));
}

void tst_PYXCountingFileSet::startsAFileForEachWriteByDefault()
{
    Numbered<PYXCountingFileSet> set(m_directory.path());
    QCOMPARE(set._getWeightOfData("a", 1, 1), quint64(0));
    QSignalSpy spy(&set, &PYXCountingFileSet::si_maximumWeightReached);
    QVERIFY(set.open(QIODevice::WriteOnly));
    QCOMPARE(set.write("a"), qint64(1));
    QCOMPARE(set.weightOfCurrentFile(), quint64(0));
    QVERIFY(set.currentFilePath().isEmpty());
    QCOMPARE(set.write("b"), qint64(1));
    QCOMPARE(set.previousFilesPaths(),
             QStringList({m_directory.filePath("f.1"), m_directory.filePath("f.2")}));
    QCOMPARE(get(m_directory.filePath("f.2")), QByteArray("b"));
    QCOMPARE(spy.count(), 2);
}

void tst_PYXCountingFileSet::movesOnAfterTheMaximum()
{
    Numbered<PYXLineCountingFileSet> lines(m_directory.path());
    QCOMPARE(lines._getWeightOfData(nullptr, 5, 5), quint64(0));
    QCOMPARE(lines._getWeightOfData("\n\n\n", 3, 2), quint64(2));
    QCOMPARE(lines._getWeightOfData("\n", 1, -1), quint64(0));
    // More than a counter of one byte holds, and an end that is no full row.
    const QByteArray ends = QByteArray(300 * 32 + 7, '\n') + QByteArray(100, '\r');
    QCOMPARE(lines._getWeightOfData(ends.constData(), ends.size(), ends.size()), quint64(300 * 32 + 7));
    lines.setMaximumNumberOfLinesPerFile(3);
    const QSignalSpy weightSpy(&lines, &PYXCountingFileSet::si_maximumWeightReached);
    const QSignalSpy linesSpy(&lines, &PYXLineCountingFileSet::si_maximumNumberOfLinesReached);
    QVERIFY(lines.open(QIODevice::WriteOnly));
    lines.write("1\n2\n");
    QCOMPARE(lines.property("numberOfLinesOfCurrentFile").toULongLong(), quint64(2));
    QCOMPARE(weightSpy.count() + linesSpy.count(), 0);
    lines.write("3\n");
    QVERIFY(lines.currentFilePath().isEmpty());
    QCOMPARE(weightSpy.count(), 1);
    QCOMPARE(linesSpy.count(), 1);
    QCOMPARE(get(m_directory.filePath("f.1")), QByteArray("1\n2\n3\n"));

    Numbered<PYXSizeCountingFileSet> size(m_directory.path());
    QCOMPARE(size._getWeightOfData(nullptr, 5, -1), quint64(0));
    size.setMaximumWeightPerFile(10);
    QVERIFY(size.open(QIODevice::WriteOnly));
    size.write("abc");
    QCOMPARE(size.weightOfCurrentFile(), quint64(3));
    QVERIFY(!size.currentFilePath().isEmpty());
    size.setMaximumWeightPerFile(2);
    QVERIFY(size.currentFilePath().isEmpty());
    QCOMPARE(size.weightOfCurrentFile(), quint64(0));
}

void tst_PYXCountingFileSet::opensAsTheModeAllows_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<bool>("bOpens");
    QTest::addColumn<QStringList>("ignored");
    QTest::addRow("write") << int(QIODevice::WriteOnly) << true << QStringList();
    QTest::addRow("read") << int(QIODevice::ReadOnly) << false << QStringList();
    QTest::addRow("both") << int(QIODevice::ReadWrite) << false << QStringList();
    QTest::addRow("append") << int(QIODevice::WriteOnly | QIODevice::Append) << true << QStringList("Append");
    QTest::addRow("all") << int(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Append |
                                QIODevice::Unbuffered)
                         << true << QStringList({"Unbuffered", "Append", "Truncate"});
}

void tst_PYXCountingFileSet::opensAsTheModeAllows()
{
    QFETCH(int, mode);
    QFETCH(bool, bOpens);
    QFETCH(QStringList, ignored);
    PYXRuntimeCenter::setEnabled_pyxDebug("PYXRuntime", true);
    PYXRuntimeCenter::setEnabled_pyxDebugToTrace(true);
    Numbered<PYXSizeCountingFileSet> set(m_directory.path());
    const QStringList traces = tracesOf([&] { QCOMPARE(set.open(QIODevice::OpenMode(mode)), bOpens); });
    PYXRuntimeCenter::setEnabled_pyxDebug(false);
    QCOMPARE(traces.size(), bOpens ? ignored.size() + 1 : 0);
    for (int i = 0; i < ignored.size(); ++i) {
        const QString expected =
            QString("PYXRuntime::PYXSizeCountingFileSet(<unnamed>)[0x%1]: QIODevice::%2 will "
                    "be ignored")
                .arg(quintptr(&set), 8, 16, QChar('0'))
                .arg(ignored[i]);
        QCOMPARE(traces[i].section('|', 1, 1), expected);
    }
    QCOMPARE(set.isOpen(), bOpens);
    if (bOpens) {
        QCOMPARE(int(set.openMode()), int(QIODevice::WriteOnly));
        QVERIFY(!set.open(QIODevice::OpenMode(mode)));
        char byte;
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("WriteOnly device"));
        QCOMPARE(set.read(&byte, 1), qint64(-1));
    }
}

void tst_PYXCountingFileSet::followsItsSetters()
{
    const QTemporaryDir other;
    Numbered<PYXSizeCountingFileSet> set(m_directory.path());
    QVERIFY(set.flush());
    QVERIFY(!set.switchToNextFile());
    set.setMaximumWeightPerFile(100);
    QVERIFY(set.open(QIODevice::WriteOnly));
    set.write("abc");
    set.setFlushAfterWriting(true);
    QCOMPARE(get(m_directory.filePath("f.1")), QByteArray("abc"));
    set.write("d");
    QCOMPARE(get(m_directory.filePath("f.1")), QByteArray("abcd"));
    set.setFlushAfterWriting(false);
    set.write("e");
    QVERIFY(set.flush());
    QCOMPARE(get(m_directory.filePath("f.1")), QByteArray("abcde"));
    set.setBaseDirectory(m_directory.path());
    set.setBaseFileName("f");
    QVERIFY(!set.currentFilePath().isEmpty());
    set.setBaseDirectory(other.path());
    QVERIFY(set.currentFilePath().isEmpty());
    QVERIFY(set.switchToNextFile());
    QCOMPARE(set.currentFilePath(), other.path() + "/f.2");
    set.setBaseFileName("g");
    set.write("x");
    QCOMPARE(set.currentFilePath(), other.path() + "/g.3");
    set.close();
    QCOMPARE(get(other.path() + "/g.3"), QByteArray("x"));
    QCOMPARE(set.previousFilesPaths().size(), 3);
}

void tst_PYXCountingFileSet::tellsItsScopes_data()
{
    QTest::addColumn<QStringList>("scopes");
    QTest::addColumn<QString>("teller");
    QTest::addRow("none") << QStringList() << "";
    QTest::addRow("the library's") << QStringList("PYXRuntime") << "PYXRuntime";
    QTest::addRow("its own") << QStringList("CountingFileSet") << "CountingFileSet";
    QTest::addRow("both") << QStringList({"PYXRuntime", "CountingFileSet"}) << "PYXRuntime";
}

void tst_PYXCountingFileSet::tellsItsScopes()
{
    QFETCH(QStringList, scopes);
    QFETCH(QString, teller);
    for (const QString &scope : qAsConst(scopes))
        PYXRuntimeCenter::setEnabled_pyxDebug(scope, true);
    PYXRuntimeCenter::setEnabled_pyxDebugToTrace(true);
    const QStringList traces = tracesOf([this] {
        Numbered<PYXCountingFileSet> set(m_directory.path());
        set.setObjectName("%1");
        set.open(QIODevice::WriteOnly);
        set.write("a");
    });
    PYXRuntimeCenter::setEnabled_pyxDebug(false);
    QCOMPARE(traces.size(), teller.isEmpty() ? 0 : 3);
    const QString path = m_directory.filePath("f.1");
    const QStringList texts{"opened next file [" + path + ']', "maximum weight reached",
                            "closing current file [" + path + ']'};
    for (int i = 0; i < traces.size(); ++i) {
        QVERIFY2(traces[i].startsWith("Debug|PYXRuntime::PYXCountingFileSet(%1)[0x"), qPrintable(traces[i]));
        QVERIFY2(traces[i].endsWith("]: " + texts[i] + '|' + teller + "|0"), qPrintable(traces[i]));
    }
}

void tst_PYXCountingFileSet::registersFilesThatAreThere()
{
    auto *const list = PYXFileListImpl::getInstance();
    Numbered<PYXCountingFileSet> set(m_directory.path());
    set.setRegisterWrittenFiles(true);
    set.setRegisterFileType(PYXIFileList::ekFT_RECORDING);
    set.setRegisterFileComponentName("Recorder");
    QVERIFY(set.open(QIODevice::WriteOnly));
    QCOMPARE(list->fileList().size(), 1);
    QCOMPARE(list->fileList()[0].filePath, m_directory.filePath("f.1"));
    QCOMPARE(list->fileList()[0].fileType, PYXIFileList::ekFT_RECORDING);
    QVERIFY(list->fileList()[0].startDateTime.isValid());
    set.setBaseDirectory("/no/such/directory");
    QCOMPARE(set.write("x"), qint64(-1));
    QCOMPARE(list->fileCount("Recorder"), 1);
    // In another thread the set does not touch the list itself.
    set.close();
    std::unique_ptr<QThread> thread(QThread::create([this] {
        Numbered<PYXCountingFileSet> distant(m_directory.path());
        distant.setBaseFileName("d");
        distant.setRegisterWrittenFiles(true);
        distant.open(QIODevice::WriteOnly);
    }));
    thread->start();
    QVERIFY(thread->wait());
    QCOMPARE(list->fileList().size(), 1);
    QTRY_COMPARE(list->fileList().size(), 2);
    PYXFileListImpl::destroyInstance();
}

void tst_PYXCountingFileSet::losesAndDoublesNothing_data()
{
    QTest::addColumn<bool>("bLines");
    QTest::addColumn<quint64>("maximum");
    QTest::addColumn<int>("longestWrite");
    QTest::addColumn<bool>("bText");
    for (const bool bText : {false, true}) {
        const char *const mode = bText ? "text" : "binary";
        QTest::addRow("tiny files, %s", mode) << false << quint64(10) << 20 << bText;
        QTest::addRow("about a buffer, %s", mode) << false << quint64(20'000) << 9'000 << bText;
        QTest::addRow("long writes, %s", mode) << false << quint64(100'000) << 70'000 << bText;
        QTest::addRow("single lines, %s", mode) << true << quint64(1) << 300 << bText;
        QTest::addRow("many lines, %s", mode) << true << quint64(1000) << 20'000 << bText;
    }
}

void tst_PYXCountingFileSet::losesAndDoublesNothing()
{
    QFETCH(bool, bLines);
    QFETCH(quint64, maximum);
    QFETCH(int, longestWrite);
    QFETCH(bool, bText);
    const QTemporaryDir directory;
    std::unique_ptr<PYXCountingFileSet> set;
    if (bLines)
        set = std::make_unique<Numbered<PYXLineCountingFileSet>>(directory.path());
    else
        set = std::make_unique<Numbered<PYXSizeCountingFileSet>>(directory.path());
    set->setMaximumWeightPerFile(maximum);
    QVERIFY(set->open(bText ? QIODevice::WriteOnly | QIODevice::Text
                            : QIODevice::OpenMode(QIODevice::WriteOnly)));
    QCryptographicHash handedOver(QCryptographicHash::Sha256);
    std::mt19937 random(1);
    for (int i = 0; i < 200; ++i) {
        QByteArray data(int(random() % unsigned(longestWrite)) + 1, Qt::Uninitialized);
        for (char &byte : data)
            byte = char(random() % 32 == 0 ? '\n' : random() % 256);
        QCOMPARE(set->write(data), qint64(data.size()));
        handedOver.addData(data);
        if (i % 50 == 49)
            QVERIFY(set->switchToNextFile());
    }
    set->close();
    QVERIFY(set->previousFilesPaths().size() > 4);
    QCryptographicHash found(QCryptographicHash::Sha256);
    for (const QString &path : set->previousFilesPaths()) {
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QByteArray content = file.readAll();
#ifdef TEXT_LINES_END_WITH_CARRIAGE_RETURN
        if (bText)
            content.replace("\r\n", "\n");
#endif
        found.addData(content);
    }
    QCOMPARE(found.result().toHex(), handedOver.result().toHex());
}

void tst_PYXCountingFileSet::goesOnWhenTheCauseIsGone()
{
    const QTemporaryDir directory;
    const QString place = directory.filePath("records");
    Numbered<PYXSizeCountingFileSet> set(place);
    set.setMaximumWeightPerFile(2);
    const QSignalSpy spy(&set, &PYXCountingFileSet::si_writeError);
    QVERIFY(!set.open(QIODevice::WriteOnly));
    QVERIFY(!set.isOpen());
    QVERIFY(set.errorString().contains("f.1"));
    QVERIFY(QDir().mkpath(place));
    QVERIFY(set.open(QIODevice::WriteOnly));
    set.write("ab");
    QVERIFY(QDir(place).removeRecursively());
    QCOMPARE(set.write("cd"), qint64(-1));
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy[0][0].toString(), set.errorString());
    QVERIFY(!set.switchToNextFile());
    QCOMPARE(set.previousFilesPaths().size(), 1);
    QVERIFY(QDir().mkpath(place));
    QCOMPARE(set.write("cd"), qint64(2));
    QCOMPARE(get(set.previousFilesPaths().last()), QByteArray("cd"));
}

void tst_PYXCountingFileSet::letsListenersCloseOrDeleteIt_data()
{
    QTest::addColumn<bool>("bDelete");
    QTest::addColumn<int>("when");
    for (const bool bDelete : {false, true}) {
        const char *const deed = bDelete ? "deleted" : "closed";
        QTest::addRow("%s when the maximum is reached", deed) << bDelete << 0;
        QTest::addRow("%s when a file is registered", deed) << bDelete << 1;
        QTest::addRow("%s when a write fails", deed) << bDelete << 2;
    }
}

void tst_PYXCountingFileSet::letsListenersCloseOrDeleteIt()
{
    QFETCH(bool, bDelete);
    QFETCH(int, when);
    const QTemporaryDir directory;
    QPointer<PYXCountingFileSet> set = new Numbered<PYXLineCountingFileSet>(directory.path());
    QVERIFY(set->open(QIODevice::WriteOnly));
    set->setBaseFileName("next");
    set->setRegisterWrittenFiles(true);
    set->setRegisterFileComponentName("component");
    if (when == 2)
        set->setBaseDirectory("/no/such/directory");
    int calls = 0;
    const auto end = [&] {
        ++calls;
        if (bDelete)
            delete set.data();
        else
            set->close();
    };
    auto *const list = PYXFileListImpl::getInstance();
    if (when == 0)
        connect(set.data(), &PYXCountingFileSet::si_maximumWeightReached, end);
    else if (when == 1)
        connect(list, &PYXIFileList::si_fileCountChanged, end);
    else
        connect(set.data(), &PYXCountingFileSet::si_writeError, end);
    QCOMPARE(set->write("a"), qint64(when == 0 ? 1 : -1));
    QCOMPARE(calls, 1);
    QCOMPARE(set.isNull(), bDelete);
    QVERIFY(bDelete || !set->isOpen());
    PYXFileListImpl::destroyInstance();
    delete set.data();
}

QTEST_GUILESS_MAIN(tst_PYXCountingFileSet)
#include "tst_PYXCountingFileSet.moc"
