// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

class QObject;

namespace PYXRuntime {

/**
 * Makes the application information that the broker registers when it comes into being. Declared here and
 * defined in the room of application information, which builds on this one. Called while the library loads:
 * neither QCoreApplication nor any static object of the library can be relied upon.
 */
QObject *createStandardApplicationInfo(QObject *parent);

} // namespace PYXRuntime
