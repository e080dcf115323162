// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QString>

#include <array>
#include <optional>

namespace PYXRuntime {

/** The four numbers of a dotted address that may be typed in part only; a missing one is empty. */
using Ipv4Parts = std::array<QString, 4>;

/** None where the text can not become an address by going on typing. */
std::optional<Ipv4Parts> splitIpv4(const QString &text);

bool isCompleteIpv4(const Ipv4Parts &parts);
/** "a.b.c.d" in plain decimal numbers: a missing one is 0, one above 255 is 255. */
QString joinedIpv4(const Ipv4Parts &parts);

} // namespace PYXRuntime
