// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXNetworkEntry.h"

#include <QtTest/QtTest>

#include <functional>

using namespace PYXRuntime;
using Change = std::function<void(PYXNetworkEntry &)>;
Q_DECLARE_METATYPE(Change)

namespace {

const QHostAddress Address("10.0.0.5");
const QUuid Id("{6C1B4A5E-6D0F-4C0C-9C65-0A4D7B9E2F11}");

PYXNetworkEntry fullEntry()
{
    PYXNetworkEntry entry("North", Address, 8080, Id);
    entry.setGeoPosition(48.1, 11.5, 520);
    entry.setDirection(true, 90, 15);
    return entry;
}

} // namespace

class tst_PYXNetworkEntry : public QObject
{
    Q_OBJECT
private slots:
    void parsing_data();
    void parsing();
    void everyChangeMakesAnotherEntry_data();
    void everyChangeMakesAnotherEntry();
    void nullAndValid();
    void matching();
    void texts();
};

void tst_PYXNetworkEntry::parsing_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<PYXNetworkEntry>("entry");
    const PYXNetworkEntry none;
    const auto row = [](const char *text, const PYXNetworkEntry &entry) {
        QTest::addRow("\"%s\"", text) << QString(text) << entry;
    };
    row("10.0.0.5:8080", {"10.0.0.5:8080", Address, 8080, QUuid()});
    row("10.0.0.5:0", {"10.0.0.5:0", Address, 0, QUuid()});
    row("10.0.0.5:65535", {"10.0.0.5:65535", Address, 65535, QUuid()});
    row("station:80", {"station:80", QHostAddress(), 80, QUuid()});
    for (const char *text : {"", ":", "10.0.0.5", "10.0.0.5:", ":80", "10.0.0.5:65536", "10.0.0.5:70000",
                             "10.0.0.5:-1", "10.0.0.5:0x50", "10.0.0.5:9999999999", "::1", "fd00::1:80"})
        row(text, none);
}

void tst_PYXNetworkEntry::parsing()
{
    QFETCH(QString, text);
    QTEST(PYXNetworkEntry::parseIPPortString(text), "entry");
}

void tst_PYXNetworkEntry::everyChangeMakesAnotherEntry_data()
{
    QTest::addColumn<Change>("change");
    const auto row = [](const char *name, const Change &change) { QTest::newRow(name) << change; };
    row("name", [](PYXNetworkEntry &entry) { entry.setName("South"); });
    row("uuid", [](PYXNetworkEntry &entry) { entry.setUuid(QUuid()); });
    row("latitude", [](PYXNetworkEntry &entry) { entry.setGeoPosition(48.2, 11.5, 520); });
    row("longitude", [](PYXNetworkEntry &entry) { entry.setGeoPosition(48.1, 11.6, 520); });
    row("altitude", [](PYXNetworkEntry &entry) { entry.setGeoPosition(48.1, 11.5, 521); });
    row("use of direction", [](PYXNetworkEntry &entry) { entry.setDirection(false, 90, 15); });
    row("azimuth", [](PYXNetworkEntry &entry) { entry.setDirection(true, 91, 15); });
    row("beam width", [](PYXNetworkEntry &entry) { entry.setDirection(true, 90, 16); });
    row("address", [](PYXNetworkEntry &entry) { entry = {"North", QHostAddress("::1"), 8080, Id}; });
    row("all", [](PYXNetworkEntry &entry) { entry.clear(); });
}

void tst_PYXNetworkEntry::everyChangeMakesAnotherEntry()
{
    QFETCH(Change, change);
    PYXNetworkEntry entry = fullEntry();
    QVERIFY(entry == fullEntry());
    change(entry);
    QVERIFY(entry != fullEntry());
}

void tst_PYXNetworkEntry::nullAndValid()
{
    PYXNetworkEntry entry;
    QVERIFY(entry.isNull() && !entry.isValid());
    entry.setDirection(true, 1, 2);
    QVERIFY(entry.isNull() && entry.hasDirection());
    entry.setGeoPosition(0, 0, 0);
    QVERIFY(!entry.isNull() && entry.hasGeoPosition());
    QVERIFY(PYXNetworkEntry(Address, 1, QUuid()).isValid());
    QVERIFY(!PYXNetworkEntry(Address, 0, Id).isValid());
    QVERIFY(!PYXNetworkEntry(QHostAddress(), 1, Id).isValid());
}

void tst_PYXNetworkEntry::matching()
{
    const PYXNetworkEntry entry = fullEntry();
    QVERIFY(entry.matches(PYXNetworkEntry(Address, 8080, QUuid())));
    QVERIFY(entry.matches(Address, 0));
    QVERIFY(!entry.matches(Address, 8081));
    QVERIFY(!entry.matches(QHostAddress("10.0.0.6"), 0));
    QVERIFY(!PYXNetworkEntry(Address, 0, Id).matches(entry)); // only the other's 0 stands for any
}

void tst_PYXNetworkEntry::texts()
{
    PYXNetworkEntry entry = fullEntry();
    QCOMPARE(entry.toString(), QString("North (10.0.0.5:8080)"));
    entry.setName("%1");
    QCOMPARE(entry.toString(), QString("%1 (10.0.0.5:8080)"));
    entry.setName(QString());
    QCOMPARE(entry.toString(), entry.toIPPortString());
}

QTEST_APPLESS_MAIN(tst_PYXNetworkEntry)
#include "tst_PYXNetworkEntry.moc"
