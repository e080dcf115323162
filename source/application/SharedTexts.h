// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QHash>
#include <QtCore/QString>

namespace PYXRuntime {

/** The texts of PYXStrings by their keys, in the current language. */
void addSharedTexts(QHash<QString, QString> &texts);

} // namespace PYXRuntime
