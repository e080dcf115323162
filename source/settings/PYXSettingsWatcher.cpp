// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXSettingsWatcher.h"

#include "PYXXmlSettings.h"
#include "WatchedStores.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>

namespace PYXRuntime {
namespace {

constexpr int DelayMs = 100;

/** The directory of the file, or the one above it that exists and in which the missing one will appear. */
QString existingDirectory(const QString &fileName)
{
    QString path = QFileInfo(fileName).absolutePath();
    for (QString parent; !QFileInfo(path).isDir(); path = parent) {
        parent = QFileInfo(path).absolutePath();
        if (parent == path)
            return QString();
    }
    return path;
}

} // namespace

PYXSettingsWatcher::PYXSettingsWatcher(const QString &fileName, QObject *parent)
    : QObject(parent)
    , m_store(fileName, PYXXmlSettings::format())
{
    m_delay.setSingleShot(true);
    m_delay.setInterval(DelayMs);
    connect(&m_delay, &QTimer::timeout, this, &PYXSettingsWatcher::_sl_delay_timeout);
    connect(&m_fileSystem, &QFileSystemWatcher::fileChanged, this,
            &PYXSettingsWatcher::_sl_fileSystem_changed);
    connect(&m_fileSystem, &QFileSystemWatcher::directoryChanged, this,
            &PYXSettingsWatcher::_sl_fileSystem_changed);
    WatchedStores::add(m_store.fileName(), this,
                       [this](const QStringList &keys) { Q_EMIT si_changed(keys); });
    _watchPaths();
}

PYXSettingsWatcher::PYXSettingsWatcher(const QSettings &store, QObject *parent)
    : PYXSettingsWatcher(store.fileName(), parent)
{}

PYXSettingsWatcher::~PYXSettingsWatcher()
{
    WatchedStores::remove(this);
}

void PYXSettingsWatcher::_sl_fileSystem_changed()
{
    // Not started anew by each change: a store that is written all the time must be told too.
    if (!m_delay.isActive())
        m_delay.start();
}

void PYXSettingsWatcher::_sl_delay_timeout()
{
    // First, so that nothing can change between the look at the file and the watch.
    _watchPaths();
    if (!QFileInfo::exists(m_store.fileName()))
        WatchedStores::noteMissing(m_store.fileName());
    // Reads the file where it is not as this process knows it.
    m_store.sync();
}

void PYXSettingsWatcher::_watchPaths()
{
    const QStringList watched = m_fileSystem.files() + m_fileSystem.directories();
    if (!watched.isEmpty())
        m_fileSystem.removePaths(watched);
    const QString file = m_store.fileName();
    const QString directory = existingDirectory(file);
    if (!directory.isEmpty())
        m_fileSystem.addPath(directory);
    if (QFileInfo::exists(file))
        m_fileSystem.addPath(file);
}

} // namespace PYXRuntime
