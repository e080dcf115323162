// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "CompositeIcons.h"
#include "PYXStandardIcons.h"

// The icons that are made of others.

namespace PYXRuntime {
namespace {

constexpr int OpaqueAlpha = 255;
/** One unit of the grid that the icons are drawn on. */
constexpr qreal Clearance = qreal(1) / 24;
constexpr int GroupShift = 12;
constexpr uint GroupOfOverlaysThatKeepTheirSize =
    PYXStandardIcons::ekIcon_Overlay_Non_Scaled_Recording >> GroupShift;

struCompositeIconLayer layerOf(const QIcon &icon, const QRectF &area = {0, 0, 1, 1}, qreal opacity = 1)
{
    struCompositeIconLayer layer;
    layer.icon = icon;
    layer.area = area;
    layer.opacity = opacity;
    return layer;
}

/** Overlays that keep their size are drawn where they belong in the whole icon. */
QRectF overlayArea(uint overlayId, QIconHelpers::eOverlayRegionFlag region, qreal scale)
{
    const bool bKeepsSize = overlayId >> GroupShift == GroupOfOverlaysThatKeepTheirSize;
    return QIconHelpers::regionRect(region, bKeepsSize ? 1 : scale);
}

} // namespace

QIcon PYXStandardIcons::compositeIcon(const QList<struCompositeIconLayer> &layers)
{
    QList<struCompositeIconLayer> resolved = layers;
    for (struCompositeIconLayer &layer : resolved) {
        if (layer.icon.isNull())
            layer.icon = registeredIcon(layer.iconId);
    }
    return layeredIcon(resolved);
}

struCompositeIconLayer PYXStandardIcons::composeIconLayer(uint id, qreal scale,
                                                          QIconHelpers::eOverlayRegionFlag region,
                                                          qreal opacity)
{
    struCompositeIconLayer layer = layerOf(registeredIcon(id), overlayArea(id, region, scale), opacity);
    layer.iconId = id;
    return layer;
}

QIcon PYXStandardIcons::interleavedIcon(const QList<struIconIdModeState> &slices)
{
    QList<struIconSlice> resolved;
    for (const struIconIdModeState &slice : slices)
        resolved += {registeredIcon(slice.iconId), {slice.mode, slice.state}};
    return PYXRuntime::interleavedIcon(resolved);
}

QIcon PYXStandardIcons::slicedIcon(uint id, const QList<struModeState> &slices)
{
    return PYXRuntime::slicedIcon(registeredIcon(id), slices);
}

QIcon PYXStandardIcons::rawSlicedIcon(uint id, const QList<struModeState> &slices)
{
    return PYXRuntime::slicedIcon(rawRegisteredIcon(id), slices);
}

QIcon PYXStandardIcons::registeredIconOverlaid(uint id, uint overlayId)
{
    return registeredIconOverlaidTransparent(id, overlayId, OpaqueAlpha);
}

QIcon PYXStandardIcons::registeredIconOverlaidTransparent(uint id, uint overlayId, int alpha)
{
    return layeredIcon({layerOf(registeredIcon(id)),
                        layerOf(registeredIcon(overlayId), {0, 0, 1, 1}, qreal(alpha) / OpaqueAlpha)});
}

QIcon PYXStandardIcons::registeredIconAsOverlay(uint id, qreal scale,
                                                QIconHelpers::eOverlayRegionFlags regions)
{
    const QIcon icon = registeredIcon(id);
    QList<struCompositeIconLayer> layers;
    for (const QIconHelpers::eOverlayRegionFlag region : QIconHelpers::regions(regions))
        layers += layerOf(icon, overlayArea(id, region, scale));
    if (layers.isEmpty())
        layers += layerOf(icon, overlayArea(id, QIconHelpers::ekOverlayRegion_BottomRight, scale));
    return layeredIcon(layers);
}

QIcon PYXStandardIcons::registeredIconAutoOverlaid(uint id, uint overlayId, qreal scale,
                                                   QIconHelpers::eOverlayRegionFlags candidates)
{
    struCompositeIconLayer overlay;
    overlay.clearance = Clearance;
    return _autoOverlaid(id, overlay, overlayId, scale, candidates);
}

QIcon PYXStandardIcons::registeredIconAutoOverlaidTransparent(uint id, uint overlayId, int alpha, qreal scale,
                                                              QIconHelpers::eOverlayRegionFlags candidates)
{
    struCompositeIconLayer overlay;
    overlay.opacity = qreal(alpha) / OpaqueAlpha;
    return _autoOverlaid(id, overlay, overlayId, scale, candidates);
}

QIcon PYXStandardIcons::_autoOverlaid(uint id, struCompositeIconLayer overlay, uint overlayId, qreal scale,
                                      QIconHelpers::eOverlayRegionFlags candidates)
{
    const QIcon icon = registeredIcon(id);
    overlay.icon = registeredIcon(overlayId);
    overlay.area = overlayArea(overlayId, QIconHelpers::emptiestRegion(icon, candidates, scale), scale);
    return layeredIcon({layerOf(icon), overlay});
}

/** The icons that have no files, by id. An icon of which a part is missing is missing, too. */
QIcon PYXStandardIcons::_madeIcon(uint id, eParts parts)
{
    if (id != ekIcon_Overlay_Eye_Interleaved)
        return {};
    const auto part = [this, parts](uint partId) {
        return parts == ekParts_Registered ? rawRegisteredIcon(partId)
                                           : _builtinIcon(partId, ekMissing_Empty, parts);
    };
    const QIcon eye = part(ekIcon_Overlay_Eye);
    const QIcon noEye = part(ekIcon_Overlay_Eye_No);
    if (eye.isNull() || noEye.isNull())
        return {};
    const QVector<qint64> keys{eye.cacheKey(), noEye.cacheKey()};
    struMadeIcon &made = m_madeIcons[id];
    if (made.keys != keys)
        made = {keys, PYXRuntime::interleavedIcon(
                          {{eye, {QIcon::Normal, QIcon::On}}, {noEye, {QIcon::Normal, QIcon::Off}}})};
    return made.icon;
}

} // namespace PYXRuntime
