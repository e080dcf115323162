// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "BlockDevices_unix.h"
#include "FileContents.h"

#include <QtTest/QtTest>

using PYXRuntime::Platform::isRemovableBlockDevice;

/** On a copy of what a system with a fixed disk and an encrypted stick tells of its devices. */
class tst_BlockDevices : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void removableDevices();

private:
    void addFile(const QString &path, const QByteArray &content)
    {
        QVERIFY(QDir().mkpath(QFileInfo(m_sys.filePath(path)).path()));
        put(m_sys.filePath(path), content);
    }
    void addLink(const QString &target, const QString &path)
    {
        QVERIFY(QDir().mkpath(QFileInfo(m_sys.filePath(path)).path()));
        QVERIFY(QFile::link(m_sys.filePath(target), m_sys.filePath(path)));
    }

    QTemporaryDir m_sys;
};

void tst_BlockDevices::initTestCase()
{
    addFile("devices/sda/removable", "0\n");
    addFile("devices/sda/sda1/partition", "1\n");
    addFile("devices/sdb/removable", "1\n");
    addFile("devices/sdb/sdb1/partition", "1\n");
    addFile("devices/dm-0/removable", "0\n");
    addFile("devices/dm-1/removable", "0\n");
    for (const char *device : {"sda", "sda/sda1", "sdb", "sdb/sdb1", "dm-0", "dm-1"})
        addLink(QString("devices/%1").arg(device), "class/block/" + QFileInfo(device).fileName());
    addLink("devices/sdb/sdb1", "devices/dm-0/slaves/sdb1");
    addLink("devices/dm-1", "devices/dm-1/slaves/dm-1"); // what must not happen must not hang
}

void tst_BlockDevices::removableDevices()
{
    const std::pair<const char *, bool> devices[] = {{"sda", false},  {"sda1", false}, {"sdb", true},
                                                     {"sdb1", true},  {"dm-0", true},  {"dm-1", false},
                                                     {"sdz1", false}, {"", false}};
    for (const auto &[device, bRemovable] : devices)
        QVERIFY2(isRemovableBlockDevice(device, m_sys.path()) == bRemovable, device);
}

QTEST_GUILESS_MAIN(tst_BlockDevices)
#include "tst_BlockDevices.moc"
