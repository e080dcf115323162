// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "pyxruntime_export.h"

#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QSize>
#include <QtCore/QStringList>
#include <QtGui/QIcon>
#include <QtGui/QImage>

#include <memory>

class QDir;

namespace PYXRuntime {

class IconDirectories;

/** The words for modes and states in the names of image files: "normal", "disabled", "on" and so on. Any
 * thread. */
PYXRUNTIME_EXPORT QHash<QIcon::Mode, QString> _iconModeNames();
PYXRUNTIME_EXPORT QHash<QIcon::State, QString> _iconStateNames();
/** "unknown" for a value that has no name. Any thread. */
PYXRUNTIME_EXPORT QString _iconModeName(QIcon::Mode mode);
PYXRUNTIME_EXPORT QString _iconStateName(QIcon::State state);

/**
 * Makes an icon of all image files of one base path, "icons/save" (no suffix), and keeps it.
 *
 * The files lie beside the base path and say in their name which mode and state they serve, or in a folder
 * that says so:
 * @code
 * icons/save_normal_off.svg   icons/save_disabled_off_32x32.png   icons/normal_on/save.ico
 * @endcode
 * Of each image file all images are taken. An SVG is rendered at the sizes for SVG icons, which are logical
 * pixels: on a screen with a device-pixel ratio of 1.5, and wherever another size is asked for, the icon
 * renders it anew, up to the largest of the sizes, so that it is sharp everywhere.
 *
 * What is wrong with the files is told through Qt's warning output; the icon is empty then. The GUI thread
 * only. The operations that have a static twin work there on getInstance().
 */
class PYXRUNTIME_EXPORT PYXIconLoader : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(PYXIconLoader)
public:
    explicit PYXIconLoader(QObject *parent = nullptr);
    /** Writes how often each path was asked for to the runtime scope "PYXIconLoader". */
    ~PYXIconLoader() override;

    static PYXIconLoader *getInstance();
    static bool hasInstance();
    static void makeSureInitialized();
    static void destroyInstance();

    /**
     * The override icon of the path, else the kept icon, else a new one with all images that are found. A
     * kept icon does not notice that files change.
     */
    QIcon load(const QString &baseFilePath);
    /** Images of that mode only, of the other state where there are none of that one. Not kept. */
    QIcon load(const QString &baseFilePath, QIcon::Mode mode, QIcon::State state);
    /** Images of exactly that mode and state. Not kept. */
    QIcon rawLoad(const QString &baseFilePath, QIcon::Mode mode, QIcon::State state);
    /**
     * The icon that the system shows for a file, a program for instance; empty where there is no such file.
     * @param index which of the icons in the file; elsewhere than on Windows there is but one
     */
    QIcon loadFromModule(const QString &modulePath, int index);

    /** The path then gives this icon, also an empty one. @return the override icon until now. */
    QIcon setOverrideIcon(const QString &path, const QIcon &icon);
    /** @return the override icon until now. */
    QIcon removeOverrideIcon(const QString &path);
    bool hasOverrideIcon(const QString &path) const;
    QIcon overrideIcon(const QString &path) const;
    void clearOverrideIcons();

    /** Icons that were handed out stay as they are. */
    void clearCache();

    /** For what is loaded from now on; kept icons stay as they are. */
    void setSizesForSVGIcons(const QList<QSize> &sizes);
    void resetSizesForSVGIcons();
    QList<QSize> sizesForSVGIcons() const;
    /** 48, 32, 24 and 16 pixels square. */
    static QList<QSize> defaultSizesForSVGIcons();

    static QIcon staticLoad(const QString &baseFilePath);
    static QIcon staticLoad(const QString &baseFilePath, QIcon::Mode mode, QIcon::State state);
    static QIcon staticRawLoad(const QString &baseFilePath, QIcon::Mode mode, QIcon::State state);
    static QIcon staticLoadFromModule(const QString &modulePath, int index);
    static QIcon staticSetOverrideIcon(const QString &path, const QIcon &icon);
    static QIcon staticRemoveOverrideIcon(const QString &path);
    static bool staticHasOverrideIcon(const QString &path);
    static QIcon staticOverrideIcon(const QString &path);
    static void staticClearOverrideIcons();
    static void staticClearCache();
    static void staticSetSizesForSVGIcons(const QList<QSize> &sizes);
    static void staticResetSizesForSVGIcons();
    static QList<QSize> staticSizesForSVGIcons();

Q_SIGNALS:
    /** For each image read, after its file was read; sizes are device pixels. */
    void si_imageLoaded(const QImage &image, QIcon::Mode mode, QIcon::State state);

private:
    using FoundImages = QMultiHash<uint, QStringList>; ///< files by mode (upper 16 bits) and state
    struct struLoaded;

    FoundImages _findImages(const QString &baseFilePath, const QString &baseName);
    FoundImages _findImages_direct(const QDir &dir, const QString &baseName);
    FoundImages _findImages_subdirs(const QDir &dir, const QString &baseName);
    struLoaded _loadImages(const FoundImages &found) const;
    QIcon _rawLoad(const FoundImages &found, QIcon::Mode mode, QIcon::State state);
    void _announce(const struLoaded &loaded);
    void _pyxDebug_dumpStatistics() const;

    QHash<QString, QIcon> m_iconCache;
    QHash<QString, QIcon> m_overrideIcons;
    QHash<QString, int> m_loadCounts;
    QList<QSize> m_sizesForSVGIcons;
    std::unique_ptr<IconDirectories> m_directories;
};

} // namespace PYXRuntime
