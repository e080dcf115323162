// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

class QSettings;

/** Saves stores where the system does not let a file be replaced that another process is just reading. */
namespace PYXRuntime::OpenFileRetry {

/**
 * Saves the changes of a store, again and again for up to two seconds while another process is in the way. To
 * be called before the store saves itself, since its status would keep what failed in between. Does nothing
 * where open files can be replaced, and for a store that is known to fail. Any thread.
 */
void save(const QSettings &settings);

} // namespace PYXRuntime::OpenFileRetry
