// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXNetworkEntryList.h"
#include "PYXSettings.h"
#include "RecordingTracer.h"
#include "SettingsHome.h"

#include <QtTest/QtTest>

using namespace PYXRuntime;

namespace {

const QUuid Id("{6C1B4A5E-6D0F-4C0C-9C65-0A4D7B9E2F11}");
const QHostAddress Address("10.0.0.5");

PYXNetworkEntry fullEntry()
{
    PYXNetworkEntry entry("North, \"old\"", Address, 8080, Id);
    entry.setGeoPosition(48.123456789, -11.5, 520);
    entry.setDirection(true, 90, 15);
    return entry;
}

PYXNetworkEntry lookingEntry(bool use, double azimuth, double beamWidth)
{
    PYXNetworkEntry entry;
    entry.setDirection(use, azimuth, beamWidth);
    return entry;
}

PYXNetworkEntry standingEntry(double latitude, double longitude)
{
    PYXNetworkEntry entry;
    entry.setGeoPosition(latitude, longitude, 0);
    return entry;
}

/** With every key. */
PYXNetworkEntryList emptyList()
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
    PYXNetworkEntryList list = emptyList();
    list << fullEntry() << PYXNetworkEntry("South", QHostAddress("fe80::1"), 65535, QUuid());
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
    void textsOfAnEntry();
    void comparingEntries();
    void savedLayoutAndBack();
    void emptyKeys();
    void foreignValuesOfAnElement();
    void claimedSizeIsNotTrusted();
    void questionsToAList();

private:
    QScopedPointer<SettingsHome> m_home;
};

void tst_PYXNetworkEntryList::textsOfAnEntry()
{
    QCOMPARE(PYXNetworkEntry::parseIPPortString("10.0.0.5:8080"),
             PYXNetworkEntry("10.0.0.5:8080", Address, 8080, QUuid()));
    QCOMPARE(PYXNetworkEntry::parseIPPortString("station:0"),
             PYXNetworkEntry("station:0", QHostAddress(), 0, QUuid()));
    for (const char *text : {"", ":", "10.0.0.5", "10.0.0.5:", ":80", "10.0.0.5:65536", "10.0.0.5:-1",
                             "10.0.0.5:0x50", "10.0.0.5:9999999999", "::1", "fd00::1:80"})
        QVERIFY2(PYXNetworkEntry::parseIPPortString(text) == PYXNetworkEntry(), text);
    QCOMPARE(PYXNetworkEntry("%1", Address, 80, Id).toString(), QString("%1 (10.0.0.5:80)"));
    QCOMPARE(PYXNetworkEntry(Address, 80, Id).toString(), QString("10.0.0.5:80"));
}

void tst_PYXNetworkEntryList::comparingEntries()
{
    PYXNetworkEntry entries[] = {fullEntry(), fullEntry(), fullEntry(), fullEntry(), PYXNetworkEntry()};
    entries[0].setName("South");
    entries[1].setUuid(QUuid());
    entries[2].setGeoPosition(48.123456789, -11.5, 521);
    entries[3].setDirection(true, 90, 16);
    for (const PYXNetworkEntry &entry : entries)
        QVERIFY(entry == PYXNetworkEntry(entry) && entry != fullEntry());
    QVERIFY(fullEntry().matches(Address, 0) && fullEntry().matches({Address, 8080, QUuid()}));
    QVERIFY(!fullEntry().matches(Address, 8081) && !fullEntry().matches(QHostAddress("10.0.0.6"), 0));
    QVERIFY(!PYXNetworkEntry(Address, 0, Id).matches(fullEntry())); // only the other's 0 stands for any
    QVERIFY(lookingEntry(true, 1, 2).isNull() && !standingEntry(0, 0).isNull());
    QVERIFY(fullEntry().isValid() && !PYXNetworkEntry(Address, 0, Id).isValid());
}

void tst_PYXNetworkEntryList::savedLayoutAndBack()
{
    PYXSettings settings(PYXSettings::eUserApplicationSettings);
    QVERIFY(twoPeers().save(settings));
    QStringList layout;
    for (const QString &key : settings.allKeys(true))
        layout += key + '=' + settings.stringValue(key);
    QCOMPARE(layout, QStringList({"My/DefaultEntryName=South", "My/Interface=10.0.0.1",
                                  "My/Peers/1/Altitude=520.000000", "My/Peers/1/ItemIP=10.0.0.5",
                                  "My/Peers/1/ItemName=North, \"old\"", "My/Peers/1/ItemPort=8080",
                                  "My/Peers/1/ItemUuid=" + Id.toString(), "My/Peers/1/Latitude=48.123457",
                                  "My/Peers/1/Longitude=-11.500000", "My/Peers/2/ItemIP=fe80::1",
                                  "My/Peers/2/ItemName=South", "My/Peers/2/ItemPort=65535",
                                  "My/Peers/2/ItemUuid=" + QUuid().toString(), "My/Peers/size=2"}));
    QCOMPARE(int(settings.QSettings::value("My/Peers/1/ItemPort").type()), int(QMetaType::UInt));

    PYXNetworkEntryList restored = emptyList();
    restored << fullEntry();
    QVERIFY(restored.restore(settings));
    PYXNetworkEntry north("North, \"old\"", Address, 8080, Id); // its direction is not saved
    north.setGeoPosition(48.123457, -11.5, 520);
    QCOMPARE(restored, QList<PYXNetworkEntry>({north, twoPeers().at(1)}));
    QCOMPARE(restored.interfaceAddress(), QHostAddress("10.0.0.1"));
    QCOMPARE(restored.defaultEntry(), restored.at(1));

    // Nothing of old elements stays, nor of what the list had.
    settings.setValue("My/Peers/1/Azimuth", "90");
    settings.setValue("My/Peers/ColumnWidths", "kept");
    PYXNetworkEntryList list = emptyList();
    list << PYXNetworkEntry(Address, 80, QUuid());
    QVERIFY(list.save(settings) && restored.restore(settings));
    QVERIFY(settings.contains("My/Peers/ColumnWidths") && !settings.contains("My/Peers/2/ItemName"));
    QCOMPARE(restored, list);
    QVERIFY(emptyList().save(settings) && restored.restore(settings) && restored.isEmpty());
    QVERIFY(restored.interfaceAddress().isNull() && restored.defaultEntryName().isEmpty());
}

void tst_PYXNetworkEntryList::emptyKeys()
{
    PYXSettings settings(PYXSettings::eUserApplicationSettings);
    PYXNetworkEntryList list(static_cast<const QList<PYXNetworkEntry> &>(twoPeers()));
    const QStringList traces = tracesOf([&] { QVERIFY(list.save(settings)); });
    QVERIFY(traces.size() == 1 && traces.first().startsWith("Warn|network entries are not saved"));
    QVERIFY(settings.allKeys(true).isEmpty());
    list.setListItemKeys("Peers", "N", "", "", "");
    QVERIFY(list.save(settings));
    QCOMPARE(settings.allKeys(true), QStringList({"Peers/1/N", "Peers/2/N", "Peers/size"}));
    list = QList<PYXNetworkEntry>();
    QCOMPARE(list.groupKey(), QString("Peers"));
}

void tst_PYXNetworkEntryList::foreignValuesOfAnElement()
{
    const std::tuple<const char *, QVariant, PYXNetworkEntry> values[] = {
        {"ItemIP", "10.0.0.300", {}},
        {"ItemPort", "80", {QHostAddress(), 80, QUuid()}},
        {"ItemPort", 99999, {QHostAddress(), 65535, QUuid()}},
        {"ItemPort", "99999999999", {QHostAddress(), 65535, QUuid()}},
        {"ItemPort", "-1", {}},
        {"ItemPort", "abc", {}},
        {"ItemUuid", Id.toString().toUpper(), {QHostAddress(), 0, Id}},
        {"ItemUuid", Id.toString(QUuid::WithoutBraces), {}},
        {"Latitude", "48.5", standingEntry(48.5, 0)},
        {"Longitude", "-7", standingEntry(0, -7)},
        {"Latitude", "nan", {}},
        {"UseDirection", "false", lookingEntry(false, 0, 0)},
        {"UseDirection", true, lookingEntry(true, 0, 0)},
        {"Azimuth", "90", lookingEntry(false, 90, 0)},
        {"BeamWidth", "15", lookingEntry(false, 0, 15)},
        {"BeamWidth", "", {}},
    };
    PYXSettings settings(PYXSettings::eUserApplicationSettings);
    for (const auto &[key, value, expected] : values) {
        settings.clear();
        settings.setValue("My/Peers/size", 1);
        settings.QSettings::setValue(QString("My/Peers/1/") + key, value);
        PYXNetworkEntryList list = emptyList();
        list.restore(settings);
        QCOMPARE(list.size(), 1);
        QVERIFY2(list.first() == expected, qPrintable(key + (' ' + value.toString())));
    }
}

void tst_PYXNetworkEntryList::claimedSizeIsNotTrusted()
{
    const std::tuple<int, QStringList, int> arrays[] = {
        {2'000'000'000, {"1", "3"}, 3}, // no further than what is there
        {1, {"1", "2"}, 1},
        {-5, {"1"}, 0},
        {2'000'000'000, {"1", "2000000000"}, 1001}, // not all the way to an absurd element
        {5, {"01", "one", "0", "-1"}, 0},
    };
    PYXSettings settings(PYXSettings::eUserApplicationSettings);
    for (const auto &[claimed, elements, size] : arrays) {
        settings.clear();
        settings.setValue("Group/size", claimed);
        for (const QString &element : elements)
            settings.setValue("Group/" + element + "/ItemName", element);
        PYXNetworkEntryList list;
        list.restore(settings);
        QCOMPARE(list.size(), size);
    }
}

void tst_PYXNetworkEntryList::questionsToAList()
{
    const PYXNetworkEntryList list = twoPeers();
    QVERIFY(list.containsDefaultEntry());
    PYXNetworkEntryList other = list;
    other << PYXNetworkEntry(QHostAddress("10.0.0.7"), 80, QUuid());
    for (const char *name : {"south", ""}) { // neither exactly that name nor none
        other.setDefaultEntryName(name);
        QVERIFY(!other.containsDefaultEntry() && other.defaultEntry().isNull());
    }
    QVERIFY(list.containsMatchingEntry({Address, 0, QUuid()}));
    QVERIFY(!list.containsMatchingEntry({Address, 81, QUuid()}));
    QVERIFY(!list.matches(other) && !other.matches(list));
    other.removeLast();
    other[1] = {QHostAddress("fe80::1"), 0, QUuid()};
    QVERIFY(list.matches(other) && !other.matches(list));
    const QString path = m_home->path("peers");
    QVERIFY(list.save(path) && other.restore(path) && !list.save(path + "/not/a/directory"));
}

QTEST_GUILESS_MAIN(tst_PYXNetworkEntryList)
#include "tst_PYXNetworkEntryList.moc"
