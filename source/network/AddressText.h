// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QString>
#include <QtNetwork/QHostAddress>

namespace PYXRuntime {

/**
 * The address in a text as people copy it: with blanks, quotes or brackets around, with a port, a path, a
 * prefix length, or within a URL. IPv4 numbers are decimal, also with leading zeros. Null for anything
 * else, also for a host's name.
 */
QHostAddress addressFromText(const QString &text);

/** A typed address that is complete, and nothing but the address. Null for anything else. */
QHostAddress addressFromTypedText(const QString &text);

} // namespace PYXRuntime
