// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

class QFileDevice;
class QString;

/**
 * Keeps one process from overwriting what another has saved. QSettings reads a file again when its size or
 * its time in milliseconds is another than it remembers, and falls short twice: it looks at them after
 * reading without a lock, by when they may be those of a newer file that it has not read; and two files can
 * have both in common. So this keeps what was really read or written last. Any thread.
 */
namespace PYXRuntime::SeenStates {

/** To be called by a format's function before it reads. Goes on watching until the device is destroyed. */
void noteRead(QFileDevice &file);

/** To be called by a format's function that has written. Goes on watching until the device is destroyed. */
void noteWritten(QFileDevice &file);

/**
 * Whether the file is still the one that was last read or written, so that it may be replaced. Otherwise it
 * is given another time, so that QSettings reads it at its next attempt. To be called with the file locked.
 */
bool mayReplace(const QString &path);

/** Gives a file that QSettings may take for the one that it knows another time. To be called before saving.
 */
void discloseChange(const QString &path);

} // namespace PYXRuntime::SeenStates
