// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PeerModel.h"
#include "StationModel.h"

#include "SettingsHome.h"

#include <PYXSettings.h>

#include <QtTest/QtTest>

using namespace BandMonitor;
using PYXRuntime::PYXNetworkEntry;
using PYXRuntime::PYXNetworkEntryList;
using PYXRuntime::PYXSettings;

namespace {

const QHostAddress Address("192.0.2.7");

} // namespace

class tst_Stations : public QObject
{
    Q_OBJECT
private slots:
    void hearsAnnouncements();
    void refusesWhatIsNoAnnouncement();
    void dropsWhoMissesThree();
    void keepsPeers();

private:
    void announce(StationModel &model, const struAnnouncement &announcement)
    {
        model.parseBroadcastDatagram(announcement.toDatagram(), Address, struAnnouncement::Port);
    }
    QString text(const QAbstractItemModel &model, int row, int column) const
    {
        return model.index(row, column).data().toString();
    }

    const struAnnouncement m_own{QUuid::createUuid(), "own"};
    qint64 m_now = 0;
    const StationModel::Clock m_clock = [this] { return m_now; };
};

void tst_Stations::hearsAnnouncements()
{
    StationModel model(m_own.id, m_clock);
    struAnnouncement other{QUuid::createUuid(), "North \u00e4 tower"};
    announce(model, m_own);
    QCOMPARE(model.rowCount(), 0);
    announce(model, other);
    m_now += 2500;
    QCOMPARE(text(model, 0, StationModel::ekColumn_Name), other.name);
    QCOMPARE(text(model, 0, StationModel::ekColumn_Address), "192.0.2.7");
    QCOMPARE(text(model, 0, StationModel::ekColumn_Age), "2 s ago");
    other.name = "South";
    announce(model, other);
    QCOMPARE(model.rowCount(), 1);
    QCOMPARE(text(model, 0, StationModel::ekColumn_Name), "South");
    QCOMPARE(text(model, 0, StationModel::ekColumn_Age), "0 s ago");
    for (int i = 0; i < 2 * StationModel::MaximumCount; ++i)
        announce(model, {QUuid::createUuid(), "flood"});
    QCOMPARE(model.rowCount(), StationModel::MaximumCount);
}

void tst_Stations::refusesWhatIsNoAnnouncement()
{
    const QByteArray good = struAnnouncement{QUuid::createUuid(), "good"}.toDatagram();
    const std::pair<const char *, QByteArray> datagrams[] = {
        {"empty", ""},
        {"cut off", good.chopped(1)},
        {"another type", QByteArray(good).replace("BandMonitor", "BandMonitxr")},
        {"no id", QByteArray(good).replace("\"id\"", "\"ix\"")},
        {"another form", "[1, 2]"},
        {"too long", struAnnouncement{QUuid::createUuid(), QString(2000, 'x')}.toDatagram()},
        {"nested", QByteArray(1400, '[')}};
    StationModel model(m_own.id, m_clock);
    for (const auto &[name, datagram] : datagrams) {
        model.parseBroadcastDatagram(datagram, Address, struAnnouncement::Port);
        QVERIFY2(model.rowCount() == 0, name);
    }
}

void tst_Stations::dropsWhoMissesThree()
{
    StationModel model(m_own.id, m_clock);
    announce(model, {QUuid::createUuid(), "quick", 1000});
    announce(model, {QUuid::createUuid(), "slow", 5000});
    announce(model, {QUuid::createUuid(), "never", 1'000'000'000}); // counts as one a minute
    m_now += 3500;
    model.update();
    QCOMPARE(model.rowCount(), 3);
    m_now += 1;
    model.update();
    QCOMPARE(model.rowCount(), 2);
    QCOMPARE(text(model, 0, StationModel::ekColumn_Name), "slow");
    m_now += 300'000;
    model.update();
    QCOMPARE(model.rowCount(), 0);
}

void tst_Stations::keepsPeers()
{
    const SettingsHome home;
    StationModel stations(m_own.id, m_clock);
    {
        PeerModel peers(stations);
        announce(stations, {QUuid::createUuid(), "tower"});
        QCOMPARE(peers.add(stations.entry(0)), 0);
        QCOMPARE(peers.add(PYXNetworkEntry("gone", QHostAddress("192.0.2.8"), 1, QUuid())), 1);
        QCOMPARE(peers.add(stations.entry(0)), 0); // is there already
        QCOMPARE(peers.rowCount(), 2);
        peers.remove(1);
        peers.remove(-1);
        const QModelIndex name = peers.index(0, PeerModel::ekColumn_Name);
        const QModelIndex address = peers.index(0, PeerModel::ekColumn_Address);
        QVERIFY(peers.setData(name, " North "));
        QVERIFY(peers.setData(address, "192.0.2.7:80"));
        for (const char *text : {"", "192.0.2.7", "192.0.2.7:0", "192.0.2.7:70000", "tower:80"})
            QVERIFY2(!peers.setData(address, text), text);
        QVERIFY(!peers.setData(name, " "));
    }
    PeerModel peers(stations);
    QCOMPARE(peers.rowCount(), 1);
    QCOMPARE(text(peers, 0, PeerModel::ekColumn_Name), "North");
    QCOMPARE(text(peers, 0, PeerModel::ekColumn_Address), "192.0.2.7:80");
    QCOMPARE(text(peers, 0, PeerModel::ekColumn_Heard), "on air");
    m_now += 60'000;
    stations.update();
    QCOMPARE(text(peers, 0, PeerModel::ekColumn_Heard), "");
    PYXSettings settings(PYXSettings::eUserApplicationSettings);
    PYXNetworkEntryList list = PeerModel::emptyList();
    list.restore(settings);
    list.setDefaultEntryName("North");
    list.save(settings);
    peers.restore();
    QVERIFY(peers.setData(peers.index(0, PeerModel::ekColumn_Name), "South"));
    QCOMPARE(peers.index(0, PeerModel::ekColumn_Name).data(Qt::ToolTipRole).toString(), "Default peer");
}

QTEST_GUILESS_MAIN(tst_Stations)
#include "tst_Stations.moc"
