// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "AddressBook.h"

#include <QtTest/QtTest>

#include <atomic>
#include <thread>

using namespace PYXRuntime;
Q_DECLARE_METATYPE(QHostAddress)

namespace {

/** A host with these own addresses, each in its network: "10.0.0.1/24". */
struLocalNetwork networkOf(const QStringList &addresses)
{
    struLocalNetwork network;
    for (const QString &address : addresses) {
        const auto [subnet, prefixLength] = QHostAddress::parseSubnet(address);
        const QHostAddress ip(address.section('/', 0, 0));
        QHostAddress broadcast;
        if (ip.protocol() == QAbstractSocket::IPv4Protocol && prefixLength < 32)
            broadcast.setAddress(subnet.toIPv4Address() | (0xffffffffU >> prefixLength));
        network.addresses += {ip, prefixLength, broadcast};
    }
    return network;
}

QList<QHostAddress> addressList(const QStringList &texts)
{
    QList<QHostAddress> addresses;
    for (const QString &text : texts)
        addresses += QHostAddress(text);
    return addresses;
}

const QStringList Host = {"127.0.0.1/8", "10.0.0.1/24", "10.0.0.99/16", "fd00::1/64", "192.168.7.3/32"};

} // namespace

class tst_AddressBook : public QObject
{
    Q_OBJECT
private slots:
    void answersAboutAnAddress_data();
    void answersAboutAnAddress();
    void addressOfAPeer_data();
    void addressOfAPeer();
    void broadcastAddresses();
    void answersAreKeptUntilRefresh();
    void anyThreadMayAsk();
};

void tst_AddressBook::answersAboutAnAddress_data()
{
    QTest::addColumn<QHostAddress>("address");
    QTest::addColumn<bool>("own");
    QTest::addColumn<bool>("inSubnet");
    QTest::addColumn<QString>("ownForPeer");
    const auto row = [](const char *name, const QHostAddress &address, bool own, bool inSubnet,
                        const char *ownForPeer) {
        QTest::newRow(name) << address << own << inSubnet << QString(ownForPeer);
    };
    row("null", QHostAddress(), false, false, "");
    row("localhost", QHostAddress(QHostAddress::LocalHost), true, true, "127.0.0.1");
    row("localhost, IPv6", QHostAddress(QHostAddress::LocalHostIPv6), true, true, "::1");
    row("any", QHostAddress(QHostAddress::Any), false, true, "");
    row("any, IPv4", QHostAddress(QHostAddress::AnyIPv4), false, true, "");
    row("any, IPv6", QHostAddress(QHostAddress::AnyIPv6), false, true, "::1");
    row("broadcast", QHostAddress(QHostAddress::Broadcast), false, true, "127.0.0.1");
    row("own", QHostAddress("10.0.0.1"), true, true, "10.0.0.1");
    row("first of two networks", QHostAddress("10.0.0.200"), false, true, "10.0.0.1");
    row("second network", QHostAddress("10.0.1.200"), false, true, "10.0.0.99");
    row("network of one", QHostAddress("192.168.7.4"), false, false, "");
    row("IPv6 neighbour", QHostAddress("fd00::abcd"), false, true, "fd00::1");
    row("stranger", QHostAddress("8.8.8.8"), false, false, "");
}

void tst_AddressBook::answersAboutAnAddress()
{
    QFETCH(QHostAddress, address);
    QFETCH(QString, ownForPeer);
    AddressBook book([] { return networkOf(Host); }, [](const QHostAddress &) { return QHostAddress(); });
    for (int round = 0; round < 2; ++round) { // the second one is answered from the caches
        QTEST(book.isOwnAddress(address), "own");
        QTEST(book.belongsToALocalSubnet(address), "inSubnet");
        QCOMPARE(book.decideOwnAddressForPeer(address), QHostAddress(ownForPeer));
    }
}

void tst_AddressBook::addressOfAPeer_data()
{
    QTest::addColumn<QStringList>("candidates");
    QTest::addColumn<QString>("chosen");
    QTest::newRow("none") << QStringList() << "";
    QTest::newRow("loopback first") << QStringList{"10.0.0.7", "127.0.0.9"} << "127.0.0.9";
    QTest::newRow("loopback first, IPv6") << QStringList{"10.0.0.7", "::1"} << "::1";
    QTest::newRow("order of networks") << QStringList{"fd00::7", "10.0.9.9", "10.0.0.7"} << "10.0.0.7";
    QTest::newRow("order within a network") << QStringList{"8.8.8.8", "10.0.0.8", "10.0.0.7"} << "10.0.0.8";
    QTest::newRow("no network: the first") << QStringList{"", "8.8.8.8", "1.1.1.1"} << "8.8.8.8";
}

void tst_AddressBook::addressOfAPeer()
{
    QFETCH(QStringList, candidates);
    QFETCH(QString, chosen);
    AddressBook book([] { return networkOf(Host); });
    QCOMPARE(book.decidePeerAddress(addressList(candidates)), QHostAddress(chosen));
}

void tst_AddressBook::broadcastAddresses()
{
    const auto own = addressList({"10.0.0.99", "10.0.0.1", "1.2.3.4", "192.168.7.3", "fd00::1"});
    QCOMPARE(networkOf(Host).broadcastsOf(own).toList(), addressList({"10.0.0.255", "10.0.255.255"}));
}

void tst_AddressBook::answersAreKeptUntilRefresh()
{
    int reads = 0;
    QStringList host;
    QHostAddress route;
    std::function<void()> whileReading = [] {};
    AddressBook book(
        [&] {
            ++reads;
            struLocalNetwork network = networkOf(host);
            whileReading();
            return network;
        },
        [&](const QHostAddress &) { return route; });
    const QHostAddress neighbour("10.0.0.5");
    const QHostAddress stranger("8.8.8.8");
    QVERIFY(!book.belongsToALocalSubnet(neighbour));
    QVERIFY(book.decideOwnAddressForPeer(stranger).isNull());
    host = Host;
    QVERIFY(!book.belongsToALocalSubnet(neighbour) && !book.isOwnAddress(QHostAddress("10.0.0.1")));
    // A way is kept, none is not.
    route.setAddress("10.0.0.99");
    QCOMPARE(book.decideOwnAddressForPeer(stranger), QHostAddress("10.0.0.99"));
    route.clear();
    QCOMPARE(book.decideOwnAddressForPeer(stranger), QHostAddress("10.0.0.99"));
    QCOMPARE(reads, 1);
    // An answer that a refresh overtakes is given, not kept.
    book.refresh();
    host.clear();
    whileReading = [&] {
        if (host.isEmpty())
            book.refresh();
        host = Host;
    };
    QVERIFY(!book.belongsToALocalSubnet(neighbour));
    QVERIFY(book.belongsToALocalSubnet(neighbour));
    QCOMPARE(reads, 3);
}

void tst_AddressBook::anyThreadMayAsk()
{
    AddressBook book([] { return networkOf(Host); });
    std::atomic<int> wrong(0);
    const auto ask = [&] {
        for (quint32 i = 0; i < 400; ++i) {
            const QHostAddress neighbour(0x0a000000 + i % 256);
            wrong += !book.belongsToALocalSubnet(neighbour);
            wrong += book.belongsToALocalSubnet(QHostAddress(0x08080000 + i));
            wrong += book.decideOwnAddressForPeer(neighbour) != QHostAddress("10.0.0.1");
            wrong += book.decidePeerAddress({neighbour}) != neighbour;
        }
    };
    std::thread one(ask);
    std::thread two(ask);
    for (int i = 0; i < 50; ++i)
        book.refresh();
    one.join();
    two.join();
    QCOMPARE(wrong.load(), 0);
}

QTEST_GUILESS_MAIN(tst_AddressBook)
#include "tst_AddressBook.moc"
