// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXIconLoader.h"

#include "FileIcon.h"
#include "IconDirectories.h"
#include "IconFileNames.h"
#include "ImageIconEngine.h"
#include "PYXRuntimeCenter.h"
#include "SingletonHolder.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QMetaMethod>

#include <algorithm>

namespace PYXRuntime {
namespace {

using Holder = SingletonHolder<PYXIconLoader>;

const uint s_runtimeScope = PYXRuntimeCenter::registerRuntimeScope(
    QStringLiteral("PYXIconLoader"),
    QStringLiteral(QT_TRANSLATE_NOOP("PYXRuntime::RuntimeScopes", "How often icons are asked for")));

uint keyOf(const struModeState &modeState)
{
    return (uint(modeState.mode) << 16) | uint(modeState.state);
}

void warn(const QString &format, const QString &names)
{
    qWarning("%s", qUtf8Printable(format.arg(names)));
}

bool hasTags(const QString &file, const struIconFileTag &tag)
{
    return file.contains(tag.mode, Qt::CaseInsensitive) && file.contains(tag.state, Qt::CaseInsensitive);
}

QSize largestOf(const QList<QSize> &sizes)
{
    const auto area = [](const QSize &size) { return qint64(size.width()) * size.height(); };
    const auto largest = std::max_element(sizes.cbegin(), sizes.cend(),
                                          [&](const QSize &a, const QSize &b) { return area(a) < area(b); });
    return largest == sizes.cend() ? QSize() : *largest;
}

} // namespace

/** A new icon, and what is to be said of it. */
struct PYXIconLoader::struLoaded
{
    QIcon icon;
    QVector<QPair<QImage, struModeState>> images; ///< empty where nobody listens
};

PYXIconLoader::PYXIconLoader(QObject *parent)
    : QObject(parent)
    , m_sizesForSVGIcons(defaultSizesForSVGIcons())
    , m_directories(std::make_unique<IconDirectories>())
{
    setObjectName(QStringLiteral("PYXIconLoader"));
}

PYXIconLoader::~PYXIconLoader()
{
    _pyxDebug_dumpStatistics();
}

PYXIconLoader *PYXIconLoader::getInstance()
{
    return Holder::instance([] {
        auto *const loader = new PYXIconLoader;
        loader->setObjectName(QStringLiteral("PYXIconLoader(defaultInstance)"));
        return loader;
    });
}

bool PYXIconLoader::hasInstance()
{
    return Holder::existing() != nullptr;
}

void PYXIconLoader::makeSureInitialized()
{
    getInstance();
}

void PYXIconLoader::destroyInstance()
{
    delete Holder::take();
}

QIcon PYXIconLoader::load(const QString &baseFilePath)
{
    const auto overriding = m_overrideIcons.constFind(baseFilePath);
    if (overriding != m_overrideIcons.constEnd()) {
        ++m_loadCounts[baseFilePath];
        return *overriding;
    }
    const auto kept = m_iconCache.constFind(baseFilePath);
    if (kept != m_iconCache.constEnd()) {
        ++m_loadCounts[baseFilePath];
        return *kept;
    }
    const QString baseName = _baseName(baseFilePath);
    const struLoaded loaded = _loadImages(_findImages(baseFilePath, baseName));
    if (loaded.icon.isNull()) {
        qWarning("%s",
                 qUtf8Printable(QStringLiteral("No image files found. baseFilePath [%1] => baseName [%2]")
                                    .arg(baseFilePath, baseName)));
        return {};
    }
    m_iconCache.insert(baseFilePath, loaded.icon);
    ++m_loadCounts[baseFilePath];
    _announce(loaded);
    return loaded.icon;
}

QIcon PYXIconLoader::load(const QString &baseFilePath, QIcon::Mode mode, QIcon::State state)
{
    const FoundImages found = _findImages(baseFilePath, _baseName(baseFilePath));
    const QPointer<PYXIconLoader> self(this);
    QIcon icon = _rawLoad(found, mode, state);
    if (!icon.isNull() || !self || (state != QIcon::On && state != QIcon::Off))
        return icon;
    return _rawLoad(found, mode, state == QIcon::On ? QIcon::Off : QIcon::On);
}

QIcon PYXIconLoader::rawLoad(const QString &baseFilePath, QIcon::Mode mode, QIcon::State state)
{
    return _rawLoad(_findImages(baseFilePath, _baseName(baseFilePath)), mode, state);
}

QIcon PYXIconLoader::loadFromModule(const QString &modulePath, int index)
{
    return QFileInfo::exists(modulePath) ? Platform::fileIcon(modulePath, index) : QIcon();
}

QIcon PYXIconLoader::setOverrideIcon(const QString &path, const QIcon &icon)
{
    QIcon &overriding = m_overrideIcons[path];
    return std::exchange(overriding, icon);
}

QIcon PYXIconLoader::removeOverrideIcon(const QString &path)
{
    return m_overrideIcons.take(path);
}

bool PYXIconLoader::hasOverrideIcon(const QString &path) const
{
    return m_overrideIcons.contains(path);
}

QIcon PYXIconLoader::overrideIcon(const QString &path) const
{
    return m_overrideIcons.value(path);
}

void PYXIconLoader::clearOverrideIcons()
{
    m_overrideIcons.clear();
}

void PYXIconLoader::clearCache()
{
    m_iconCache.clear();
    m_directories->clear();
}

void PYXIconLoader::setSizesForSVGIcons(const QList<QSize> &sizes)
{
    if (m_sizesForSVGIcons != sizes)
        m_sizesForSVGIcons = sizes;
}

void PYXIconLoader::resetSizesForSVGIcons()
{
    setSizesForSVGIcons(defaultSizesForSVGIcons());
}

QList<QSize> PYXIconLoader::sizesForSVGIcons() const
{
    return m_sizesForSVGIcons;
}

QList<QSize> PYXIconLoader::defaultSizesForSVGIcons()
{
    return {{48, 48}, {32, 32}, {24, 24}, {16, 16}};
}

PYXIconLoader::FoundImages PYXIconLoader::_findImages(const QString &baseFilePath, const QString &baseName)
{
    if (baseName.isEmpty())
        return {};
    const QDir dir = QFileInfo(baseFilePath).absoluteDir();
    m_directories->beginSearch();
    FoundImages found = _findImages_direct(dir, baseName) + _findImages_subdirs(dir, baseName);
    if (m_directories->mayHaveMissedFiles()) { // not every file system and no resource tells of new files
        m_directories->clear();
        found = _findImages_direct(dir, baseName) + _findImages_subdirs(dir, baseName);
    }
    return found;
}

PYXIconLoader::FoundImages PYXIconLoader::_findImages_direct(const QDir &dir, const QString &baseName)
{
    FoundImages found;
    QStringList unspecified;
    QHash<uint, QStringList> paths;
    for (const QString &file : m_directories->filesBeginningWith(dir, baseName)) {
        if (_baseName(file) != baseName)
            continue;
        const auto &tags = iconFileTags();
        const auto tag = std::find_if(tags.cbegin(), tags.cend(), [&file](const struIconFileTag &candidate) {
            return hasTags(file, candidate);
        });
        if (tag == tags.cend())
            unspecified += file;
        else
            paths[keyOf(tag->modeState)] += dir.absoluteFilePath(file);
    }
    for (auto it = paths.cbegin(); it != paths.cend(); ++it)
        found.insert(it.key(), it.value());
    if (!unspecified.isEmpty())
        warn(
            QStringLiteral("Image files must specify mode and state in the name: these unspecified files are "
                           "ignored [%1]"),
            unspecified.join(QLatin1String(", ")));
    return found;
}

PYXIconLoader::FoundImages PYXIconLoader::_findImages_subdirs(const QDir &dir, const QString &baseName)
{
    FoundImages found;
    const QStringList directories = m_directories->directories(dir);
    for (const struIconFileTag &tag : iconFileTags()) {
        // The file system decides whether case matters.
        if (!directories.contains(tag.folder, Qt::CaseInsensitive) || !dir.exists(tag.folder))
            continue;
        const QDir subdir(dir.absoluteFilePath(tag.folder));
        QStringList paths;
        QStringList others;
        for (const QString &file : m_directories->filesBeginningWith(subdir, baseName)) {
            if (_baseName(file) == baseName)
                paths += subdir.absoluteFilePath(file);
            else
                others += file;
        }
        if (!paths.isEmpty())
            found.insert(keyOf(tag.modeState), paths);
        if (!others.isEmpty())
            warn(QStringLiteral("Unspecified files are ignored [%1]"), others.join(QLatin1String(", ")));
    }
    return found;
}

PYXIconLoader::struLoaded PYXIconLoader::_loadImages(const FoundImages &found) const
{
    const bool bAnnounced =
        !signalsBlocked() && isSignalConnected(QMetaMethod::fromSignal(&PYXIconLoader::si_imageLoaded));
    QList<QSize> sizes;
    for (const QSize &size : m_sizesForSVGIcons)
        sizes += size * highestScreenRatio();
    auto engine = std::make_unique<ImageIconEngine>();
    struLoaded loaded;
    for (const struIconFileTag &tag : iconFileTags()) {
        for (const QStringList &paths : found.values(keyOf(tag.modeState))) {
            for (const QString &path : paths) {
                const struIconImageFile file = readIconImageFile(path, sizes);
                engine->add(file, tag.modeState, largestOf(m_sizesForSVGIcons));
                for (const QImage &image : bAnnounced ? file.images : QVector<QImage>())
                    loaded.images += {image, tag.modeState};
            }
        }
    }
    if (!engine->isNull())
        loaded.icon = QIcon(engine.release());
    return loaded;
}

QIcon PYXIconLoader::_rawLoad(const FoundImages &found, QIcon::Mode mode, QIcon::State state)
{
    const uint key = keyOf({mode, state});
    FoundImages wanted;
    for (const QStringList &paths : found.values(key))
        wanted.insert(key, paths);
    const struLoaded loaded = _loadImages(wanted);
    _announce(loaded);
    return loaded.icon;
}

/** Comes last, since a listener may load the same again, and may delete the loader. */
void PYXIconLoader::_announce(const struLoaded &loaded)
{
    const QPointer<PYXIconLoader> self(this);
    for (const auto &[image, modeState] : loaded.images) {
        if (self)
            Q_EMIT si_imageLoaded(image, modeState.mode, modeState.state);
    }
}

void PYXIconLoader::_pyxDebug_dumpStatistics() const
{
    if (!PYXRuntimeCenter::isEnabled_pyxDebug(s_runtimeScope))
        return;
    if (m_loadCounts.isEmpty()) {
        PYXRuntimeCenter::pyxDebug(s_runtimeScope,
                                   QStringLiteral("PYXIconLoader (%1) - no icons loaded").arg(objectName()));
        return;
    }
    PYXRuntimeCenter::pyxDebug(s_runtimeScope,
                               QStringLiteral("PYXIconLoader (%1) - Statistics").arg(objectName()));
    QVector<QPair<int, QString>> counts;
    for (auto it = m_loadCounts.cbegin(); it != m_loadCounts.cend(); ++it)
        counts += {-it.value(), it.key()}; // so that the highest come first, and equal ones by path
    std::sort(counts.begin(), counts.end());
    for (const auto &[negated, path] : qAsConst(counts))
        PYXRuntimeCenter::pyxDebug(s_runtimeScope,
                                   QStringLiteral("%1 - %2").arg(QString::number(-negated), path));
}

} // namespace PYXRuntime
