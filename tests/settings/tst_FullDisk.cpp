// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later

// What a full disk does to settings, on a small file system of the test's own.

#include "PYXXmlSettings.h"
#include "WarningRecorder.h"

#include <QtTest/QtTest>

#include <sys/mount.h>
#include <unistd.h>

using namespace PYXRuntime;

namespace {

constexpr int PageSize = 4096;

QByteArray get(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/** Takes what is free but some bytes. */
void fillDisk(const QString &directory, qint64 left)
{
    QFile filler(directory + "/filler");
    QVERIFY(filler.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    while (filler.write(QByteArray(PageSize, 'x')) == PageSize) {
    }
    QVERIFY(filler.resize(qMax<qint64>(0, filler.size() - left)));
}

} // namespace

class tst_FullDisk : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void cleanupTestCase();
    void keepsTheOldFileAndTells_data();
    void keepsTheOldFileAndTells();

private:
    QTemporaryDir m_mountPoint;
    bool m_bMounted = false;
};

void tst_FullDisk::initTestCase()
{
    if (geteuid() != 0)
        QSKIP("only root may mount the small file system");
    const QByteArray path = QFile::encodeName(m_mountPoint.path());
    if (mount("tmpfs", path.constData(), "tmpfs", 0, "size=2m") != 0)
        QSKIP("the small file system cannot be mounted here");
    m_bMounted = true;
}

void tst_FullDisk::cleanup()
{
    QFile::remove(m_mountPoint.filePath("filler"));
    QFile::remove(m_mountPoint.filePath("store"));
}

void tst_FullDisk::cleanupTestCase()
{
    if (m_bMounted)
        QCOMPARE(umount(QFile::encodeName(m_mountPoint.path()).constData()), 0);
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
    const QString path = m_mountPoint.filePath("store");
    {
        QSettings settings(path, PYXXmlSettings::format());
        for (int i = 0; i < keys; ++i)
            settings.setValue(QString("Group%1/Key%2").arg(i / 20).arg(i % 20), QString("value %1").arg(i));
    }
    const QByteArray before = get(path);
    QVERIFY(before.size() > keys * 50);
    fillDisk(m_mountPoint.path(), left);

    QSettings settings(path, PYXXmlSettings::format());
    settings.setValue("Group1/Key1", "changed");
    settings.sync();
    QCOMPARE(settings.status(), QSettings::AccessError);
    QCOMPARE(get(path), before);

    // Nothing is lost either: with room again the change is saved.
    QVERIFY(QFile::remove(m_mountPoint.filePath("filler")));
    settings.sync();
    QCOMPARE(QSettings(path, PYXXmlSettings::format()).value("Group1/Key1").toString(), QString("changed"));
    QVERIFY(get(path).contains("changed"));
    QCOMPARE(QDir(m_mountPoint.path()).entryList(QDir::Files), QStringList("store"));
}

QTEST_GUILESS_MAIN(tst_FullDisk)
#include "tst_FullDisk.moc"
