// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "FileContents.h"
#include "PYXSettings.h"
#include "PYXTraceWrapper.h"
#include "RecordingTracer.h"
#include "SettingsHome.h"

#include <QtTest/QtTest>

#include <memory>
#include <vector>

using PYXRuntime::PYXSettings;
using PYXRuntime::PYXTraceWrapper;

/** What stores go through: other writers, writers that die, directories that cannot be written. */
class tst_StoreDurability : public QObject
{
    Q_OBJECT
private slots:
    void init() { PYXTraceWrapper::addTracer(&m_tracer); }
    void cleanup()
    {
        PYXTraceWrapper::removeTracer(&m_tracer);
        m_tracer.calls.clear();
    }
    void fourProcessesKeepAllKeys();
    void aFileThatLooksTheSameIsReadAgain();
    void aFileReplacedWhileItIsReadIsReadAgain();
    void aKilledWriterLeavesAWholeFile();
    void aLockThatNamesNobodyIsRemoved();
    void aVanishedDirectoryIsMadeAgain();
    void aStoreThatCannotBeWrittenIsToldOnce();

private:
    static void replaceKeepingTime(const QString &file, const QByteArray &before, const QByteArray &after,
                                   const QDateTime &time)
    {
        QSaveFile replacement(file);
        QVERIFY(replacement.open(QIODevice::WriteOnly));
        replacement.write(get(file).replace(before, after));
        QVERIFY(replacement.commit());
        QFile replaced(file);
        QVERIFY(replaced.open(QIODevice::ReadWrite));
        QVERIFY(replaced.setFileTime(time, QFileDevice::FileModificationTime));
    }
    static QString writer() { return QCoreApplication::applicationDirPath() + "/storewriter"; }
    static QSettings::Status save(const QString &file, int value)
    {
        PYXSettings settings(file);
        settings.setValue("Key", value);
        settings.sync();
        return settings.status();
    }

    SettingsHome m_home;
    RecordingTracer m_tracer;
};

void tst_StoreDurability::fourProcessesKeepAllKeys()
{
    constexpr int Processes = 4;
    constexpr int KeysOfEach = 500;
    const QString file = m_home.path("contended.PYXXml");
    std::vector<std::unique_ptr<QProcess>> writers;
    for (int i = 0; i < Processes; ++i) {
        writers.push_back(std::make_unique<QProcess>());
        writers.back()->start(writer(),
                              {file, "many", QString("Process%1").arg(i), QString::number(KeysOfEach)});
    }
    for (const auto &process : writers) {
        QVERIFY(process->waitForFinished(60'000));
        QCOMPARE(process->exitCode(), 0);
    }
    const PYXSettings settings(file);
    QStringList missing;
    for (int i = 0; i < Processes; ++i) {
        for (int key = 1; key <= KeysOfEach; ++key) {
            if (settings.intValue(QString("Process%1/%2").arg(i).arg(key)) != key)
                missing.append(QString("%1/%2").arg(i).arg(key));
        }
    }
    QVERIFY2(missing.isEmpty(), qPrintable(missing.join(' ')));
    QCOMPARE(settings.status(), QSettings::NoError);
}

/** As another process does it; the new file has the size and the time of the old one. */
void tst_StoreDurability::aFileThatLooksTheSameIsReadAgain()
{
    const QString file = m_home.path("counter.PYXXml");
    PYXSettings settings(file);
    settings.setValue("Counter", 1);
    settings.sync();
    const QDateTime time = QFileInfo(file).lastModified();
    replaceKeepingTime(file, "<value>1", "<value>2", time);
    settings.setValue("Own", 1);
    settings.sync();
    QCOMPARE(settings.status(), QSettings::NoError);
    QCOMPARE(settings.intValue("Counter"), 2);
    QCOMPARE(PYXSettings(file).intValue("Own"), 1);
}

/** QSettings looks at the time of the file only when it has read it, by when another one may be there. */
void tst_StoreDurability::aFileReplacedWhileItIsReadIsReadAgain()
{
    static QString file;
    static int otherResult = -1;
    file = m_home.path("replaced.PYXXml");
    put(file, "<pyxxmlsettings version='1.0'><odd/></pyxxmlsettings>");
    const auto old = qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {
        otherResult = QProcess::execute(writer(), {file, "set", "Other", "1"});
    });
    PYXSettings settings(file); // warns of the odd element while it reads
    qInstallMessageHandler(old);
    settings.setValue("Own", 1);
    settings.sync();
    QCOMPARE(settings.status(), QSettings::NoError);
    // Windows does not let an open file be replaced: the other process is told so.
    const bool bOther = otherResult == 0 || QSysInfo::kernelType() != "winnt";
    QCOMPARE(settings.allKeys(), bOther ? QStringList({"Other", "Own"}) : QStringList("Own"));
}

void tst_StoreDurability::aKilledWriterLeavesAWholeFile()
{
    if (QSysInfo::kernelType() == "winnt")
        QSKIP("It takes minutes to start so many processes there");
    constexpr int Kills = 200;
    constexpr int LatestMs = 20;
    const QString file = m_home.path("torn.PYXXml");
    auto *const random = QRandomGenerator::global();
    int last = 0;
    for (int i = 0; i < Kills; ++i) {
        QProcess process;
        process.start(writer(), {file, "forever"});
        QVERIFY(process.waitForReadyRead(60'000)); // it has saved once
        QVERIFY(!process.waitForFinished(random->bounded(LatestMs)));
        process.kill();
        QVERIFY(process.waitForFinished(60'000));
        // Under another name: this process would take what it remembers for a file of the same size and time.
        const QString copy = m_home.path(QString("copy%1").arg(i));
        QVERIFY(QFile::copy(file, copy));
        const PYXSettings settings(copy);
        QCOMPARE(settings.status(), QSettings::NoError);
        const int generation = settings.intValue("Key0");
        for (int key = 0; key < 100; ++key)
            QCOMPARE(settings.value(QString("Key%1").arg(key)), QVariant(QString::number(generation)));
        QVERIFY2(generation > last, "what was saved has gone");
        last = generation;
    }
}

/** As a process leaves it that is killed at an unlucky moment. */
void tst_StoreDurability::aLockThatNamesNobodyIsRemoved()
{
    const QString file = m_home.path("locked.PYXXml");
    put(file + ".lock", {});
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(save(file, 1), QSettings::NoError);
    QVERIFY(timer.elapsed() < 15'000); // by itself, the lock lasts for half a minute
    QVERIFY(!QFile::exists(file + ".lock"));
}

void tst_StoreDurability::aVanishedDirectoryIsMadeAgain()
{
    const QString file = m_home.path("vanishing/store.PYXXml");
    PYXSettings settings(file);
    settings.setValue("Before", 1);
    settings.sync();
    QVERIFY(QDir(m_home.path("vanishing")).removeRecursively());
    settings.setValue("After", 2);
    settings.sync();
    QCOMPARE(settings.status(), QSettings::NoError);
    QVERIFY(QFile::exists(file));
    QCOMPARE(m_tracer.calls, QStringList());
}

void tst_StoreDurability::aStoreThatCannotBeWrittenIsToldOnce()
{
    const QString file = m_home.path("blocked/store.PYXXml");
    const QString wall = m_home.path("blocked"); // where the directory should be
    put(wall, {});
    for (int value = 0; value < 3; ++value)
        QCOMPARE(save(file, value), QSettings::AccessError);
    PYXSettings(file).setValue("Key", 4); // saved as it goes
    QCOMPARE(m_tracer.calls.size(), 1);
    QVERIFY2(m_tracer.calls.first().startsWith("Warn|The settings file \"" + file +
                                               "\" cannot be written; its changes are not saved.|"
                                               "source\\PYXSettings|"),
             qPrintable(m_tracer.calls.first()));
    QVERIFY(QFile::remove(wall));
    QCOMPARE(save(file, 5), QSettings::NoError);
    QCOMPARE(PYXSettings(file).intValue("Key"), 5);
    QVERIFY(QDir(wall).removeRecursively());
    put(wall, {});
    QCOMPARE(save(file, 6), QSettings::AccessError);
    QCOMPARE(m_tracer.calls.size(), 2); // it had been good in between
}

QTEST_GUILESS_MAIN(tst_StoreDurability)
#include "tst_StoreDurability.moc"
