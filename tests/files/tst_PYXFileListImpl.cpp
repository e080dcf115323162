// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXBroker.h"
#include "PYXFileListImpl.h"
#include "PYXRuntime.h"
#include "RecordingTracer.h"

#include <QtTest/QtTest>

using namespace PYXRuntime;

namespace {

void put(const QString &path, const QString &component,
         PYXIFileList::eFileType type = PYXIFileList::ekFT_TEXT)
{
    PYXFileListImpl::getInstance()->registerFile(path, type, component, {}, {});
}

/** Every change as "<component> <count>". */
QStringList changes(const QSignalSpy &spy)
{
    QStringList texts;
    for (const auto &arguments : spy)
        texts += arguments[0].toString() + ' ' + arguments[1].toString();
    return texts;
}

} // namespace

class tst_PYXFileListImpl : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void cleanup() { PYXFileListImpl::destroyInstance(); }
    void isFoundByTheBrokerUntilTheLibraryStops();
    void keepsEachPathTypeAndComponentOnce();
    void takesTimesFromCallerOrFile();
    void dropsTheOldestOfAThousand();
    void survivesListenersThatChangeIt();
};

void tst_PYXFileListImpl::isFoundByTheBrokerUntilTheLibraryStops()
{
    const QUuid id("{0DF98A0F-076B-4135-9629-0203704073E4}");
    initialize_PYXRuntime(ekInitialize_NoFonts);
    PYXFileListImpl *const list = PYXFileListImpl::getInstance();
    QObject *const found = PYXBroker::getInstance()->topObject(id, 0);
    QCOMPARE(found, list);
    QCOMPARE(found->objectName(), QString("PYXRuntime::PYXFileListImpl"));
    QCOMPARE(found->qt_metacast("com.varnholt.PYXRuntime.PYXIFileList/1.0"),
             static_cast<void *>(static_cast<PYXIFileList *>(list)));
    QCOMPARE(PYXBroker::getInstance()->topObject<PYXIFileList>(), list);
    uninitialize_PYXRuntime();
    QVERIFY(!PYXFileListImpl::hasInstance());
    QVERIFY(PYXBroker::getInstance()->registeredNames(id).isEmpty());
}

void tst_PYXFileListImpl::keepsEachPathTypeAndComponentOnce()
{
    auto *const list = PYXFileListImpl::getInstance();
    const QSignalSpy spy(list, &PYXIFileList::si_fileCountChanged);
    const QStringList traces = tracesOf([] {
        put("C:\\logs\\a", "A");
        put("C:/logs/a", "A");
        put("C:/logs/a", "A", PYXIFileList::ekFT_BINARY);
        put("C:/logs/a", "B");
    });
    QCOMPARE(changes(spy), QStringList({"A 1", "A 2", "B 1"}));
    QCOMPARE(traces.size(), 3);
    QCOMPARE(traces[2], QString("Debug|PYXFileListImpl::registerFile(): componentName: B|"
                                "source\\PYXFileListImpl|74"));
    QCOMPARE(list->fileList()[0].filePath, QString("C:/logs/a"));
    QCOMPARE(list->fileList()[1].fileType, PYXIFileList::ekFT_BINARY);
    // A name out of the list itself, whose records go.
    list->clear(list->fileList()[0].componentName);
    list->clear("nobody");
    QCOMPARE(changes(spy).mid(3), QStringList({"A 0", "nobody 0"}));
    QCOMPARE(list->fileList().size(), 1);
    QCOMPARE(list->fileCount("A"), 0);
    QCOMPARE(list->fileCount("B"), 1);
}

void tst_PYXFileListImpl::takesTimesFromCallerOrFile()
{
    QTemporaryFile file;
    QVERIFY(file.open());
    const QDateTime start(QDate(2018, 3, 1), QTime(13, 0, 5), Qt::OffsetFromUTC, 3600);
    const QDateTime written(QDate(2020, 1, 1), QTime(), Qt::UTC);
    QVERIFY(file.setFileTime(written, QFileDevice::FileModificationTime));
    auto *const list = PYXFileListImpl::getInstance();
    list->registerFile(file.fileName(), PYXIFileList::ekFT_TEXT, "given", start, start.addSecs(1));
    list->registerFile(file.fileName(), PYXIFileList::ekFT_TEXT, "half given", start, {});
    put("/no/such/file", "missing");
    const auto &files = list->fileList();
    QCOMPARE(files[0].startDateTime.toString(Qt::ISODate), QString("2018-03-01T12:00:05Z"));
    QCOMPARE(files[0].endDateTime, start.addSecs(1));
    QCOMPARE(files[1].startDateTime, QFileInfo(file.fileName()).birthTime().toUTC());
    QCOMPARE(files[1].endDateTime.toString(Qt::ISODate), QString("2020-01-01T00:00:00Z"));
    QVERIFY(!files[2].startDateTime.isValid() && !files[2].endDateTime.isValid());
}

void tst_PYXFileListImpl::dropsTheOldestOfAThousand()
{
    auto *const list = PYXFileListImpl::getInstance();
    put("/only", "O");
    for (int i = 1; i < 1000; ++i)
        put("/a/" + QString::number(i), "A");
    const QSignalSpy spy(list, &PYXIFileList::si_fileCountChanged);
    put("/b", "B");
    put("/b2", "B");
    QCOMPARE(changes(spy), QStringList({"O 0", "B 1", "A 998", "B 2"}));
    QCOMPARE(list->fileList().size(), 1000);
    QCOMPARE(list->fileList().first().filePath, QString("/a/2"));
}

void tst_PYXFileListImpl::survivesListenersThatChangeIt()
{
    auto *const list = PYXFileListImpl::getInstance();
    for (int i = 0; i < 1000; ++i)
        put("/a/" + QString::number(i), "A");
    const auto connection =
        connect(list, &PYXIFileList::si_fileCountChanged, this, [](const QString &, int count) {
            if (count == 999)
                put("/b", "B");
        });
    put("/b", "B");
    QCOMPARE(list->fileList().size(), 1000);
    QCOMPARE(list->fileCount("B"), 1);
    disconnect(connection);
    connect(list, &PYXIFileList::si_fileCountChanged, this, [] { PYXFileListImpl::destroyInstance(); });
    put("/c", "C");
    QVERIFY(!PYXFileListImpl::hasInstance());
    const ActingTracer again([] { put("/d", "D"); });
    put("/d", "D");
    QCOMPARE(PYXFileListImpl::getInstance()->fileList().size(), 1);
    const ActingTracer tracer([] { PYXFileListImpl::destroyInstance(); });
    put("/e", "E");
    QVERIFY(!PYXFileListImpl::hasInstance());
}

QTEST_GUILESS_MAIN(tst_PYXFileListImpl)
#include "tst_PYXFileListImpl.moc"
