// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "IconDirectories.h"

#include <QtCore/QDir>
#include <QtCore/QDirIterator>

#include <chrono>
#include <filesystem>

namespace PYXRuntime {
namespace {

namespace fs = std::filesystem;

/** No file system's time stamps are coarser. */
constexpr auto CoarsestTimeStamp = std::chrono::seconds(2);

/** Resources have no time, and change only when more are registered. */
constexpr qint64 TimeOfResources = 0;

IconDirectories::struListing read(const QString &path)
{
    IconDirectories::struListing listing;
    QDirIterator entries(path, QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot);
    while (entries.hasNext()) {
        entries.next();
        (entries.fileInfo().isDir() ? listing.directories : listing.files) += entries.fileName();
    }
    listing.files.sort(Qt::CaseInsensitive);
    return listing;
}

bool isResource(const QString &path)
{
    return path.startsWith(QLatin1Char(':'));
}

} // namespace

IconDirectories::struListing IconDirectories::listing(const QDir &dir)
{
    const QString path = dir.path();
    bool bMayBeKept = true; // a change from now on shows in the directory's time
    qint64 time = TimeOfResources;
    if (!isResource(path)) {
        std::error_code error;
        const fs::file_time_type changed = fs::last_write_time(fs::path(path.toStdU16String()), error);
        if (error)
            return {};
        time = changed.time_since_epoch().count();
        bMayBeKept = fs::file_time_type::clock::now() - changed > CoarsestTimeStamp;
    }
    const auto kept = m_listings.constFind(path);
    if (kept != m_listings.constEnd() && kept->time == time)
        return kept->listing;
    struListing listing = read(path);
    if (bMayBeKept)
        m_listings.insert(path, {listing, time});
    else
        m_listings.remove(path);
    return listing;
}

bool IconDirectories::forgetResources()
{
    const int count = m_listings.size();
    for (auto it = m_listings.begin(); it != m_listings.end();)
        it = isResource(it.key()) ? m_listings.erase(it) : std::next(it);
    return m_listings.size() < count;
}

} // namespace PYXRuntime
