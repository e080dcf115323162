// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "FileContents.h"
#include "InstanceLock.h"

#include <QtTest/QtTest>

using PYXRuntime::InstanceLock;

class tst_InstanceLock : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void belongsToOneAtATime();
    void frees();
    void tellsWhereItCannotBe();
};

void tst_InstanceLock::belongsToOneAtATime()
{
    const QTemporaryDir directory;
    auto first = std::make_unique<InstanceLock>(directory.filePath("x"));
    InstanceLock second(directory.filePath("x"));
    QVERIFY(first->tryLock());
    QVERIFY(first->tryLock());
    // Longer than the patience with a lock that nobody holds.
    QElapsedTimer timer;
    for (timer.start(); timer.elapsed() < 700;)
        QVERIFY(!second.tryLock());
    QVERIFY(!second.cannotBeLocked());
    first.reset();
    QVERIFY(second.tryLock());
}

void tst_InstanceLock::frees()
{
    const QTemporaryDir directory;
    const QString path = directory.filePath("x.lock");
    QByteArray content;
    {
        // With the number of this process, which does not hold it: of a process whose number another one has.
        QLockFile lock(path);
        QVERIFY(lock.tryLock());
        content = get(path);
        QVERIFY(content.contains(QByteArray::number(QCoreApplication::applicationPid())));
    }
    for (const QByteArray &left : {content, QByteArray()}) { // and of one that was killed before it wrote
        put(path, left);
        InstanceLock lock(directory.filePath("x"));
        QTRY_VERIFY(lock.tryLock());
    }
}

void tst_InstanceLock::tellsWhereItCannotBe()
{
    const QTemporaryDir directory;
    InstanceLock lock(directory.filePath("missing/x"));
    QVERIFY(!lock.tryLock());
    QVERIFY(lock.cannotBeLocked());
}

QTEST_GUILESS_MAIN(tst_InstanceLock)
#include "tst_InstanceLock.moc"
