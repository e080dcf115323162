// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QLatin1String>

/** The directories of the organisation that have a setting in the shared stores. */
namespace PYXRuntime::SharedPathSettings {

struct struSharedPath
{
    QLatin1String key;
    uint specialDir; ///< the code of PYXIApplicationInfo, which belongs to a room above
};

/** The group of all of them. */
constexpr QLatin1String Group("Paths");

constexpr struSharedPath Scripts{QLatin1String("Paths/Scripts"), 26};
constexpr struSharedPath Collections{QLatin1String("Paths/Collections"), 27};
constexpr struSharedPath DetectorProfiles{QLatin1String("Paths/DetectorProfiles"), 28};

} // namespace PYXRuntime::SharedPathSettings
