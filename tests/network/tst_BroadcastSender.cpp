// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "BroadcastSender.h"
#include "RecordingTracer.h"

#include <QtNetwork/QUdpSocket>
#include <QtTest/QtTest>

using PYXRuntime::BroadcastSender;

/** With addresses that are no host's own, so that nothing goes out. What does is tested between two hosts. */
class tst_BroadcastSender : public QObject
{
    Q_OBJECT
private slots:
    void startAndStop();
};

void tst_BroadcastSender::startAndStop()
{
    BroadcastSender sender;
    const auto timers = [&] { return QAbstractEventDispatcher::instance()->registeredTimers(&sender); };
    QVERIFY(tracesOf([&] { sender.stop(); }).isEmpty());
    const QString stopping = "Debug|stopping broadcast server|source\\BroadcastSender|";
    for (const auto &[given, used] : {std::pair(0, 5000), {-1, 5000}, {1, 1}, {700, 700}}) {
        const QStringList traces = tracesOf([&sender, given = given] {
            const QList<QHostAddress> addresses = {QHostAddress("203.0.113.77"), QHostAddress("::1")};
            sender.start("%1 h\xe9", 45454, given, addresses);
            sender.start("%1 h\xe9", 45454, given, addresses);
            sender.stop();
        });
        const QString starting = QString::fromUtf8("Debug|starting broadcast [%1 hé]@") +
                                 QString::number(given) + "ms|source\\BroadcastSender|";
        QCOMPARE(traces.size(), 4);
        QVERIFY(traces.at(0).startsWith(starting) && traces.at(2).startsWith(starting));
        QVERIFY(traces.at(1).startsWith(stopping) && traces.at(3).startsWith(stopping));
        QVERIFY(!sender.isRunning() && timers().isEmpty());
        sender.start("x", 45454, given, {QHostAddress("203.0.113.77")});
        QCOMPARE(timers().size(), 1);
        QCOMPARE(timers().first().interval, used);
        QVERIFY(used < 20 || timers().first().timerType == Qt::CoarseTimer); // Qt makes short ones precise
        sender.stop();
    }
    const auto start = [&] { sender.start("x", 45454, 700, {QHostAddress("203.0.113.77")}); };
    for (const auto &meanwhile :
         {std::function<void()>(start), std::function<void()>([&] { sender.stop(); })}) {
        start();
        const ActingTracer tracer(meanwhile);
        start();
        QCOMPARE(timers().size(), 1);
        QCOMPARE(sender.findChildren<QUdpSocket *>().size(), 1);
    }
    auto *const deleted = new BroadcastSender;
    const ActingTracer tracer([&] { delete deleted; });
    deleted->start("x", 45454, 700, {QHostAddress("203.0.113.77")});
    QTimerEvent foreign(-7);
    QCoreApplication::sendEvent(&sender, &foreign);
    QVERIFY(!foreign.isAccepted());
    QCOMPARE(sender.sentCount() + sender.failedCount() + sender.sentBytes(), quint64(0));
}

QTEST_GUILESS_MAIN(tst_BroadcastSender)
#include "tst_BroadcastSender.moc"
