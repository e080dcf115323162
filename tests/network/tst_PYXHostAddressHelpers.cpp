// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXHostAddressHelpers.h"
#include "PYXNetworkEntry.h"

#include <QtNetwork/QNetworkProxyFactory>
#include <QtTest/QtTest>

#include <future>

using namespace PYXRuntime;
using Helpers = PYXHostAddressHelpers;

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

/** On the networks of the machine it runs on, whatever they are. */
class tst_PYXHostAddressHelpers : public QObject
{
    Q_OBJECT
private slots:
    void ownAddresses();
    void formsForEntriesAndSets();
    void routeIsFoundInAnyThreadWithoutTheProxy();
};

void tst_PYXHostAddressHelpers::ownAddresses()
{
    const auto addresses = Helpers::allAddresses();
    for (const QHostAddress &address : addresses) {
        QVERIFY(Helpers::isALocalAddress(address) && Helpers::isOwnAddress(address));
        QVERIFY(Helpers::belongsToALocalSubnet(address));
        QVERIFY(Helpers::isALocalAddress(Helpers::decideOwnAddressForPeer(address)));
    }
    QVERIFY(!Helpers::isOwnAddress(QHostAddress("203.0.113.77")));
    QVERIFY(!Helpers::isALocalAddress(QHostAddress()));
    auto v4 = Helpers::allAddresses_IPv4();
    auto v6 = Helpers::allAddresses_IPv6();
    QCOMPARE(v4.size() + v6.size(), addresses.size());
    QCOMPARE(QHostAddress(Helpers::getLocalIPStrings_IPv4().value(0)), v4.value(0));
    QCOMPARE(QHostAddress(Helpers::getLocalIPStrings_IPv6().value(0)), v6.value(0));
    v4.removeAll(QHostAddress(QHostAddress::LocalHost));
    v6.removeAll(QHostAddress(QHostAddress::LocalHostIPv6));
    QCOMPARE(Helpers::allAddresses_IPv4_noLocalhost(), v4);
    QCOMPARE(Helpers::allAddresses_IPv6_noLocalhost(), v6);
}

void tst_PYXHostAddressHelpers::formsForEntriesAndSets()
{
    const PYXNetworkEntry local(QHostAddress("127.0.0.1"), 80, QUuid());
    QVERIFY(Helpers::isOwnAddress(local) && local.isOwnAddress() && Helpers::belongsToALocalSubnet(local));
    QCOMPARE(local.decideOwnAddressForThisPeer(), PYXNetworkEntry(QHostAddress("127.0.0.1"), 0, QUuid()));
    const PYXNetworkEntry none;
    QVERIFY(!Helpers::isOwnAddress(none) && !Helpers::belongsToALocalSubnet(none));
    QVERIFY(none.decideOwnAddressForThisPeer().isNull());
    // "This network" is nobody's: the lowest address is taken, and IPv4 before IPv6.
    const QSet<QHostAddress> strangers = {QHostAddress("::2"), QHostAddress("0.0.0.10"),
                                          QHostAddress("0.0.0.9")};
    QCOMPARE(Helpers::decidePeerAddress(strangers), QHostAddress("0.0.0.9"));
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
