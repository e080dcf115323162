// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#include "IconEntry.h"

#include <PYXStandardIcons.h>

#include <QtCore/QCoreApplication>

#include <algorithm>

using PYXRuntime::PYXStandardIcons;

namespace IconSheet {
namespace {

const QLatin1String EnumeratorPrefix("ekIcon_");
constexpr int ComparedExtent = 48;

/** Asks for the images, since composed icons tell no sizes. */
bool isSwitch(const QIcon &icon)
{
    const QPixmap off = icon.pixmap(ComparedExtent, QIcon::Normal, QIcon::Off);
    const QPixmap on = icon.pixmap(ComparedExtent, QIcon::Normal, QIcon::On);
    return on.toImage() != off.toImage();
}

} // namespace

QVector<struIconEntry> standardIconEntries()
{
    const QHash<uint, QString> names = PYXStandardIcons::standardIconsEnumReverse();
    QList<uint> ids = names.keys();
    std::sort(ids.begin(), ids.end());
    QVector<struIconEntry> entries;
    for (const uint id : qAsConst(ids)) {
        if (id == PYXStandardIcons::ekIcon_NullIcon)
            continue;
        const QString name = names.value(id).mid(EnumeratorPrefix.size());
        const QIcon icon = PYXStandardIcons::staticRegisteredIcon(id);
        entries += {name, icon, QIcon::Off};
        if (isSwitch(icon))
            entries += {QCoreApplication::translate("IconSheet", "%1 (on)").arg(name), icon, QIcon::On};
    }
    return entries;
}

QVector<struIconEntry> filtered(const QVector<struIconEntry> &entries, const QString &filter)
{
    const QStringList words = filter.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    QVector<struIconEntry> matching;
    for (const struIconEntry &entry : entries) {
        if (std::all_of(words.cbegin(), words.cend(), [&entry](const QString &word) {
                return entry.name.contains(word, Qt::CaseInsensitive);
            }))
            matching += entry;
    }
    return matching;
}

} // namespace IconSheet
