// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXIconLoader.h"

// The static twins.

namespace PYXRuntime {

QIcon PYXIconLoader::staticLoad(const QString &baseFilePath)
{
    return getInstance()->load(baseFilePath);
}

QIcon PYXIconLoader::staticLoad(const QString &baseFilePath, QIcon::Mode mode, QIcon::State state)
{
    return getInstance()->load(baseFilePath, mode, state);
}

QIcon PYXIconLoader::staticRawLoad(const QString &baseFilePath, QIcon::Mode mode, QIcon::State state)
{
    return getInstance()->rawLoad(baseFilePath, mode, state);
}

QIcon PYXIconLoader::staticLoadFromModule(const QString &modulePath, int index)
{
    return getInstance()->loadFromModule(modulePath, index);
}

QIcon PYXIconLoader::staticSetOverrideIcon(const QString &path, const QIcon &icon)
{
    return getInstance()->setOverrideIcon(path, icon);
}

QIcon PYXIconLoader::staticRemoveOverrideIcon(const QString &path)
{
    return getInstance()->removeOverrideIcon(path);
}

bool PYXIconLoader::staticHasOverrideIcon(const QString &path)
{
    return getInstance()->hasOverrideIcon(path);
}

QIcon PYXIconLoader::staticOverrideIcon(const QString &path)
{
    return getInstance()->overrideIcon(path);
}

void PYXIconLoader::staticClearOverrideIcons()
{
    getInstance()->clearOverrideIcons();
}

void PYXIconLoader::staticClearCache()
{
    getInstance()->clearCache();
}

void PYXIconLoader::staticSetSizesForSVGIcons(const QList<QSize> &sizes)
{
    getInstance()->setSizesForSVGIcons(sizes);
}

void PYXIconLoader::staticResetSizesForSVGIcons()
{
    getInstance()->resetSizesForSVGIcons();
}

QList<QSize> PYXIconLoader::staticSizesForSVGIcons()
{
    return getInstance()->sizesForSVGIcons();
}

} // namespace PYXRuntime
