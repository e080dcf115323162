// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <array>

#include <QtCore/QtGlobal>

/** How the path of each special directory is put together. */
namespace PYXRuntime::SpecialDirTable {

enum eRule {
    ekRule_Program,     ///< where the program is installed
    ekRule_Below,       ///< a name below another special directory, or the same one
    ekRule_DiskCache,   ///< below the temporary files where that spares a removable drive
    ekRule_DriveLetter, ///< of the program
    ekRule_DriveRoot,   ///< of the program
    ekRule_Shared,      ///< set in the shared settings, or a name below another special directory
    ekRule_Shell,       ///< a folder of the shell, or its stand-in below a portable program
    ekRule_Temporary    ///< named by the environment
};

/** Names of the application that stand between the other directory and the suffix. */
enum eNames { ekNames_None, ekNames_Application, ekNames_Organization, ekNames_Both };

struct struSpecialDir
{
    uint code;
    const char *name; ///< of the enumerator; null if it has none
    eRule rule;
    uint base;    ///< the code of the other directory, or the number of the shell's folder
    eNames names; ///< what follows the other directory
    /** What comes last; for a folder of the shell its place in the portable tree. Null for nothing. */
    const char *suffix;
    /** A folder's place in the portable tree of the compatibility mode; null if it has none. */
    const char *compatibleSuffix;
};

using Table = std::array<struSpecialDir, 46>;

const Table &entries();
/** Null for an unknown code. */
const struSpecialDir *find(uint code);

} // namespace PYXRuntime::SpecialDirTable
