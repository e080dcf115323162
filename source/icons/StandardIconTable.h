// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/qglobal.h>

namespace PYXRuntime {

/** One line of the catalogue. */
struct struStandardIcon
{
    uint id;
    const char *name; ///< of the enumerator
    const char *path; ///< base path below the icons' resource directory; null where there is no file
};

/** The catalogue, by rising id. */
struct StandardIconTable
{
    const struStandardIcon *first;
    const struStandardIcon *last; ///< one behind

    const struStandardIcon *begin() const { return first; }
    const struStandardIcon *end() const { return last; }
};

StandardIconTable standardIconTable();

} // namespace PYXRuntime
