// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QString>

/** The lock file that a process leaves which was killed between making it and writing its number into it. */
namespace PYXRuntime::EmptyLock {

/**
 * Removes such a lock of a settings file, after half a second in which its process may still go on. QLockFile
 * cannot tell whose it was and would let the next save wait for half a minute. Any thread.
 */
void remove(const QString &settingsFile);

} // namespace PYXRuntime::EmptyLock
