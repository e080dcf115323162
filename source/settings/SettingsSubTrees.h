// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

namespace PYXRuntime {

class PYXSettings;

/** What PYXSettings does with whole groups. */
namespace SettingsSubTrees {

/** The name of a group without one "/" or "\\" at its end. */
QString normalised(const QString &group);

void removeSubTree(PYXSettings &settings, const QString &group);
void clone(PYXSettings &settings, const QString &source, const QString &target);
QStringList diff(PYXSettings &settings, const QString &current, const QString &clone);

void clonePaths(const QString &source, const QString &target);
QStringList diffUserPaths(const QString &current, const QString &clone);
QStringList diffSharedPaths();
bool diffAllPaths(const QString &current, const QString &clone, QStringList &userChanges,
                  QStringList &sharedChanges);

} // namespace SettingsSubTrees
} // namespace PYXRuntime
