// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXSettingsWatcher.h"

#include "ChildProcess.h"
#include "PYXSettings.h"
#include "SettingsHome.h"

#include <QtTest/QtTest>

using PYXRuntime::PYXSettings;
using PYXRuntime::PYXSettingsWatcher;

class tst_PYXSettingsWatcher : public QObject
{
    Q_OBJECT
private slots:
    void init() { m_home.reset(new SettingsHome); }
    void everyForeignChangeIsTold();
    void ownChangesAreNotTold();
    void aChangeThatAnotherObjectHasReadIsTold();
    void aStoreMayAppearAndGo();

private:
    /** @return whether another process has done it. */
    static bool elsewhere(const QString &file, const QStringList &words)
    {
        const ChildResult child =
            runChild(QCoreApplication::applicationDirPath() + "/storewriter", QStringList(file) + words);
        return child.bFinished && child.exitCode == 0;
    }
    /** The keys of the next signal. */
    static QStringList next(QSignalSpy &spy)
    {
        if (spy.isEmpty() && !spy.wait(10'000))
            return {"nothing was told"};
        return spy.takeFirst().first().toStringList();
    }

    QScopedPointer<SettingsHome> m_home;
};

void tst_PYXSettingsWatcher::everyForeignChangeIsTold()
{
    PYXSettings settings(PYXSettings::eUserSharedSettings);
    settings.setValue("A", 1);
    settings.setValue("Group/B", QStringList("one"));
    settings.sync();
    const PYXSettingsWatcher watcher(settings);
    QCOMPARE(watcher.fileName(), settings.fileName());
    QSignalSpy spy(&watcher, &PYXSettingsWatcher::si_changed);
    QVERIFY(elsewhere(watcher.fileName(), {"set", "A", "2", "C", "3"}));
    QCOMPARE(next(spy), QStringList({"A", "C"}));
    QCOMPARE(settings.intValue("A"), 2);
    // The file has been replaced: the watch must have come with it.
    QVERIFY(elsewhere(watcher.fileName(), {"remove", "Group"}));
    QCOMPARE(next(spy), QStringList("Group/B"));
    QVERIFY(elsewhere(watcher.fileName(), {"set", "A", "4"}));
    QCOMPARE(next(spy), QStringList("A"));
    QVERIFY(spy.isEmpty());
}

void tst_PYXSettingsWatcher::ownChangesAreNotTold()
{
    PYXSettings settings(PYXSettings::eUserSharedSettings);
    const PYXSettingsWatcher watcher(settings);
    QSignalSpy spy(&watcher, &PYXSettingsWatcher::si_changed);
    settings.setValue("Own/Number", 1.5);
    settings.setValue("Own/List", QStringList("one")); // reads as a text
    settings.setValue("Own/Point", QPoint(1, 2));
    settings.sync();
    QVERIFY(elsewhere(watcher.fileName(), {"set", "Foreign", "1"}));
    settings.setValue("Own/Second", 2);
    settings.sync(); // writes one's own and takes over the other's
    QCOMPARE(next(spy), QStringList("Foreign"));
    QVERIFY(elsewhere(watcher.fileName(), {"set", "Last", "1"}));
    QCOMPARE(next(spy), QStringList("Last"));
}

void tst_PYXSettingsWatcher::aChangeThatAnotherObjectHasReadIsTold()
{
    const PYXSettingsWatcher watcher(m_home->path("store.PYXXml"));
    QSignalSpy spy(&watcher, &PYXSettingsWatcher::si_changed);
    QVERIFY(elsewhere(watcher.fileName(), {"set", "A", "1"}));
    QCOMPARE(PYXSettings(watcher.fileName()).intValue("A"), 1);
    QCOMPARE(next(spy), QStringList("A"));
}

void tst_PYXSettingsWatcher::aStoreMayAppearAndGo()
{
    const PYXSettingsWatcher watcher(m_home->path("not/yet/there/store.PYXXml"));
    QSignalSpy spy(&watcher, &PYXSettingsWatcher::si_changed);
    QVERIFY(elsewhere(watcher.fileName(), {"set", "A", "1"}));
    QCOMPARE(next(spy), QStringList("A"));
    // Windows keeps a directory that is watched.
    if (QSysInfo::kernelType() == "winnt")
        QVERIFY(QFile::remove(watcher.fileName()));
    else
        QVERIFY(QDir(m_home->path("not")).removeRecursively());
    QCOMPARE(next(spy), QStringList("A"));
    QVERIFY(!PYXSettings(watcher.fileName()).contains("A"));
    QVERIFY(elsewhere(watcher.fileName(), {"set", "B", "1"}));
    QCOMPARE(next(spy), QStringList("B"));
}

QTEST_GUILESS_MAIN(tst_PYXSettingsWatcher)
#include "tst_PYXSettingsWatcher.moc"
