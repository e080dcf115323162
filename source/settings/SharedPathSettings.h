// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "Latin1Text.h"

/** The directories of the organisation that have a setting in the shared stores. */
namespace PYXRuntime::SharedPathSettings {

struct struSharedPath
{
    QLatin1String key;
    uint specialDir; ///< the code of PYXIApplicationInfo, which belongs to a room above
};

/** The group of all of them. */
constexpr QLatin1String Group = latin1("Paths");

constexpr struSharedPath Scripts{latin1("Paths/Scripts"), 26};
constexpr struSharedPath Collections{latin1("Paths/Collections"), 27};
constexpr struSharedPath DetectorProfiles{latin1("Paths/DetectorProfiles"), 28};

} // namespace PYXRuntime::SharedPathSettings
