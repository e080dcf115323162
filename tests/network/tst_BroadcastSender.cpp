// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "BroadcastSender.h"
#include "RecordingTracer.h"

#include <QtTest/QtTest>

using PYXRuntime::BroadcastSender;

/** With addresses that are no host's own, so that nothing goes out. What does is tested between two hosts. */
class tst_BroadcastSender : public QObject
{
    Q_OBJECT
private slots:
    void startAndStop_data();
    void startAndStop();
};

void tst_BroadcastSender::startAndStop_data()
{
    QTest::addColumn<int>("given");
    QTest::addColumn<int>("used");
    QTest::newRow("0") << 0 << 5000;
    QTest::newRow("-1") << -1 << 5000;
    QTest::newRow("1") << 1 << 1;
    QTest::newRow("700") << 700 << 700;
}

void tst_BroadcastSender::startAndStop()
{
    QFETCH(int, given);
    QFETCH(int, used);
    BroadcastSender sender;
    const auto timers = [&] { return QAbstractEventDispatcher::instance()->registeredTimers(&sender); };
    QVERIFY(tracesOf([&] { sender.stop(); }).isEmpty());
    const auto start = [&] {
        sender.start("%1 h\xe9", 45454, given, {QHostAddress("203.0.113.77"), QHostAddress("::1")});
    };
    const QString starting = QString::fromUtf8("Debug|starting broadcast [%1 hé]@") + QString::number(given) +
                             "ms|source\\BroadcastSender|";
    const QString stopping = "Debug|stopping broadcast server|source\\BroadcastSender|";
    QStringList traces = tracesOf(start);
    QVERIFY2(traces.size() == 1 && traces.first().startsWith(starting), qPrintable(traces.join('\n')));
    traces = tracesOf(start);
    QVERIFY(traces.size() == 2 && traces.at(0).startsWith(stopping) && traces.at(1).startsWith(starting));
    QCOMPARE(timers().size(), 1);
    QCOMPARE(timers().first().interval, used);
    QVERIFY(used < 20 || timers().first().timerType == Qt::CoarseTimer); // Qt makes short ones precise
    QTimerEvent foreign(-7);
    QCoreApplication::sendEvent(&sender, &foreign);
    QVERIFY(!foreign.isAccepted());
    QVERIFY(tracesOf([&] { sender.stop(); }).value(0).startsWith(stopping));
    QVERIFY(!sender.isRunning() && timers().isEmpty());
    QCOMPARE(sender.sentCount() + sender.failedCount() + sender.sentBytes(), quint64(0));
}

QTEST_GUILESS_MAIN(tst_BroadcastSender)
#include "tst_BroadcastSender.moc"
