// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "FileContents.h"
#include "PYXRuntime.h"
#include "PYXSettings.h"
#include "PYXThisRunOnlySettings.h"
#include "PYXXmlSettings.h"
#include "RecordingTracer.h"
#include "SettingsHome.h"

#include <QtTest/QtTest>

using PYXRuntime::PYXSettings;
using PYXRuntime::PYXThisRunOnlySettings;

class tst_PYXThisRunOnlySettings : public QObject
{
    Q_OBJECT
private slots:
    void cleanup() { PYXThisRunOnlySettings::destroyInstance(); }
    void formatIsInvalidBeforeTheLibraryStarts(); // the first: a format stays registered
    void filesLiveFromStartToStopInEveryRound();
    void aFileThatCannotBeRemovedIsToldOnce();
    void onlyFilesAreTakenAndNotAfterTheEnd();
    void aDamagedFileLeavesNoCopy();
};

void tst_PYXThisRunOnlySettings::formatIsInvalidBeforeTheLibraryStarts()
{
    QCOMPARE(PYXThisRunOnlySettings::format(), QSettings::InvalidFormat);
    QVERIFY(!PYXThisRunOnlySettings::hasInstance());
    QCOMPARE(tracesOf(PYXThisRunOnlySettings::destroyInstance), QStringList());
}

void tst_PYXThisRunOnlySettings::filesLiveFromStartToStopInEveryRound()
{
    const SettingsHome home;
    QSettings::Format format = QSettings::InvalidFormat;
    for (int round = 0; round < 2; ++round) {
        QVERIFY(PYXRuntime::initialize_PYXRuntime(PYXRuntime::ekInitialize_NoFonts));
        if (round > 0)
            QCOMPARE(PYXThisRunOnlySettings::format(), format);
        format = PYXThisRunOnlySettings::format();
        home.hold(format);
        for (int store = 0; store < 4; ++store) {
            PYXSettings settings{PYXSettings::eThisRunOnlySettings(store)};
            settings.setFallbacksEnabled(false);
            QVERIFY2(!settings.contains("Group/Key"), "left from the round before");
            settings.setValue("Group/Key", store);
        }
        QCOMPARE(home.files(),
                 QStringList(
                     {"system/Organisation/Application.PYXTRO", "system/Organisation/SharedSettings.PYXTRO",
                      "user/Organisation/Application.PYXTRO", "user/Organisation/SharedSettings.PYXTRO"}));
        QString version;
        QVERIFY(PYXRuntime::PYXXmlSettings::isPYXXmlSettingsFile(
            home.path("user/Organisation/Application.PYXTRO"), version));
        QCOMPARE(PYXSettings(PYXSettings::eThisRunOnlyDefaultShared).intValue("Group/Key"), 3);
        PYXRuntime::uninitialize_PYXRuntime();
        QVERIFY(!PYXThisRunOnlySettings::hasInstance());
        QCOMPARE(home.files(), QStringList());
    }
}

void tst_PYXThisRunOnlySettings::aFileThatCannotBeRemovedIsToldOnce()
{
    const SettingsHome home;
    PYXThisRunOnlySettings::makeSureInitialized();
    home.hold(PYXThisRunOnlySettings::format());
    QString stubborn;
    {
        PYXSettings one(PYXSettings::eThisRunOnlyUserApplication);
        one.setValue("One", 1);
        one.sync();
        PYXSettings two(PYXSettings::eThisRunOnlyUserApplication);
        two.setValue("Two", 2);
        PYXSettings(PYXSettings::eThisRunOnlyUserShared).setValue("Three", 3);
        stubborn = one.fileName();
    }
    QVERIFY(QFile::remove(stubborn));
    QVERIFY(QDir().mkdir(stubborn)); // no file any more
    const QStringList traces = tracesOf([] {
        PYXThisRunOnlySettings::destroyInstance();
        PYXThisRunOnlySettings::makeSureInitialized();
        PYXThisRunOnlySettings::destroyInstance(); // it was forgotten
    });
    QCOMPARE(traces.size(), 1);
    QVERIFY2(traces.first().startsWith("Info|Failed to remove 'this run only' settings file: " + stubborn +
                                       "|source\\PYXThisRunOnlySettings|"),
             qPrintable(traces.first()));
    QCOMPARE(home.files(), QStringList());
}

void tst_PYXThisRunOnlySettings::onlyFilesAreTakenAndNotAfterTheEnd()
{
    const SettingsHome home;
    PYXThisRunOnlySettings::makeSureInitialized();
    QBuffer buffer;
    QVERIFY(buffer.open(QIODevice::ReadWrite));
    QSettings::SettingsMap map{{"Key", 1}};
    QVERIFY(!PYXThisRunOnlySettings::writeSettings(buffer, map));
    QCOMPARE(buffer.size(), 0);
    QVERIFY(!PYXThisRunOnlySettings::readSettings(buffer, map));
    QTemporaryFile nameless; // no name before it is opened
    QVERIFY(!PYXThisRunOnlySettings::readSettings(nameless, map));
    home.hold(PYXThisRunOnlySettings::format());
    PYXSettings late(PYXSettings::eThisRunOnlyUserApplication);
    late.setValue("Key", 1);
    PYXThisRunOnlySettings::destroyInstance();
    late.sync();
    QCOMPARE(late.status(), QSettings::AccessError);
    QCOMPARE(home.files(), QStringList());
}

void tst_PYXThisRunOnlySettings::aDamagedFileLeavesNoCopy()
{
    const SettingsHome home;
    PYXThisRunOnlySettings::makeSureInitialized();
    home.hold(PYXThisRunOnlySettings::format());
    QVERIFY(QDir().mkpath(home.path("user/Organisation")));
    put(home.path("user/Organisation/Application.PYXTRO"), "<pyxxmlsettings><entry>");
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("error setting content"));
    QCOMPARE(PYXSettings(PYXSettings::eThisRunOnlyUserApplication).status(), QSettings::FormatError);
    PYXThisRunOnlySettings::destroyInstance();
    QCOMPARE(home.files(), QStringList());
}

QTEST_MAIN(tst_PYXThisRunOnlySettings)
#include "tst_PYXThisRunOnlySettings.moc"
