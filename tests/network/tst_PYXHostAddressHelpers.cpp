// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "AddressBook.h"
#include "PYXHostAddressHelpers.h"
#include "PYXNetworkEntry.h"

#include <QtNetwork/QNetworkProxyFactory>
#include <QtTest/QtTest>

#include <atomic>
#include <future>

using namespace PYXRuntime;
using Helpers = PYXHostAddressHelpers;

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

/** A factory that must not be asked. */
class ForbiddenFactory : public QNetworkProxyFactory
{
public:
    QList<QNetworkProxy> queryProxy(const QNetworkProxyQuery &) override
    {
        ++asked;
        return {QNetworkProxy::NoProxy};
    }
    static inline int asked = 0;
};

} // namespace

class tst_PYXHostAddressHelpers : public QObject
{
    Q_OBJECT
private slots:
    void answersAboutAnAddress();
    void addressesOfPeersAndNetworks();
    void answersAreKeptUntilRefresh();
    void anyThreadMayAsk();
    void thisHost();
    void routeIsFoundInAnyThreadWithoutTheProxy();
};

void tst_PYXHostAddressHelpers::answersAboutAnAddress()
{
    const struct
    {
        QHostAddress address;
        bool bOwn;
        bool bInSubnet;
        const char *ownForPeer;
    } rows[] = {{QHostAddress(), false, false, ""},
                {QHostAddress(QHostAddress::LocalHost), true, true, "127.0.0.1"},
                {QHostAddress(QHostAddress::LocalHostIPv6), true, true, "::1"},
                {QHostAddress(QHostAddress::Any), false, true, ""},
                {QHostAddress(QHostAddress::AnyIPv4), false, true, ""},
                {QHostAddress(QHostAddress::AnyIPv6), false, true, "::1"},
                {QHostAddress(QHostAddress::Broadcast), false, true, "127.0.0.1"},
                {QHostAddress("10.0.0.1"), true, true, "10.0.0.1"},
                {QHostAddress("10.0.0.200"), false, true, "10.0.0.1"}, // in two networks
                {QHostAddress("10.0.1.200"), false, true, "10.0.0.99"},
                {QHostAddress("192.168.7.4"), false, false, ""}, // beside a network of one
                {QHostAddress("fd00::abcd"), false, true, "fd00::1"},
                {QHostAddress("8.8.8.8"), false, false, ""}};
    for (const auto &row : rows) {
        AddressBook book([] { return networkOf(Host); }, [](const QHostAddress &) { return QHostAddress(); });
        for (int round = 0; round < 2; ++round) { // the second one is answered from the caches
            const QByteArray name = row.address.toString().toUtf8();
            QVERIFY2(book.isOwnAddress(row.address) == row.bOwn, name);
            QVERIFY2(book.belongsToALocalSubnet(row.address) == row.bInSubnet, name);
            QCOMPARE(book.decideOwnAddressForPeer(row.address), QHostAddress(row.ownForPeer));
        }
    }
}

void tst_PYXHostAddressHelpers::addressesOfPeersAndNetworks()
{
    AddressBook book([] { return networkOf(Host); });
    const std::pair<QStringList, const char *> choices[] = {
        {{}, ""},
        {{"10.0.0.7", "127.0.0.9"}, "127.0.0.9"}, // loopback first
        {{"10.0.0.7", "::1"}, "::1"},
        {{"fd00::7", "10.0.9.9", "10.0.0.7"}, "10.0.0.7"}, // the order of networks
        {{"8.8.8.8", "10.0.0.8", "10.0.0.7"}, "10.0.0.8"}, // within a network, that of candidates
        {{"", "8.8.8.8", "1.1.1.1"}, "8.8.8.8"}};          // in no network
    for (const auto &[candidates, chosen] : choices)
        QCOMPARE(book.decidePeerAddress(addressList(candidates)), QHostAddress(chosen));
    const auto own = addressList({"10.0.0.99", "10.0.0.1", "1.2.3.4", "192.168.7.3", "fd00::1"});
    QCOMPARE(networkOf(Host).broadcastsOf(own).toList(), addressList({"10.0.0.255", "10.0.255.255"}));
}

void tst_PYXHostAddressHelpers::answersAreKeptUntilRefresh()
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

void tst_PYXHostAddressHelpers::anyThreadMayAsk()
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
    auto one = std::async(std::launch::async, ask);
    auto two = std::async(std::launch::async, ask);
    for (int i = 0; i < 50; ++i)
        book.refresh();
    one.get();
    two.get();
    QCOMPARE(wrong.load(), 0);
}

/** The networks of the machine it runs on, whatever they are. */
void tst_PYXHostAddressHelpers::thisHost()
{
    const auto addresses = Helpers::allAddresses();
    for (const QHostAddress &address : addresses) {
        QVERIFY(Helpers::isALocalAddress(address) && Helpers::isOwnAddress(address));
        QVERIFY(Helpers::belongsToALocalSubnet(address));
        QVERIFY(Helpers::isALocalAddress(Helpers::decideOwnAddressForPeer(address)));
    }
    QVERIFY(!Helpers::isOwnAddress(QHostAddress("203.0.113.77")));
    auto v4 = Helpers::allAddresses_IPv4();
    auto v6 = Helpers::allAddresses_IPv6();
    QCOMPARE(v4.size() + v6.size(), addresses.size());
    QCOMPARE(QHostAddress(Helpers::getLocalIPStrings_IPv4().value(0)), v4.value(0));
    v4.removeAll(QHostAddress(QHostAddress::LocalHost));
    v6.removeAll(QHostAddress(QHostAddress::LocalHostIPv6));
    QCOMPARE(Helpers::allAddresses_IPv4_noLocalhost(), v4);
    QCOMPARE(Helpers::allAddresses_IPv6_noLocalhost(), v6);
    const PYXNetworkEntry local(QHostAddress("127.0.0.1"), 80, QUuid());
    QVERIFY(Helpers::isOwnAddress(local) && !Helpers::isOwnAddress(PYXNetworkEntry()));
    QCOMPARE(local.decideOwnAddressForThisPeer(), PYXNetworkEntry(QHostAddress("127.0.0.1"), 0, QUuid()));
    // "This network" is nobody's: the lowest address is taken, and IPv4 before IPv6.
    const auto strangers = addressList({"::2", "0.0.0.10", "0.0.0.9"});
    QCOMPARE(Helpers::decidePeerAddress(QSet<QHostAddress>(strangers.begin(), strangers.end())),
             strangers[2]);
}

void tst_PYXHostAddressHelpers::routeIsFoundInAnyThreadWithoutTheProxy()
{
    QNetworkProxyFactory::setApplicationProxyFactory(new ForbiddenFactory);
    // An address of the documentation networks: only a default route leads to it, where there is one.
    const auto ask = [] {
        Helpers::refresh();
        return Helpers::decideOwnAddressForPeer(QHostAddress("203.0.113.77"));
    };
    auto other = std::async(std::launch::async, ask);
    const QHostAddress answer = ask();
    const QHostAddress otherAnswer = other.get();
    QNetworkProxyFactory::setApplicationProxyFactory(nullptr);
    QCOMPARE(ForbiddenFactory::asked, 0);
    QCOMPARE(answer, otherAnswer);
    QVERIFY(answer.isNull() || Helpers::isALocalAddress(answer));
}

QTEST_GUILESS_MAIN(tst_PYXHostAddressHelpers)
#include "tst_PYXHostAddressHelpers.moc"
