// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QHash>
#include <QtCore/QStringList>

class QDir;

namespace PYXRuntime {

/**
 * What lies in the directories of icons, so that a directory of hundreds of icons is not listed for each of
 * them. A listing is kept while the directory's time stands still.
 */
class IconDirectories final
{
public:
    struct struListing
    {
        QStringList files; ///< names, sorted
        QStringList directories;
    };

    struListing listing(const QDir &dir);
    /** @return whether there were any. */
    bool forgetResources();
    void clear() { m_listings.clear(); }

private:
    struct struKept
    {
        struListing listing;
        qint64 time; ///< when the directory was changed
    };

    QHash<QString, struKept> m_listings;
};

} // namespace PYXRuntime
