// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "ObjectCensus.h"

#include <QtCore/QObject>

#include <mutex>
#include <unordered_set>

// As Qt's private header qhooks_p.h lays it out, which says that the layout stays.
extern Q_CORE_EXPORT quintptr qtHookData[];

namespace {

constexpr int AddHook = 3;
constexpr int RemoveHook = 4;

std::mutex &mutex()
{
    static auto *const mutex = new std::mutex;
    return *mutex;
}

std::unordered_set<QObject *> &objects()
{
    static auto *const objects = new std::unordered_set<QObject *>;
    return *objects;
}

void noteMade(QObject *object)
{
    const std::lock_guard<std::mutex> lock(mutex());
    objects().insert(object);
}

void noteGone(QObject *object)
{
    const std::lock_guard<std::mutex> lock(mutex());
    objects().erase(object);
}

} // namespace

void ObjectCensus::begin()
{
    qtHookData[AddHook] = reinterpret_cast<quintptr>(&noteMade);
    qtHookData[RemoveHook] = reinterpret_cast<quintptr>(&noteGone);
}

int ObjectCensus::count()
{
    const std::lock_guard<std::mutex> lock(mutex());
    return int(objects().size());
}

QMap<QByteArray, int> ObjectCensus::histogram()
{
    const std::lock_guard<std::mutex> lock(mutex());
    QMap<QByteArray, int> counts;
    for (const QObject *const object : objects())
        ++counts[object->metaObject()->className()];
    return counts;
}
