// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
//
// A list of stations that is kept in the settings, and what the host knows of the way to them.
#include <PYXHostAddressHelpers.h>
#include <PYXNetworkEntryList.h>
#include <PYXRuntime.h>
#include <PYXSettings.h>

#include <QApplication>
#include <QTextStream>

using namespace PYXRuntime;

namespace {

/** The keys say under which names the list is kept; a value without a key is not kept. */
PYXNetworkEntryList emptyList()
{
    PYXNetworkEntryList stations;
    stations.setGroupKey("Stations");
    stations.setLatitudeKey(PYXNetworkEntryList::latitudeKeyName());
    stations.setLongitudeKey(PYXNetworkEntryList::longitudeKeyName());
    return stations;
}

void save()
{
    PYXNetworkEntryList stations = emptyList();
    stations += PYXNetworkEntry("Far", QHostAddress("192.0.2.5"), 8080, QUuid::createUuid());
    stations += PYXNetworkEntry("Here", QHostAddress(QHostAddress::LocalHost), 8080, QUuid::createUuid());
    stations.first().setGeoPosition(47.6, 7.5, 280.0);
    PYXSettings settings(PYXSettings::eUserApplicationSettings);
    stations.save(settings);
}

PYXNetworkEntryList restored()
{
    PYXNetworkEntryList stations = emptyList();
    PYXSettings settings(PYXSettings::eUserApplicationSettings);
    stations.restore(settings);
    return stations;
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QApplication::setOrganizationName("Example");
    QApplication::setApplicationName("07 Network");
    initialize_PYXRuntime();

    save();
    const PYXNetworkEntryList stations = restored();
    // The one the user has chosen, else the nearest.
    const PYXNetworkEntry station =
        stations.containsDefaultEntry() ? stations.defaultEntry() : stations.decidePeerAddress();
    QTextStream out(stdout);
    out << stations.size() << " stations, use " << station.toString() << '\n';

    const PYXNetworkEntry caller = PYXNetworkEntry::parseIPPortString("127.0.0.1:8080");
    out << caller.toString() << " is known: " << (stations.containsMatchingEntry(caller) ? "yes" : "no")
        << '\n';

    // The address at which the station can reach this program.
    const QHostAddress own = PYXHostAddressHelpers::decideOwnAddressForPeer(station);
    out << "this program names itself " << own.toString() << '\n';

    uninitialize_PYXRuntime();
    return stations.size() == 2 && stations.first().hasGeoPosition() && !own.isNull() ? 0 : 1;
}
