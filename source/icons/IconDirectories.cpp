// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "IconDirectories.h"

#include "FileState.h"

#include <QtCore/QDateTime>
#include <QtCore/QDir>
#include <QtCore/QDirIterator>

#include <algorithm>

namespace PYXRuntime {
namespace {

/** No file system's time stamps are coarser. */
constexpr qint64 CoarsestTimeStampMs = 2000;
constexpr qint64 NanosecondsPerMillisecond = 1'000'000;

/** Resources have no time, and change only when more are registered. */
constexpr qint64 TimeOfResources = 0;

bool isResource(const QString &path)
{
    return path.startsWith(QLatin1Char(':'));
}

} // namespace

QStringList IconDirectories::filesBeginningWith(const QDir &dir, const QString &prefix)
{
    const auto comesBefore = [](const QString &file, const QString &text) {
        return file.compare(text, Qt::CaseInsensitive) < 0;
    };
    const QStringList &files = _listing(dir).files;
    QStringList found;
    auto file = std::lower_bound(files.cbegin(), files.cend(), prefix, comesBefore);
    for (; file != files.cend() && file->startsWith(prefix, Qt::CaseInsensitive); ++file)
        found += *file;
    m_bFound |= !found.isEmpty();
    return found;
}

void IconDirectories::beginSearch()
{
    m_bUsedKept = false;
    m_bFound = false;
    m_lastPath.clear();
}

void IconDirectories::clear()
{
    m_listings.clear();
    m_lastPath.clear();
}

/** A search asks for the files of a directory and for its directories: it looks at its time only once. */
const IconDirectories::struListing &IconDirectories::_listing(const QDir &dir)
{
    const QString path = dir.path();
    if (path != m_lastPath) {
        m_lastListing = _listingNow(path);
        m_lastPath = path;
    }
    return m_lastListing;
}

IconDirectories::struListing IconDirectories::_listingNow(const QString &path)
{
    bool bMayBeKept = true; // a change from now on shows in the directory's time
    struListing listing;
    listing.nanoseconds = TimeOfResources;
    if (!isResource(path)) {
        const Platform::struFileState state = Platform::fileState(path);
        if (!state.isPresent())
            return {};
        listing.nanoseconds = state.nanoseconds;
        bMayBeKept = QDateTime::currentMSecsSinceEpoch() - state.nanoseconds / NanosecondsPerMillisecond >
                     CoarsestTimeStampMs;
    }
    const auto kept = m_listings.constFind(path);
    if (kept != m_listings.constEnd() && kept->nanoseconds == listing.nanoseconds) {
        m_bUsedKept = true;
        return *kept;
    }
    QDirIterator entries(path, QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot);
    while (entries.hasNext()) {
        entries.next();
        (entries.fileInfo().isDir() ? listing.directories : listing.files) += entries.fileName();
    }
    listing.files.sort(Qt::CaseInsensitive);
    if (bMayBeKept)
        m_listings.insert(path, listing);
    else
        m_listings.remove(path);
    return listing;
}

} // namespace PYXRuntime
