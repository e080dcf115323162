// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "WatchedStores.h"

#include "DataMutex.h"
#include "XmlSettingsReader.h"
#include "XmlValueCodec.h"

#include <QtCore/QFile>
#include <QtCore/QFileDevice>
#include <QtCore/QHash>
#include <QtCore/QList>

#include <algorithm>
#include <atomic>
#include <iterator>
#include <mutex>

namespace PYXRuntime::WatchedStores {
namespace {

using Locker = std::lock_guard<DataMutex>;

/** Keys and the texts of their values: a value that is written as a number is read as a text. */
using Content = QHash<QString, QByteArray>;

struct struWatcher
{
    QObject *object;
    std::function<void(const QStringList &)> notify;
};

struct struStore
{
    Content known;
    QList<struWatcher> watchers;
};

struct struWatched
{
    DataMutex mutex;
    QHash<QString, struStore> stores;
    std::atomic<bool> bAny{false}; ///< spares all others the mutex
};

struWatched &watched()
{
    static auto *const data = new struWatched;
    return *data;
}

Content contentOf(const QSettings::SettingsMap &map)
{
    Content content;
    content.reserve(map.size());
    for (auto entry = map.cbegin(); entry != map.cend(); ++entry) {
        QByteArray text;
        if (XmlValueCodec::appendEncoded(text, entry.value()))
            content.insert(entry.key(), text);
    }
    return content;
}

QStringList difference(const Content &before, const Content &after)
{
    QStringList keys;
    for (auto entry = after.cbegin(); entry != after.cend(); ++entry) {
        const auto old = before.constFind(entry.key());
        if (old == before.cend() || *old != *entry)
            keys += entry.key();
    }
    for (auto entry = before.cbegin(); entry != before.cend(); ++entry) {
        if (!after.contains(entry.key()))
            keys += entry.key();
    }
    keys.sort();
    return keys;
}

bool isWatched(const QString &fileName)
{
    if (!watched().bAny)
        return false;
    const Locker locker(watched().mutex);
    return watched().stores.contains(fileName);
}

void noteContent(const QString &fileName, const QSettings::SettingsMap &map, bool bOwn)
{
    if (!isWatched(fileName))
        return;
    const Content content = contentOf(map);
    const Locker locker(watched().mutex);
    const auto store = watched().stores.find(fileName);
    if (store == watched().stores.end())
        return;
    const QStringList keys = bOwn ? QStringList() : difference(store->known, content);
    store->known = content;
    if (keys.isEmpty())
        return;
    for (const struWatcher &watcher : qAsConst(store->watchers))
        QMetaObject::invokeMethod(
            watcher.object, [notify = watcher.notify, keys] { notify(keys); }, Qt::QueuedConnection);
}

void noteDevice(const QIODevice &device, const QSettings::SettingsMap &map, bool bOwn)
{
    const auto *const file = qobject_cast<const QFileDevice *>(&device);
    if (file != nullptr)
        noteContent(file->fileName(), map, bOwn);
}

Content contentOfFile(const QString &fileName)
{
    QFile file(fileName);
    QSettings::SettingsMap map;
    if (file.open(QIODevice::ReadOnly))
        XmlSettingsReader::read(file, map);
    return contentOf(map);
}

} // namespace

void add(const QString &fileName, QObject *watcher, const std::function<void(const QStringList &)> &notify)
{
    // Not under the mutex: a warning of the reader may reach somebody who uses settings.
    const Content known = contentOfFile(fileName);
    const Locker locker(watched().mutex);
    struStore &store = watched().stores[fileName];
    if (store.watchers.isEmpty())
        store.known = known;
    store.watchers += {watcher, notify};
    watched().bAny = true;
}

void remove(const QObject *watcher)
{
    const Locker locker(watched().mutex);
    auto &stores = watched().stores;
    for (auto store = stores.begin(); store != stores.end();) {
        auto &watchers = store->watchers;
        watchers.erase(std::remove_if(watchers.begin(), watchers.end(),
                                      [watcher](const struWatcher &w) { return w.object == watcher; }),
                       watchers.end());
        store = watchers.isEmpty() ? stores.erase(store) : std::next(store);
    }
    watched().bAny = !stores.isEmpty();
}

void noteRead(const QIODevice &device, const QSettings::SettingsMap &map)
{
    noteDevice(device, map, false);
}

void noteWritten(const QIODevice &device, const QSettings::SettingsMap &map)
{
    noteDevice(device, map, true);
}

void noteMissing(const QString &fileName)
{
    noteContent(fileName, {}, false);
}

} // namespace PYXRuntime::WatchedStores
