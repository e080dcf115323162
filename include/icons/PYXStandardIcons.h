// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "IStandardIconsCallback.h"
#include "PYXStandardIconIds.h"
#include "QIconHelpers.h"
#include "struCompositeIconLayer.h"

#include <QtCore/QHash>
#include <QtCore/QSet>
#include <QtCore/QVector>
#include <QtGui/QPixmap>

#include <memory>

namespace PYXRuntime {

class PYXIconLoader;
class StandardIconCallbacks;

/**
 * The icons that all applications share, by id (see PYXStandardIconIds).
 * @code
 * saveAction->setIcon(PYXStandardIcons::staticRegisteredIcon(PYXStandardIcons::ekIcon_Save));
 * @endcode
 * An id gives, whatever comes first: its override icon; what a callback gives (the one registered last is
 * asked first); the image files it is registered to; an icon made of other ids; its built-in image files. Id
 * 0 always gives an empty icon, and the ids 1 to 3 only what is built in or overrides it.
 *
 * Icons that were handed out stay as they are when registrations and overrides change. The GUI thread only.
 * Every operation has a static twin that works on getInstance().
 */
class PYXRUNTIME_EXPORT PYXStandardIcons : public QObject, public PYXStandardIconIds
{
    Q_OBJECT
    Q_DISABLE_COPY(PYXStandardIcons)
public:
    ~PYXStandardIcons() override;

    /** Created on first use; shutting the library down destroys it. */
    static PYXStandardIcons *getInstance();
    static bool hasInstance();
    static void makeSureInitialized();
    static void destroyInstance();

    /** The enumerators with their ids, "ekIcon_Save" for instance. */
    static QHash<QString, uint> standardIconsEnum();
    static QHash<uint, QString> standardIconsEnumReverse();

    /** The icon; the not-found icon where its files are missing, the not-registered one where it has none. */
    QIcon registeredIcon(uint id);
    /** The icon with its image for this mode and state only, other ones being derived from it. */
    QIcon registeredIcon(uint id, QIcon::Mode mode, QIcon::State state);
    /** The icon; an empty one where it has no files. */
    QIcon rawRegisteredIcon(uint id);
    /** The registered base path, else the built-in one; empty where there is neither. */
    QString registeredIconPath(uint id) const;
    /** Sizes as for QIcon::pixmap(). */
    QPixmap registeredIconPixmap(uint id, const QSize &size, QIcon::Mode mode, QIcon::State state);
    QPixmap registeredIconPixmap(uint id, int extent, QIcon::Mode mode, QIcon::State state);

    /** The same of what the library itself brings, whatever overrides it. */
    QIcon builtinIcon(uint id);
    QIcon builtinIcon(uint id, QIcon::Mode mode, QIcon::State state);
    QString builtinIconPath(uint id) const;
    QPixmap builtinIconPixmap(uint id, const QSize &size, QIcon::Mode mode, QIcon::State state);
    QPixmap builtinIconPixmap(uint id, int extent, QIcon::Mode mode, QIcon::State state);

    /**
     * From now on the id has the image files of this base path (see PYXIconLoader); an empty one unregisters.
     * The ids 0 to 3 are refused, with a warning trace.
     * @return the path registered until now.
     */
    QString registerIcon(uint id, const QString &baseFilePath);
    /** @return the path registered until now. */
    QString unregisterIcon(uint id);

    /** The id then gives this icon, also an empty one; id 0 is left alone. @return the override until now. */
    QIcon setOverrideIcon(uint id, const QIcon &icon);
    /** Overrides with the icon that the other id gives now. */
    QIcon setOverrideIcon(uint id, uint otherId);
    /** @return the override icon until now. */
    QIcon removeOverrideIcon(uint id);
    void removeOverrideIcons(const QSet<uint> &ids);
    /** Both ends belong to it. */
    void removeOverrideIcons(uint firstId, uint lastId);
    bool hasOverrideIcon(uint id) const;
    QIcon overrideIcon(uint id) const;
    void clearOverrideIcons();

    QIcon iconInvisibleIcon();
    QIcon iconNotFoundIcon();
    QIcon iconNotRegisteredIcon();

    /** The layers, the first at the bottom, painted anew for each size, mode and state. */
    QIcon compositeIcon(const QList<struCompositeIconLayer> &layers);
    /** A layer with the icon that the id gives now, in a region of the composite. */
    struCompositeIconLayer
    composeIconLayer(uint id, qreal scale = 1,
                     QIconHelpers::eOverlayRegionFlag region = QIconHelpers::ekOverlayRegion_Center,
                     qreal opacity = 1);
    /** In each mode and state of the list, the icon of that entry; other ones are derived as by QIcon. */
    QIcon interleavedIcon(const QList<struIconIdModeState> &slices);
    /** The icon without all modes and states but these; other ones are derived from them as by QIcon. */
    QIcon slicedIcon(uint id, const QList<struModeState> &slices);
    /** The same of rawRegisteredIcon(). */
    QIcon rawSlicedIcon(uint id, const QList<struModeState> &slices);
    /** The overlay over the icon, both in full size. */
    QIcon registeredIconOverlaid(uint id, uint overlayId);
    /** @param alpha 0 (the overlay is not seen) to 255 */
    QIcon registeredIconOverlaidTransparent(uint id, uint overlayId, int alpha);
    /** The icon shrunk into each of the regions, to lie over others. */
    QIcon registeredIconAsOverlay(uint id, qreal scale, QIconHelpers::eOverlayRegionFlags regions);
    /**
     * The overlay shrunk into that region among @p candidates where the icon draws least; what lies close to
     * its shape is erased, so that the two stay apart.
     */
    QIcon registeredIconAutoOverlaid(uint id, uint overlayId, qreal scale,
                                     QIconHelpers::eOverlayRegionFlags candidates);
    /** Nothing is erased here. */
    QIcon registeredIconAutoOverlaidTransparent(uint id, uint overlayId, int alpha, qreal scale,
                                                QIconHelpers::eOverlayRegionFlags candidates);

    /** Loads the icons now. */
    void directEnsureRegisteredIconsAreCached(const QSet<uint> &ids);
    /** Loads them from the event loop, a batch at a time; what else the loop has to do comes in between. */
    void delayedEnsureRegisteredIconsAreCached(const QSet<uint> &ids);
    int delayLoadBatchSize() const;
    /** 5 at least, which it is at first. */
    void setDelayLoadBatchSize(int size);
    void resetDelayLoadBatchSize();

    /** See PYXIconLoader; icons that are cached keep their sizes. */
    void setSizesForSVGIcons(const QList<QSize> &sizes);
    void resetSizesForSVGIcons();
    QList<QSize> sizesForSVGIcons() const;
    static QList<QSize> defaultSizesForSVGIcons();

    /**
     * The callback stays the caller's. If it is a QObject, its end unregisters it; else the caller does.
     * @return false for null, an empty range, and what is registered already.
     */
    bool registerCallback(uint firstId, uint lastId, IStandardIconsCallback *callback);
    /** For every id from 4 on. */
    bool registerCallback(IStandardIconsCallback *callback);
    /** @return false where this is not registered for exactly that range. */
    bool unregisterCallback(uint firstId, uint lastId, IStandardIconsCallback *callback);
    /** Ends all registrations of the callback. @return false where there is none. */
    bool unregisterCallback(IStandardIconsCallback *callback);

    bool event(QEvent *event) override;

    static QHash<QString, uint> staticStandardIconsEnum();
    static QHash<uint, QString> staticStandardIconsEnumReverse();
    static QIcon staticRegisteredIcon(uint id);
    static QIcon staticRegisteredIcon(uint id, QIcon::Mode mode, QIcon::State state);
    static QIcon staticRawRegisteredIcon(uint id);
    static QString staticRegisteredIconPath(uint id);
    static QPixmap staticRegisteredIconPixmap(uint id, const QSize &size, QIcon::Mode mode,
                                              QIcon::State state);
    static QPixmap staticRegisteredIconPixmap(uint id, int extent, QIcon::Mode mode, QIcon::State state);
    static QIcon staticOriginalIcon(uint id);
    static QIcon staticOriginalIcon(uint id, QIcon::Mode mode, QIcon::State state);
    static QString staticOriginalIconPath(uint id);
    static QPixmap staticOriginalIconPixmap(uint id, const QSize &size, QIcon::Mode mode, QIcon::State state);
    static QPixmap staticOriginalIconPixmap(uint id, int extent, QIcon::Mode mode, QIcon::State state);
    static QString staticRegisterIcon(uint id, const QString &baseFilePath);
    static QString staticUnregisterIcon(uint id);
    static QIcon staticSetOverrideIcon(uint id, const QIcon &icon);
    static QIcon staticSetOverrideIcon(uint id, uint otherId);
    static QIcon staticRemoveOverrideIcon(uint id);
    static void staticRemoveOverrideIcons(const QSet<uint> &ids);
    static void staticRemoveOverrideIcons(uint firstId, uint lastId);
    static bool staticHasOverrideIcon(uint id);
    static QIcon staticOverrideIcon(uint id);
    static void staticClearOverrideIcons();
    static QIcon staticIconInvisibleIcon();
    static QIcon staticIconNotFoundIcon();
    static QIcon staticIconNotRegisteredIcon();
    static QIcon staticCompositeIcon(const QList<struCompositeIconLayer> &layers);
    static struCompositeIconLayer
    staticComposeIconLayer(uint id, qreal scale = 1,
                           QIconHelpers::eOverlayRegionFlag region = QIconHelpers::ekOverlayRegion_Center,
                           qreal opacity = 1);
    static QIcon staticInterleavedIcon(const QList<struIconIdModeState> &slices);
    static QIcon staticSlicedIcon(uint id, const QList<struModeState> &slices);
    static QIcon staticRawSlicedIcon(uint id, const QList<struModeState> &slices);
    static QIcon staticRegisteredIconOverlaid(uint id, uint overlayId);
    static QIcon staticRegisteredIconOverlaidTransparent(uint id, uint overlayId, int alpha);
    static QIcon staticRegisteredIconAsOverlay(uint id, qreal scale,
                                               QIconHelpers::eOverlayRegionFlags regions);
    static QIcon staticRegisteredIconAutoOverlaid(uint id, uint overlayId, qreal scale,
                                                  QIconHelpers::eOverlayRegionFlags candidates);
    static QIcon staticRegisteredIconAutoOverlaidTransparent(uint id, uint overlayId, int alpha, qreal scale,
                                                             QIconHelpers::eOverlayRegionFlags candidates);
    static void staticDirectEnsureRegisteredIconsAreCached(const QSet<uint> &ids);
    static void staticDelayedEnsureRegisteredIconsAreCached(const QSet<uint> &ids);
    static int staticDelayLoadBatchSize();
    static void staticSetDelayLoadBatchSize(int size);
    static void staticResetDelayLoadBatchSize();
    static void staticSetSizesForSVGIcons(const QList<QSize> &sizes);
    static void staticResetSizesForSVGIcons();
    static QList<QSize> staticSizesForSVGIcons();
    static QList<QSize> staticDefaultSizesForSVGIcons();
    static bool staticRegisterCallback(uint firstId, uint lastId, IStandardIconsCallback *callback);
    static bool staticRegisterCallback(IStandardIconsCallback *callback);
    static bool staticUnregisterCallback(uint firstId, uint lastId, IStandardIconsCallback *callback);
    static bool staticUnregisterCallback(IStandardIconsCallback *callback);

private:
    explicit PYXStandardIcons(QObject *parent = nullptr);

    enum eMissing { ekMissing_Empty, ekMissing_ShownAsSuch };
    /** Where the parts of an icon that is made of others come from. */
    enum eParts { ekParts_Builtin, ekParts_Registered };

    QIcon _registeredIcon(uint id, eMissing missing);
    QIcon _builtinIcon(uint id, eMissing missing, eParts parts);
    QIcon _loadedIcon(const QString &baseFilePath, eMissing missing);
    QIcon _specialIcon(uint id);
    QIcon _madeIcon(uint id, eParts parts);
    QIcon _autoOverlaid(uint id, struCompositeIconLayer overlay, uint overlayId, qreal scale,
                        QIconHelpers::eOverlayRegionFlags candidates);
    void _postNextBatch();

    PYXIconLoader *m_loader; // a child
    QHash<uint, QString> m_builtinPaths;
    QHash<uint, QString> m_registeredPaths;
    std::unique_ptr<StandardIconCallbacks> m_callbacks;
    int m_delayLoadBatchSize;
    QHash<uint, QIcon> m_overrideIcons;
    QHash<uint, QIcon> m_specialIcons;
    struct struMadeIcon
    {
        QVector<qint64> keys; ///< of the parts
        QIcon icon;
    };
    QHash<uint, struMadeIcon> m_madeIcons;
    QList<QSet<uint>> m_batches;
    bool m_bBatchUnderway = false;
};

} // namespace PYXRuntime
