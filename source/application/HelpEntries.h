// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QHash>
#include <QtCore/QString>
#include <QtCore/QUrl>

namespace PYXRuntime {

/** What a help-entry file says. */
struct struHelpEntries
{
    QUrl start; ///< empty where there is no start page
    QHash<QString, QUrl> pages;
};

/** Reads a help-entry file. A file that cannot be read whole is traced, and gives nothing. */
struHelpEntries readHelpEntries(const QString &path);

} // namespace PYXRuntime
