// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QSettings>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <functional>

class QIODevice;
class QObject;

/**
 * What this process knows of the content of watched stores, told by the callbacks of the format: content
 * that is read and that this process has neither read nor written before was written by another one.
 * Any thread.
 */
namespace PYXRuntime::WatchedStores {

/**
 * Begins to watch. What the file holds now counts as known.
 * @param notify called in the thread of @p watcher, from its event loop, with the keys that have changed.
 */
void add(const QString &fileName, QObject *watcher, const std::function<void(const QStringList &)> &notify);
void remove(const QObject *watcher);

void noteRead(const QIODevice &device, const QSettings::SettingsMap &map);
void noteWritten(const QIODevice &device, const QSettings::SettingsMap &map);
/** A file that does not exist is not read. */
void noteMissing(const QString &fileName);

} // namespace PYXRuntime::WatchedStores
