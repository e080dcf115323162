// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QStringList>

#include <optional>

namespace PYXRuntime {

/** A compiled translation file whose every offset and length has been checked. */
struct struQmFile
{
    QByteArray content;       ///< the known sections without the names of other files; just a head if none
    QStringList dependencies; ///< names of other files that belong to it
    bool bHasMessages = false;
};

/**
 * Checks a file before QTranslator gets it, which believes every length it finds while it looks texts up.
 * Takes time and memory in proportion to the file. @return nothing where the file is damaged.
 */
std::optional<struQmFile> checkedQmFile(const QByteArray &bytes);

} // namespace PYXRuntime
