// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXHostAddressHelpers.h"
#include "PYXNetworkEntryList.h"
#include "PYXRuntime.h"
#include "PYXSettings.h"
#include "RecordingTracer.h"
#include "SettingsHome.h"

#include <QtTest/QtTest>

using namespace PYXRuntime;

namespace {

const QUuid Id("{6C1B4A5E-6D0F-4C0C-9C65-0A4D7B9E2F11}");

PYXNetworkEntry entryAt(const char *address, quint16 port = 80, const char *name = "")
{
    return {name, QHostAddress(address), port, QUuid()};
}

/** With every key. */
PYXNetworkEntryList fullList()
{
    PYXNetworkEntryList list;
    list.setInterfaceKey("My/" + PYXNetworkEntryList::interfaceKeyName());
    list.setDefaultEntryNameKey("My/" + PYXNetworkEntryList::defaultEntryNameKeyName());
    list.setGroupKey("My/Peers");
    list.setLatitudeKey(PYXNetworkEntryList::latitudeKeyName());
    list.setLongitudeKey(PYXNetworkEntryList::longitudeKeyName());
    list.setAltitudeKey(PYXNetworkEntryList::altitudeKeyName());
    list.setUseDirectionKey(PYXNetworkEntryList::useDirectionKeyName());
    list.setAzimuthKey(PYXNetworkEntryList::azimuthKeyName());
    list.setBeamWidthKey(PYXNetworkEntryList::beamWidthKeyName());
    return list;
}

PYXNetworkEntryList twoPeers()
{
    PYXNetworkEntryList list = fullList();
    list << PYXNetworkEntry("North, \"old\"", QHostAddress("10.0.0.5"), 8080, Id)
         << PYXNetworkEntry("South", QHostAddress("fe80::1"), 65535, QUuid());
    list[0].setGeoPosition(48.123456789, -11.5, 520);
    list.setInterfaceAddress(QHostAddress("10.0.0.1"));
    list.setDefaultEntryName("South");
    return list;
}

} // namespace

class tst_PYXNetworkEntryList : public QObject
{
    Q_OBJECT
private slots:
    void init() { m_home.reset(new SettingsHome); }
    void savedLayout();
    void restoringWhatWasSaved();
    void emptyKeysSaveNothing();
    void savingLeavesNothingOfTheOldElements();
    void foreignValuesOfAnElement_data();
    void foreignValuesOfAnElement();
    void claimedSizeIsNotTrusted_data();
    void claimedSizeIsNotTrusted();
    void files();
    void assignmentKeepsTheKeys();
    void projectionsAndMatching();
    void peerToContact();
    void metaTypes();

private:
    QScopedPointer<SettingsHome> m_home;
};

void tst_PYXNetworkEntryList::savedLayout()
{
    PYXSettings settings(PYXSettings::eUserApplicationSettings);
    QVERIFY(twoPeers().save(settings));
    const QMap<QString, QString> expected = {
        {"My/Interface", "10.0.0.1"},
        {"My/DefaultEntryName", "South"},
        {"My/Peers/size", "2"},
        {"My/Peers/1/ItemName", "North, \"old\""},
        {"My/Peers/1/ItemIP", "10.0.0.5"},
        {"My/Peers/1/ItemPort", "8080"},
        {"My/Peers/1/ItemUuid", Id.toString()},
        {"My/Peers/1/Latitude", "48.123457"},
        {"My/Peers/1/Longitude", "-11.500000"},
        {"My/Peers/1/Altitude", "520.000000"},
        {"My/Peers/2/ItemName", "South"},
        {"My/Peers/2/ItemIP", "fe80::1"},
        {"My/Peers/2/ItemPort", "65535"},
        {"My/Peers/2/ItemUuid", QUuid().toString()},
    };
    QCOMPARE(settings.allKeys(true), expected.keys());
    for (auto wanted = expected.cbegin(); wanted != expected.cend(); ++wanted)
        QCOMPARE(settings.stringValue(wanted.key()), wanted.value());
    QCOMPARE(int(settings.QSettings::value("My/Peers/1/ItemPort").type()), int(QMetaType::UInt));
}

void tst_PYXNetworkEntryList::restoringWhatWasSaved()
{
    PYXNetworkEntryList saved = twoPeers();
    saved[1].setDirection(true, 90, 15); // not saved
    {
        PYXSettings settings(PYXSettings::eUserApplicationSettings);
        QVERIFY(saved.save(settings));
    }
    PYXNetworkEntryList restored = fullList();
    restored << entryAt("1.2.3.4");
    PYXSettings settings(PYXSettings::eUserApplicationSettings);
    QVERIFY(restored.restore(settings));
    PYXNetworkEntryList expected = twoPeers();
    expected[0].setGeoPosition(48.123457, -11.5, 520);
    QCOMPARE(restored, expected);
    QCOMPARE(restored.interfaceAddress(), QHostAddress("10.0.0.1"));
    QCOMPARE(restored.defaultEntry(), expected.at(1));
    // Absent values reset what the list had.
    settings.clear();
    QVERIFY(restored.restore(settings));
    QVERIFY(restored.isEmpty() && restored.interfaceAddress().isNull() &&
            restored.defaultEntryName().isEmpty());
}

void tst_PYXNetworkEntryList::emptyKeysSaveNothing()
{
    PYXSettings settings(PYXSettings::eUserApplicationSettings);
    PYXNetworkEntryList list(twoPeers());
    list.setInterfaceKey(QString());
    list.setDefaultEntryNameKey(QString());
    list.setListItemKeys("Peers", "N", "", "", "");
    list.setLatitudeKey(QString());
    list.setLongitudeKey(QString());
    list.setAltitudeKey(QString());
    QVERIFY(list.save(settings));
    QCOMPARE(settings.allKeys(true), QStringList({"Peers/1/N", "Peers/2/N", "Peers/size"}));
    settings.clear();
    PYXNetworkEntryList unnamed = QList<PYXNetworkEntry>{entryAt("1.2.3.4")};
    const QStringList traces = tracesOf([&] { QVERIFY(unnamed.save(settings)); });
    QCOMPARE(traces.size(), 1);
    QVERIFY(traces.first().startsWith("Warn|network entries are not saved"));
    QVERIFY(settings.allKeys(true).isEmpty());
    QVERIFY(unnamed.restore(settings));
    QVERIFY(unnamed.isEmpty());
}

void tst_PYXNetworkEntryList::savingLeavesNothingOfTheOldElements()
{
    PYXSettings settings(PYXSettings::eUserApplicationSettings);
    QVERIFY(twoPeers().save(settings));
    settings.setValue("My/Peers/1/Azimuth", "90");
    settings.setValue("My/Peers/ColumnWidths", "kept");
    PYXNetworkEntryList list = fullList();
    list << entryAt("10.0.0.9");
    QVERIFY(list.save(settings));
    QVERIFY(!settings.childGroups(true).contains("2"));
    QCOMPARE(settings.stringValue("My/Peers/ColumnWidths"), QString("kept"));
    PYXNetworkEntryList restored = fullList();
    restored.restore(settings);
    QCOMPARE(restored, list);
    QVERIFY(fullList().save(settings));
    restored.restore(settings);
    QVERIFY(restored.isEmpty());
}

void tst_PYXNetworkEntryList::foreignValuesOfAnElement_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<PYXNetworkEntry>("expected");
    const auto row = [](const char *key, const QVariant &value, const PYXNetworkEntry &expected) {
        QTest::addRow("%s %s", key, qPrintable(value.toString())) << QString(key) << value << expected;
    };
    const QHostAddress none;
    const auto at = [](double latitude, double longitude) {
        PYXNetworkEntry entry;
        entry.setGeoPosition(latitude, longitude, 0);
        return entry;
    };
    const auto looking = [](bool use, double azimuth, double beamWidth) {
        PYXNetworkEntry entry;
        entry.setDirection(use, azimuth, beamWidth);
        return entry;
    };
    row("ItemIP", "10.0.0.300", {});
    row("ItemPort", "80", {none, 80, QUuid()});
    row("ItemPort", 99999, {none, 65535, QUuid()});
    row("ItemPort", "99999999999", {none, 65535, QUuid()});
    row("ItemPort", "-1", {});
    row("ItemPort", "abc", {});
    row("ItemUuid", Id.toString().toLower(), {none, 0, Id});
    row("ItemUuid", Id.toString().toUpper(), {none, 0, Id});
    row("ItemUuid", Id.toString(QUuid::WithoutBraces), {});
    row("Latitude", "48.5", at(48.5, 0));
    row("Longitude", "-7", at(0, -7));
    row("Latitude", "north", {});
    row("Latitude", "nan", {});
    row("UseDirection", "false", looking(false, 0, 0));
    row("UseDirection", true, looking(true, 0, 0));
    row("Azimuth", "90", looking(false, 90, 0));
    row("BeamWidth", "15", looking(false, 0, 15));
    row("BeamWidth", "", {});
}

void tst_PYXNetworkEntryList::foreignValuesOfAnElement()
{
    QFETCH(QString, key);
    QFETCH(QVariant, value);
    PYXSettings settings(PYXSettings::eUserApplicationSettings);
    settings.setValue("My/Peers/size", 1);
    settings.QSettings::setValue("My/Peers/1/" + key, value);
    PYXNetworkEntryList list = fullList();
    list.restore(settings);
    QCOMPARE(list.size(), 1);
    QTEST(list.first(), "expected");
}

void tst_PYXNetworkEntryList::claimedSizeIsNotTrusted_data()
{
    QTest::addColumn<int>("claimed");
    QTest::addColumn<QStringList>("elements");
    QTest::addColumn<int>("size");
    QTest::newRow("more than there are") << 2'000'000'000 << QStringList{"1", "3"} << 3;
    QTest::newRow("fewer") << 1 << QStringList{"1", "2"} << 1;
    QTest::newRow("negative") << -5 << QStringList{"1"} << 0;
    QTest::newRow("absurd element") << 2'000'000'000 << QStringList{"1", "2000000000"} << 1001;
    QTest::newRow("no numbers") << 5 << QStringList{"01", "one", "0", "-1"} << 0;
}

void tst_PYXNetworkEntryList::claimedSizeIsNotTrusted()
{
    QFETCH(int, claimed);
    QFETCH(QStringList, elements);
    QSettings settings(m_home->path("peers.ini"), QSettings::IniFormat);
    settings.setValue("Group/size", claimed);
    for (const QString &element : elements)
        settings.setValue("Group/" + element + "/ItemName", element);
    PYXNetworkEntryList list;
    list.restore(settings);
    QTEST(int(list.size()), "size");
}

void tst_PYXNetworkEntryList::files()
{
    const QString path = m_home->path("peers");
    QVERIFY(twoPeers().save(path));
    PYXNetworkEntryList list = fullList();
    QVERIFY(list.restore(path, PYXXmlSettings::format()));
    QCOMPARE(list.names(), twoPeers().names());
    QVERIFY(twoPeers().save(path + ".ini", QSettings::IniFormat));
    QVERIFY(list.restore(path + ".ini", QSettings::IniFormat));
    QCOMPARE(list.ports(), twoPeers().ports());
    QVERIFY(!twoPeers().save(path + "/not/a/directory"));
    QVERIFY(list.restore(path + ".none") && list.isEmpty());
}

void tst_PYXNetworkEntryList::assignmentKeepsTheKeys()
{
    PYXNetworkEntryList list = twoPeers();
    const QList<PYXNetworkEntry> entries = {entryAt("1.2.3.4")};
    list = entries;
    QCOMPARE(list.size(), 1);
    QCOMPARE(list.groupKey(), QString("My/Peers"));
    QCOMPARE(list.interfaceAddress(), QHostAddress("10.0.0.1"));
}

void tst_PYXNetworkEntryList::projectionsAndMatching()
{
    const PYXNetworkEntryList list = twoPeers();
    QCOMPARE(list.names(), QStringList({"North, \"old\"", "South"}));
    QCOMPARE(list.ipAddressesAsStrings(), QStringList({"10.0.0.5", "fe80::1"}));
    QCOMPARE(list.ports(), QList<quint16>({8080, 65535}));
    QCOMPARE(list.uuids(), QList<QUuid>({Id, QUuid()}));

    QVERIFY(list.containsDefaultEntry());
    PYXNetworkEntryList other = list;
    other.setDefaultEntryName("north"); // exactly that name
    QVERIFY(!other.containsDefaultEntry() && other.defaultEntry().isNull());
    other.setDefaultEntryName(QString());
    other << entryAt("10.0.0.7");
    QVERIFY(!other.containsDefaultEntry() && other.defaultEntry().isNull());

    QVERIFY(list.containsMatchingEntry(entryAt("10.0.0.5", 0)));
    QVERIFY(!list.containsMatchingEntry(entryAt("10.0.0.5", 81)));
    QVERIFY(!list.matches(other) && !other.matches(list));
    other.removeLast();
    other[1] = entryAt("fe80::1", 0);
    QVERIFY(list.matches(other) && !other.matches(list));
}

void tst_PYXNetworkEntryList::peerToContact()
{
    PYXNetworkEntryList list;
    QVERIFY(list.decidePeerAddress().isNull());
    list << entryAt("0.0.0.1");
    QVERIFY(list.decidePeerAddress().isNull());
    const auto own = PYXHostAddressHelpers::allAddresses_IPv4_noLocalhost();
    if (!own.isEmpty()) {
        list << PYXNetworkEntry(own.first(), 80, QUuid());
        QCOMPARE(list.decidePeerAddress(), list.last());
    }
    list << entryAt("127.0.0.1", 81);
    QCOMPARE(list.decidePeerAddress().port(), quint16(81));
}

void tst_PYXNetworkEntryList::metaTypes()
{
    const bool bInitialized = initialize_PYXRuntime(ekInitialize_NoFonts);
    const int entry = QMetaType::type("PYXRuntime::PYXNetworkEntry");
    const int list = QMetaType::type("QList<PYXRuntime::PYXNetworkEntry>");
    uninitialize_PYXRuntime();
    QVERIFY(bInitialized);
    QVERIFY(entry != QMetaType::UnknownType && list != QMetaType::UnknownType);
}

QTEST_GUILESS_MAIN(tst_PYXNetworkEntryList)
#include "tst_PYXNetworkEntryList.moc"
