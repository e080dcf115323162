// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

class QFileDevice;

namespace PYXRuntime {

/**
 * Copies settings files that cannot be read aside, as "<name>.damaged-<UTC>", since QSettings replaces
 * them with the next write. The newest three copies of a file are kept.
 */
class DamagedFileKeeper final
{
public:
    /**
     * Keeps the content of an open file, unless a copy has it already, and traces a warning.
     * The position of @p file changes.
     */
    static void keep(QFileDevice &file);
};

} // namespace PYXRuntime
