// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

class QObject;

namespace PYXRuntime {

/**
 * Connects a slot, as SLOT() names it, to the change of the language. Once: asking again does no harm, and
 * may be needed, since nothing happens where no translation connector is registered yet.
 */
void connectToLocaleChange(const QObject *receiver, const char *slot);

} // namespace PYXRuntime
