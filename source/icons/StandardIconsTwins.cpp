// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXStandardIcons.h"

// The static twins.

namespace PYXRuntime {

QHash<QString, uint> PYXStandardIcons::staticStandardIconsEnum()
{
    return standardIconsEnum();
}

QHash<uint, QString> PYXStandardIcons::staticStandardIconsEnumReverse()
{
    return standardIconsEnumReverse();
}

QIcon PYXStandardIcons::staticRegisteredIcon(uint id)
{
    return getInstance()->registeredIcon(id);
}

QIcon PYXStandardIcons::staticRegisteredIcon(uint id, QIcon::Mode mode, QIcon::State state)
{
    return getInstance()->registeredIcon(id, mode, state);
}

QIcon PYXStandardIcons::staticRawRegisteredIcon(uint id)
{
    return getInstance()->rawRegisteredIcon(id);
}

QString PYXStandardIcons::staticRegisteredIconPath(uint id)
{
    return getInstance()->registeredIconPath(id);
}

QPixmap PYXStandardIcons::staticRegisteredIconPixmap(uint id, const QSize &size, QIcon::Mode mode,
                                                     QIcon::State state)
{
    return getInstance()->registeredIconPixmap(id, size, mode, state);
}

QPixmap PYXStandardIcons::staticRegisteredIconPixmap(uint id, int extent, QIcon::Mode mode,
                                                     QIcon::State state)
{
    return getInstance()->registeredIconPixmap(id, extent, mode, state);
}

QIcon PYXStandardIcons::staticOriginalIcon(uint id)
{
    return getInstance()->builtinIcon(id);
}

QIcon PYXStandardIcons::staticOriginalIcon(uint id, QIcon::Mode mode, QIcon::State state)
{
    return getInstance()->builtinIcon(id, mode, state);
}

QString PYXStandardIcons::staticOriginalIconPath(uint id)
{
    return getInstance()->builtinIconPath(id);
}

QPixmap PYXStandardIcons::staticOriginalIconPixmap(uint id, const QSize &size, QIcon::Mode mode,
                                                   QIcon::State state)
{
    return getInstance()->builtinIconPixmap(id, size, mode, state);
}

QPixmap PYXStandardIcons::staticOriginalIconPixmap(uint id, int extent, QIcon::Mode mode, QIcon::State state)
{
    return getInstance()->builtinIconPixmap(id, extent, mode, state);
}

QString PYXStandardIcons::staticRegisterIcon(uint id, const QString &baseFilePath)
{
    return getInstance()->registerIcon(id, baseFilePath);
}

QString PYXStandardIcons::staticUnregisterIcon(uint id)
{
    return getInstance()->unregisterIcon(id);
}

QIcon PYXStandardIcons::staticSetOverrideIcon(uint id, const QIcon &icon)
{
    return getInstance()->setOverrideIcon(id, icon);
}

QIcon PYXStandardIcons::staticSetOverrideIcon(uint id, uint otherId)
{
    return getInstance()->setOverrideIcon(id, otherId);
}

QIcon PYXStandardIcons::staticRemoveOverrideIcon(uint id)
{
    return getInstance()->removeOverrideIcon(id);
}

void PYXStandardIcons::staticRemoveOverrideIcons(const QSet<uint> &ids)
{
    getInstance()->removeOverrideIcons(ids);
}

void PYXStandardIcons::staticRemoveOverrideIcons(uint firstId, uint lastId)
{
    getInstance()->removeOverrideIcons(firstId, lastId);
}

bool PYXStandardIcons::staticHasOverrideIcon(uint id)
{
    return getInstance()->hasOverrideIcon(id);
}

QIcon PYXStandardIcons::staticOverrideIcon(uint id)
{
    return getInstance()->overrideIcon(id);
}

void PYXStandardIcons::staticClearOverrideIcons()
{
    getInstance()->clearOverrideIcons();
}

QIcon PYXStandardIcons::staticIconInvisibleIcon()
{
    return getInstance()->iconInvisibleIcon();
}

QIcon PYXStandardIcons::staticIconNotFoundIcon()
{
    return getInstance()->iconNotFoundIcon();
}

QIcon PYXStandardIcons::staticIconNotRegisteredIcon()
{
    return getInstance()->iconNotRegisteredIcon();
}

QIcon PYXStandardIcons::staticCompositeIcon(const QList<struCompositeIconLayer> &layers)
{
    return getInstance()->compositeIcon(layers);
}

struCompositeIconLayer PYXStandardIcons::staticComposeIconLayer(uint id, qreal scale,
                                                                QIconHelpers::eOverlayRegionFlag region,
                                                                qreal opacity)
{
    return getInstance()->composeIconLayer(id, scale, region, opacity);
}

QIcon PYXStandardIcons::staticInterleavedIcon(const QList<struIconIdModeState> &slices)
{
    return getInstance()->interleavedIcon(slices);
}

QIcon PYXStandardIcons::staticSlicedIcon(uint id, const QList<struModeState> &slices)
{
    return getInstance()->slicedIcon(id, slices);
}

QIcon PYXStandardIcons::staticRawSlicedIcon(uint id, const QList<struModeState> &slices)
{
    return getInstance()->rawSlicedIcon(id, slices);
}

QIcon PYXStandardIcons::staticRegisteredIconOverlaid(uint id, uint overlayId)
{
    return getInstance()->registeredIconOverlaid(id, overlayId);
}

QIcon PYXStandardIcons::staticRegisteredIconOverlaidTransparent(uint id, uint overlayId, int alpha)
{
    return getInstance()->registeredIconOverlaidTransparent(id, overlayId, alpha);
}

QIcon PYXStandardIcons::staticRegisteredIconAsOverlay(uint id, qreal scale,
                                                      QIconHelpers::eOverlayRegionFlags regions)
{
    return getInstance()->registeredIconAsOverlay(id, scale, regions);
}

QIcon PYXStandardIcons::staticRegisteredIconAutoOverlaid(uint id, uint overlayId, qreal scale,
                                                         QIconHelpers::eOverlayRegionFlags candidates)
{
    return getInstance()->registeredIconAutoOverlaid(id, overlayId, scale, candidates);
}

QIcon PYXStandardIcons::staticRegisteredIconAutoOverlaidTransparent(
    uint id, uint overlayId, int alpha, qreal scale, QIconHelpers::eOverlayRegionFlags candidates)
{
    return getInstance()->registeredIconAutoOverlaidTransparent(id, overlayId, alpha, scale, candidates);
}

void PYXStandardIcons::staticDirectEnsureRegisteredIconsAreCached(const QSet<uint> &ids)
{
    getInstance()->directEnsureRegisteredIconsAreCached(ids);
}

void PYXStandardIcons::staticDelayedEnsureRegisteredIconsAreCached(const QSet<uint> &ids)
{
    getInstance()->delayedEnsureRegisteredIconsAreCached(ids);
}

int PYXStandardIcons::staticDelayLoadBatchSize()
{
    return getInstance()->delayLoadBatchSize();
}

void PYXStandardIcons::staticSetDelayLoadBatchSize(int size)
{
    getInstance()->setDelayLoadBatchSize(size);
}

void PYXStandardIcons::staticResetDelayLoadBatchSize()
{
    getInstance()->resetDelayLoadBatchSize();
}

void PYXStandardIcons::staticSetSizesForSVGIcons(const QList<QSize> &sizes)
{
    getInstance()->setSizesForSVGIcons(sizes);
}

void PYXStandardIcons::staticResetSizesForSVGIcons()
{
    getInstance()->resetSizesForSVGIcons();
}

QList<QSize> PYXStandardIcons::staticSizesForSVGIcons()
{
    return getInstance()->sizesForSVGIcons();
}

QList<QSize> PYXStandardIcons::staticDefaultSizesForSVGIcons()
{
    return defaultSizesForSVGIcons();
}

bool PYXStandardIcons::staticRegisterCallback(uint firstId, uint lastId, IStandardIconsCallback *callback)
{
    return getInstance()->registerCallback(firstId, lastId, callback);
}

bool PYXStandardIcons::staticRegisterCallback(IStandardIconsCallback *callback)
{
    return getInstance()->registerCallback(callback);
}

bool PYXStandardIcons::staticUnregisterCallback(uint firstId, uint lastId, IStandardIconsCallback *callback)
{
    return getInstance()->unregisterCallback(firstId, lastId, callback);
}

bool PYXStandardIcons::staticUnregisterCallback(IStandardIconsCallback *callback)
{
    return getInstance()->unregisterCallback(callback);
}

} // namespace PYXRuntime
