// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later

// What a full disk does to settings, on a small file system of the test's own.

#include "FileContents.h"
#include "PYXXmlSettings.h"
#include "SmallDisk.h"

#include <QtTest/QtTest>

using namespace PYXRuntime;

namespace {
constexpr int PageSize = 4096;
} // namespace

class tst_FullDisk : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void keepsTheOldFileAndTells_data();
    void keepsTheOldFileAndTells();

private:
    const SmallDisk m_disk;
};

void tst_FullDisk::initTestCase()
{
    if (!m_disk.isMounted())
        QSKIP("the small file system cannot be mounted; root may, on most systems");
}

void tst_FullDisk::keepsTheOldFileAndTells_data()
{
    QTest::addColumn<int>("keys");
    QTest::addColumn<int>("left");
    for (const int keys : {200, 1000, 2500}) {
        // With nothing left not even QSettings' lock file can be written; with more, a part of the new file
        // can.
        for (const int left : {0, PageSize, 3 * PageSize})
            QTest::addRow("%d keys, %d bytes left", keys, left) << keys << left;
    }
}

void tst_FullDisk::keepsTheOldFileAndTells()
{
    QFETCH(int, keys);
    QFETCH(int, left);
    m_disk.clear();
    const QString path = m_disk.path("store");
    {
        QSettings settings(path, PYXXmlSettings::format());
        for (int i = 0; i < keys; ++i)
            settings.setValue(QString("Group%1/Key%2").arg(i / 20).arg(i % 20), QString("value %1").arg(i));
    }
    const QByteArray before = get(path);
    QVERIFY(before.size() > keys * 50);
    m_disk.fill(left);

    QSettings settings(path, PYXXmlSettings::format());
    settings.setValue("Group1/Key1", "changed");
    settings.sync();
    QCOMPARE(settings.status(), QSettings::AccessError);
    QCOMPARE(get(path), before);

    // Nothing is lost either: with room again the change is saved.
    m_disk.makeRoom();
    settings.sync();
    QCOMPARE(QSettings(path, PYXXmlSettings::format()).value("Group1/Key1").toString(), QString("changed"));
    QVERIFY(get(path).contains("changed"));
    QCOMPARE(m_disk.files(), QStringList("store"));
}

QTEST_GUILESS_MAIN(tst_FullDisk)
#include "tst_FullDisk.moc"
