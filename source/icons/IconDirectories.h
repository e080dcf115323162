// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QHash>
#include <QtCore/QStringList>

class QDir;

namespace PYXRuntime {

/**
 * What lies in the directories of icons, so that a directory of hundreds of icons is not listed for each of
 * them. A listing is kept while the directory's time stands still, where it has one.
 */
class IconDirectories final
{
public:
    /** Sorted; that begin so in any case of letters. */
    QStringList filesBeginningWith(const QDir &dir, const QString &prefix);
    QStringList directories(const QDir &dir) { return _listing(dir).directories; }

    void beginSearch();
    /** Whether nothing was found since then, some of it in kept listings. */
    bool mayHaveMissedFiles() const { return m_bUsedKept && !m_bFound; }
    void clear();

private:
    struct struListing
    {
        QStringList files; ///< sorted without regard to case
        QStringList directories;
        qint64 nanoseconds = 0; ///< when the directory was changed
    };

    const struListing &_listing(const QDir &dir);
    struListing _listingNow(const QString &path);

    QHash<QString, struListing> m_listings;
    QString m_lastPath; ///< in this search
    struListing m_lastListing;
    bool m_bUsedKept = false;
    bool m_bFound = false;
};

} // namespace PYXRuntime
