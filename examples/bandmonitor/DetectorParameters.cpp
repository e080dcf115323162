// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#include "DetectorParameters.h"

#include <PYXSettings.h>

#include <algorithm>
#include <cmath>

using PYXRuntime::PYXSettings;
using PYXRuntime::PYXStatusHash;

namespace BandMonitor {
namespace {

const QLatin1String SettingsKey("Detector/Parameters");
const QLatin1String ThresholdKey("Threshold");
const QLatin1String HysteresisKey("Hysteresis");
const QLatin1String LargestGapKey("LargestGap");

constexpr quint32 MagicNumber = 0x42444554; // "BDET"

double numberIn(const PYXStatusHash &hash, const QString &key, double otherwise)
{
    bool bNumber = false;
    const double number = hash.value(key).toDouble(&bNumber);
    return bNumber && std::isfinite(number) ? number : otherwise;
}

} // namespace

bool struDetectorParameters::operator==(const struDetectorParameters &other) const
{
    return threshold == other.threshold && hysteresis == other.hysteresis && largestGap == other.largestGap;
}

PYXStatusHash struDetectorParameters::toStatusHash() const
{
    PYXStatusHash hash(MagicNumber);
    hash.insert(ThresholdKey, threshold);
    hash.insert(HysteresisKey, hysteresis);
    hash.insert(LargestGapKey, largestGap);
    return hash;
}

struDetectorParameters struDetectorParameters::fromStatusHash(const PYXStatusHash &hash)
{
    struDetectorParameters parameters;
    if (hash.magicNumber() != MagicNumber)
        return parameters;
    parameters.threshold =
        std::clamp(numberIn(hash, ThresholdKey, parameters.threshold), SmallestThreshold, LargestThreshold);
    parameters.hysteresis =
        std::clamp(numberIn(hash, HysteresisKey, parameters.hysteresis), 0.0, parameters.threshold);
    parameters.largestGap =
        int(std::clamp(numberIn(hash, LargestGapKey, parameters.largestGap), 0.0, double(WidestGap)));
    return parameters;
}

struDetectorParameters struDetectorParameters::restored(const PYXSettings &settings)
{
    return fromStatusHash(settings.statusHashValue(SettingsKey));
}

struDetectorParameters struDetectorParameters::restored()
{
    return restored(PYXSettings(PYXSettings::eUserApplicationSettings));
}

void struDetectorParameters::save(PYXSettings &settings) const
{
    settings.setValue(SettingsKey, toStatusHash());
}

} // namespace BandMonitor
