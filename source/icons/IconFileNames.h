// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "struCompositeIconLayer.h"

#include <QtCore/QString>
#include <QtCore/QVector>

namespace PYXRuntime {

/** What names a mode and a state. */
struct struIconFileTag
{
    struModeState modeState;
    QString mode; ///< in file names, as "_normal"
    QString state;
    QString folder; ///< as "normal_off"
};

/** Every pair of a mode and a state, in the order in which files are tried for them. */
const QVector<struIconFileTag> &iconFileTags();

/**
 * The file name up to its first dot, without tags of size, mode and state; beware: also without any part that
 * only begins like such a tag ("print_selected_all" gives "print_all").
 */
QString _baseName(const QString &path);

} // namespace PYXRuntime
