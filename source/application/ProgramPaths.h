// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QString>

#include <initializer_list>

/** Paths as texts, those with a drive letter on every system. */
namespace PYXRuntime::ProgramPaths {

/** "C:/x" or "C:", not "C:x", which depends on the current directory. */
bool hasDriveLetter(const QString &path);
QString withoutSeparator(const QString &path);
/** The parts that are not empty, with "/" between. */
QString joined(std::initializer_list<QString> parts);
/** The parent of a directory named "bin", in any case of letters; another directory itself. */
QString aboveBin(const QString &directory);
/** Clean and absolute. */
QString absolute(const QString &path);

} // namespace PYXRuntime::ProgramPaths
