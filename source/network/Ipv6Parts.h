// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "Ipv4Parts.h"

#include <QtCore/QStringList>

namespace PYXRuntime {

/** An IPv6 address that may be typed in part only, taken apart. */
struct struIpv6Parts
{
    bool bCompressed = false;      ///< has "::"
    QStringList head;              ///< the groups before "::", or all; an empty one is still to be typed
    QStringList tail;              ///< the groups after "::"
    std::optional<Ipv4Parts> ipv4; ///< the dotted address at the end, which stands for two groups
    bool bHasScope = false;
    QString scope;

    int groupCount() const { return head.size() + tail.size() + (ipv4 ? 2 : 0); }
};

/** None where the text can not become an address by going on typing. */
std::optional<struIpv6Parts> splitIpv6(const QString &text);

bool isCompleteIpv6(const struIpv6Parts &parts);
/**
 * In canonical form; what is missing is zero, a group of more than ffff is ffff. A text that is too short
 * goes on with zeros, one that begins with a single ":" begins with them.
 */
QString joinedIpv6(struIpv6Parts parts);

} // namespace PYXRuntime
