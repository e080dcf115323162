// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "PYXIFileList.h"

namespace PYXRuntime {

/**
 * Registers a file with the broker's list of files, if there is one. Any thread: from another one than the
 * list's, the registration is sent there.
 * @param type Qt::AutoConnection, or Qt::QueuedConnection to send it in any case
 */
void registerWrittenFile(const PYXIFileList::struFileData &file, Qt::ConnectionType type);

/** Returns when no registration is being sent any more to a list that has left the broker. */
void awaitFileRegistrations();

} // namespace PYXRuntime
