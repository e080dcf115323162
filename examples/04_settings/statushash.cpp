// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
//
// The state of a part of the program as one value, which is stored as such, or as XML that people can read.
#include <PYXRuntime.h>
#include <PYXSettings.h>
#include <PYXStatusHash.h>

#include <QApplication>
#include <QRect>
#include <QTextStream>

using PYXRuntime::PYXSettings;
using PYXRuntime::PYXStatusHash;

namespace {

constexpr quint32 ReceiverState = 0x52435652; // the magic number: what such a hash holds
constexpr quint32 DetectorState = 0x44455445;

PYXStatusHash currentState()
{
    PYXStatusHash detector(DetectorState);
    detector.insert("Enabled", true);

    PYXStatusHash state(ReceiverState);
    state.insert("Gain", 12.5);
    state.insert("Window", QRect(0, 0, 640, 480));
    state.insert("Detector", detector); // hashes in hashes
    return state;
}

QString described(const PYXStatusHash &state)
{
    PYXStatusHash detector(DetectorState);
    if (!state.value("Detector", detector))
        return "no detector";
    return QString("gain %1 dB, detector %2")
        .arg(state.value("Gain").toDouble())
        .arg(detector.value("Enabled").toBool() ? "on" : "off");
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QApplication::setOrganizationName("Example");
    QApplication::setApplicationName("04 Status Hash");
    PYXRuntime::initialize_PYXRuntime();

    PYXSettings settings(PYXSettings::eUserApplicationSettings);
    settings.setValue("State", currentState());

    PYXStatusHash restored(ReceiverState);
    const bool isRestored = restored.restoreFromXml(settings.statusHashValue("State").toXml());
    // A hash that was made with a magic number refuses data with another one.
    const bool isRefused = !PYXStatusHash(DetectorState).restoreFromXml(restored.toXml());

    QTextStream(stdout) << "as XML: " << restored.toXml() << '\n'
                        << described(restored) << '\n'
                        << (isRefused ? "other data refused\n" : "other data taken\n");
    PYXRuntime::uninitialize_PYXRuntime();
    return isRestored && isRefused ? 0 : 1;
}
