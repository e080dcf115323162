// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "BroadcastReceiver.h"

#include <QtNetwork/QUdpSocket>
#include <QtTest/QtTest>

#include <functional>

using PYXRuntime::BroadcastReceiver;
using PYXRuntime::IBroadcastParser;

namespace {

using Action = std::function<void()>;

/** All that waits, also the deletion of objects that an outer loop would delete later. */
void spin()
{
    for (int i = 0; i < 5; ++i)
        QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

/** Writes down what it gets in a list that all parsers share: "<name>:<datagram>". */
class Recorder : public IBroadcastParser
{
public:
    Recorder(const char *name, QByteArrayList *calls, Action action = {})
        : m_name(name)
        , m_calls(calls)
        , m_action(std::move(action))
    {}
    void parseBroadcastDatagram(const QByteArray &datagram, const QHostAddress &sender, quint16 port) override
    {
        *m_calls += m_name + ':' + datagram;
        lastSender = sender;
        lastPort = port;
        if (m_action)
            m_action();
    }
    QHostAddress lastSender;
    quint16 lastPort = 0;

private:
    QByteArray m_name;
    QByteArrayList *m_calls;
    Action m_action;
};

/** Found by Qt's interface id. */
class ObjectRecorder : public QObject, public Recorder
{
    Q_OBJECT
    Q_INTERFACES(PYXRuntime::IBroadcastParser)
public:
    using Recorder::Recorder;
};

/** An object that does not tell Qt of its interface. */
class SilentRecorder : public QObject, public Recorder
{
public:
    using Recorder::Recorder;
};

} // namespace

class tst_BroadcastReceiver : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void datagramsArriveWhole();
    void parsersAreCalledInOrderWhileTheyLive();
    void startAndStop();
    void parserChangesTheReceiver();
    void floodLeavesOtherEventsTheirTurn();

private:
    /** To the receiver, over loopback. */
    void send(const QByteArrayList &datagrams)
    {
        for (const QByteArray &datagram : datagrams)
            QCOMPARE(m_out.writeDatagram(datagram, QHostAddress(QHostAddress::LocalHost), m_receiver->port()),
                     qint64(datagram.size()));
    }

    QUdpSocket m_out;
    QPointer<BroadcastReceiver> m_receiver;
    QByteArrayList m_calls;
};

void tst_BroadcastReceiver::init()
{
    delete m_receiver;
    m_receiver = new BroadcastReceiver(this);
    m_calls.clear();
}

void tst_BroadcastReceiver::datagramsArriveWhole()
{
    Recorder parser("P", &m_calls);
    for (const int size : {0, 1, 500, 501, 2000, 65507}) {
        m_calls.clear();
        m_receiver->start(0, &parser);
        const QByteArray datagram(size, 'x');
        send({datagram, "short"});
        QTRY_COMPARE(m_calls.size(), 2);
        QCOMPARE(m_calls, QByteArrayList({"P:" + datagram, "P:short"}));
        QCOMPARE(parser.lastSender, QHostAddress(QHostAddress::LocalHost));
        QCOMPARE(parser.lastPort, m_receiver->port());
        QVERIFY(m_receiver->receivedCount() == 2 && m_receiver->receivedBytes() == quint64(size) + 5);
        QCOMPARE(m_receiver->failedCount(), quint64(0));
    }
}

void tst_BroadcastReceiver::parsersAreCalledInOrderWhileTheyLive()
{
    auto *victim = new ObjectRecorder("victim", &m_calls);
    SilentRecorder killer("killer", &m_calls, [&] { delete std::exchange(victim, nullptr); });
    Recorder last("last", &m_calls);
    m_receiver->start(0, {victim, nullptr, &killer, victim, &last});
    send({"1", "2"});
    QTRY_COMPARE(m_calls.size(), 5);
    QCOMPARE(m_calls, QByteArrayList({"victim:1", "killer:1", "last:1", "killer:2", "last:2"}));
}

void tst_BroadcastReceiver::startAndStop()
{
    Recorder first("first", &m_calls);
    Recorder second("second", &m_calls);
    m_receiver->start(0, &first);
    m_receiver->start(m_receiver->port(), &second);
    send({"1"});
    QTRY_COMPARE(m_calls, QByteArrayList{"second:1"});
    BroadcastReceiver other;
    other.start(m_receiver->port(), nullptr);
    QVERIFY(m_receiver->isListening() && other.isListening());
    m_receiver->stop();
    m_receiver->stop();
    QVERIFY(!m_receiver->isListening() && m_receiver->port() == 0);
    QCOMPARE(m_receiver->receivedCount(), quint64(1));
    QVERIFY(m_receiver->findChildren<QUdpSocket *>().isEmpty());
    QUdpSocket selfish;
    QVERIFY(selfish.bind(QHostAddress(QHostAddress::AnyIPv4), 0, QUdpSocket::DontShareAddress));
    other.start(selfish.localPort(), nullptr);
    QVERIFY(!other.isListening());
}

void tst_BroadcastReceiver::parserChangesTheReceiver()
{
    const std::pair<QString, QByteArrayList> changes[] = {
        {"stop", {"first:1"}},
        {"delete", {"first:1"}},
        {"start", {"first:1", "new:3"}},
        {"start, spin", {"first:1", "new:3"}},
        {"spin", {"first:1", "second:1", "first:2", "second:2", "first:3", "second:3"}},
        {"spin, stop", {"first:1"}}};
    for (const auto &change : changes) {
        init();
        const QString &what = change.first;
        Recorder newParser("new", &m_calls);
        bool bDone = false;
        Recorder first("first", &m_calls, [&] {
            if (std::exchange(bDone, true))
                return;
            if (what.startsWith("start"))
                m_receiver->start(m_receiver->port(), &newParser);
            if (!what.contains("stop") && what != "delete")
                send({"3"});
            if (what.contains("spin"))
                spin();
            if (what.contains("stop"))
                m_receiver->stop();
            if (what == "delete")
                delete m_receiver;
        });
        Recorder second("second", &m_calls);
        m_receiver->start(0, {&first, &second});
        send({"1", "2"});
        QTRY_COMPARE(m_calls.size(), change.second.size());
        spin(); // nothing more may come
        QCOMPARE(m_calls, change.second);
        QCOMPARE(m_receiver.isNull(), what == "delete");
        delete m_receiver; // before its parsers
    }
}

void tst_BroadcastReceiver::floodLeavesOtherEventsTheirTurn()
{
    // Each datagram makes the next one, so that there is always one pending: the flood ends by the timer
    // only.
    bool bFlooding = true;
    Recorder parser("P", &m_calls, [&] {
        m_calls.clear();
        if (bFlooding)
            send({"again"});
    });
    m_receiver->start(0, &parser);
    QTimer::singleShot(0, this, [&] { send({"first"}); });
    QTimer::singleShot(120, this, [&] { bFlooding = false; });
    QTRY_VERIFY(!bFlooding);
    QVERIFY(m_receiver->receivedCount() > 200);
}

QTEST_GUILESS_MAIN(tst_BroadcastReceiver)
#include "tst_BroadcastReceiver.moc"
