// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QMap>

/** Every QObject of the process, by the hooks that Qt has for debuggers. Begin it before there are objects.
 */
namespace ObjectCensus {

void begin();
int count();
/** By class. Asks every object: where no other thread makes or destroys any. */
QMap<QByteArray, int> histogram();

} // namespace ObjectCensus
