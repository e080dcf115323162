// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXSettings.h"
#include "RecordingTracer.h"
#include "SettingsHome.h"

#include <QtTest/QtTest>

#include <sys/fsuid.h>
#include <unistd.h>

using PYXRuntime::PYXSettings;

namespace {

/** Permissions do not bind root: while this lives, files are seen as somebody else would see them. */
class CommonUser
{
public:
    CommonUser() { setfsuid(Nobody); }
    ~CommonUser() { setfsuid(geteuid()); }
    Q_DISABLE_COPY(CommonUser)

private:
    static constexpr uid_t Nobody = 65534;
};

constexpr auto NobodyWrites = QFile::Permissions(0x5555); // reading and entering for all
constexpr auto EverybodyReads = NobodyWrites | QFile::WriteOwner;

} // namespace

/** A store in a directory that only lets read, as an application without rights meets it. */
class tst_ReadOnlyStore : public QObject
{
    Q_OBJECT
private slots:
    void statusAndTraceTellAndTheOldFileStays();
};

void tst_ReadOnlyStore::statusAndTraceTellAndTheOldFileStays()
{
    for (const bool bOld : {false, true}) {
        const SettingsHome home;
        const QString directory = home.path("readonly");
        const QString file = directory + "/store.PYXXml";
        QVERIFY(QDir().mkpath(directory));
        if (bOld)
            PYXSettings(file).setValue("Key", 1);
        QVERIFY(QFile::setPermissions(home.path("."), EverybodyReads));
        QVERIFY(QFile::setPermissions(directory, NobodyWrites));
        QSettings::Status status = QSettings::NoError;
        int read = 0;
        const QStringList traces = tracesOf([&] {
            const CommonUser user;
            PYXSettings settings(file);
            read = settings.intValue("Key");
            settings.setValue("Key", 2);
            QCoreApplication::sendPostedEvents(&settings);
            status = settings.status();
            PYXSettings(file).setValue("Other", 3);
        });
        QVERIFY(QFile::setPermissions(directory, EverybodyReads));
        QCOMPARE(status, QSettings::AccessError);
        QCOMPARE(read, bOld ? 1 : 0);
        QCOMPARE(traces.filter("cannot be written").size(), 1);
        QCOMPARE(home.files(), bOld ? QStringList("readonly/store.PYXXml") : QStringList());
    }
}

QTEST_GUILESS_MAIN(tst_ReadOnlyStore)
#include "tst_ReadOnlyStore.moc"
