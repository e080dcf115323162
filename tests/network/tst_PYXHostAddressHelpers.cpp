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
    void addressesByProtocol();
    void formsForEntries();
    void setsAreReadInAddressOrder();
    void routeIsFoundInAnyThreadWithoutTheProxy();
};

void tst_PYXHostAddressHelpers::ownAddresses()
{
    QCOMPARE(Helpers::allInterfaces().size(), QNetworkInterface::allInterfaces().size());
    const auto addresses = Helpers::allAddresses();
    for (const QHostAddress &address : addresses) {
        QVERIFY2(Helpers::isALocalAddress(address) && Helpers::isOwnAddress(address),
                 qPrintable(address.toString()));
        QVERIFY2(Helpers::belongsToALocalSubnet(address), qPrintable(address.toString()));
        QVERIFY2(Helpers::isALocalAddress(Helpers::decideOwnAddressForPeer(address)),
                 qPrintable(address.toString()));
    }
    QVERIFY(!Helpers::isOwnAddress(QHostAddress("203.0.113.77")));
    QVERIFY(!Helpers::isALocalAddress(QHostAddress()));
}

void tst_PYXHostAddressHelpers::addressesByProtocol()
{
    auto v4 = Helpers::allAddresses_IPv4();
    auto v6 = Helpers::allAddresses_IPv6();
    QCOMPARE(v4.size() + v6.size(), Helpers::allAddresses().size());
    for (int i = 0; i < v4.size(); ++i)
        QCOMPARE(Helpers::getLocalIPStrings_IPv4().at(i), v4.at(i).toString());
    for (int i = 0; i < v6.size(); ++i)
        QCOMPARE(Helpers::getLocalIPStrings_IPv6().at(i), v6.at(i).toString());
    v4.removeAll(QHostAddress(QHostAddress::LocalHost));
    v6.removeAll(QHostAddress(QHostAddress::LocalHostIPv6));
    QCOMPARE(Helpers::allAddresses_IPv4_noLocalhost(), v4);
    QCOMPARE(Helpers::allAddresses_IPv6_noLocalhost(), v6);
}

void tst_PYXHostAddressHelpers::formsForEntries()
{
    const PYXNetworkEntry local(QHostAddress("127.0.0.1"), 80, QUuid());
    const PYXNetworkEntry none;
    QVERIFY(Helpers::isOwnAddress(local) && local.isOwnAddress());
    QVERIFY(Helpers::belongsToALocalSubnet(local));
    QCOMPARE(Helpers::decideOwnAddressForPeer(local), QHostAddress("127.0.0.1"));
    QCOMPARE(local.decideOwnAddressForThisPeer(), PYXNetworkEntry(QHostAddress("127.0.0.1"), 0, QUuid()));
    QVERIFY(!Helpers::isOwnAddress(none) && !Helpers::belongsToALocalSubnet(none));
    QVERIFY(none.decideOwnAddressForThisPeer().isNull());
}

void tst_PYXHostAddressHelpers::setsAreReadInAddressOrder()
{
    const QSet<QHostAddress> strangers = {QHostAddress("2001:db8::2"), QHostAddress("203.0.113.9"),
                                          QHostAddress("203.0.113.10"), QHostAddress("198.51.100.200")};
    const QHostAddress chosen = Helpers::decidePeerAddress(strangers);
    if (std::none_of(strangers.begin(), strangers.end(),
                     [](const QHostAddress &address) { return Helpers::belongsToALocalSubnet(address); }))
        QCOMPARE(chosen, QHostAddress("198.51.100.200"));
    QCOMPARE(Helpers::decidePeerAddress(QSet<QHostAddress>(strangers) << QHostAddress("127.0.0.1")),
             QHostAddress("127.0.0.1"));
}

void tst_PYXHostAddressHelpers::routeIsFoundInAnyThreadWithoutTheProxy()
{
    QNetworkProxyFactory::setApplicationProxyFactory(new ForbiddenFactory);
    // An address of the documentation networks: only a default route leads to it, where there is one.
    const QHostAddress far("203.0.113.77");
    const auto ask = [far] {
        Helpers::refresh();
        return Helpers::decideOwnAddressForPeer(far);
    };
    QVector<QHostAddress> answers = {ask()};
    for (int i = 0; i < 2; ++i)
        answers += std::async(std::launch::async, ask).get();
    auto both = std::async(std::launch::async, ask);
    answers += ask();
    answers += both.get();
    QNetworkProxyFactory::setApplicationProxyFactory(nullptr);
    QCOMPARE(ForbiddenFactory::asked, 0);
    for (const QHostAddress &answer : qAsConst(answers)) {
        QCOMPARE(answer, answers.first());
        QVERIFY(answer.isNull() || Helpers::isALocalAddress(answer));
    }
}

QTEST_GUILESS_MAIN(tst_PYXHostAddressHelpers)
#include "tst_PYXHostAddressHelpers.moc"
