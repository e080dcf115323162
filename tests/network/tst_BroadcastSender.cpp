// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "BroadcastSender.h"
#include "RecordingTracer.h"

#include <QtTest/QtTest>

using PYXRuntime::BroadcastSender;

namespace {

// No host's own address: nothing goes out. What does go out is tested between two hosts.
const QList<QHostAddress> Elsewhere = {QHostAddress("203.0.113.77"), QHostAddress("::1")};

QList<QAbstractEventDispatcher::TimerInfo> timersOf(BroadcastSender &sender)
{
    return QAbstractEventDispatcher::instance()->registeredTimers(&sender);
}

} // namespace

class tst_BroadcastSender : public QObject
{
    Q_OBJECT
private slots:
    void intervals_data();
    void intervals();
    void tracesOfStartAndStop();
    void addressesOfOthersSendNothing();
};

void tst_BroadcastSender::intervals_data()
{
    QTest::addColumn<int>("given");
    QTest::addColumn<int>("used");
    QTest::newRow("0") << 0 << 5000;
    QTest::newRow("-1") << -1 << 5000;
    QTest::newRow("1") << 1 << 1;
    QTest::newRow("700") << 700 << 700;
}

void tst_BroadcastSender::intervals()
{
    QFETCH(int, given);
    BroadcastSender sender;
    const QStringList traces = tracesOf([&] { sender.start("%1 h\xe9", 45454, given, Elsewhere); });
    QCOMPARE(traces.size(), 1);
    QVERIFY2(traces.first().startsWith(QString::fromUtf8("Debug|starting broadcast [%1 hé]@") +
                                       QString::number(given) + "ms|source\\BroadcastSender|"),
             qPrintable(traces.first()));
    QCOMPARE(timersOf(sender).size(), 1);
    QTEST(timersOf(sender).first().interval, "used");
}

void tst_BroadcastSender::tracesOfStartAndStop()
{
    BroadcastSender sender;
    QVERIFY(tracesOf([&] { sender.stop(); }).isEmpty());
    sender.start("one", 45454, 1000, Elsewhere);
    const QStringList traces = tracesOf([&] { sender.start("two", 45454, 2000, Elsewhere); });
    QCOMPARE(traces.size(), 2);
    QVERIFY(traces.first().startsWith("Debug|stopping broadcast server|source\\BroadcastSender|"));
    QCOMPARE(timersOf(sender).size(), 1);
    QCOMPARE(timersOf(sender).first().timerType, Qt::CoarseTimer);
    sender.stop();
    QVERIFY(!sender.isRunning());
    QVERIFY(timersOf(sender).isEmpty());
    QVERIFY(tracesOf([&] { sender.stop(); }).isEmpty());
}

void tst_BroadcastSender::addressesOfOthersSendNothing()
{
    BroadcastSender sender;
    sender.start("one", 45454, 1000, Elsewhere);
    sender.start(QByteArray(), 45454, 1000, {}); // nothing to send, whatever the networks
    QTimerEvent foreign(-7);
    QCoreApplication::sendEvent(&sender, &foreign);
    QVERIFY(!foreign.isAccepted());
    QCOMPARE(sender.sentCount() + sender.failedCount() + sender.sentBytes(), quint64(0));
}

QTEST_GUILESS_MAIN(tst_BroadcastSender)
#include "tst_BroadcastSender.moc"
