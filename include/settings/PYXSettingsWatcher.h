// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "pyxruntime_export.h"

#include <QtCore/QFileSystemWatcher>
#include <QtCore/QObject>
#include <QtCore/QSettings>
#include <QtCore/QStringList>
#include <QtCore/QTimer>

namespace PYXRuntime {

/**
 * Tells when another process has changed a store. What this process writes itself is not told.
 *
 * Lives in a thread with an event loop. Any number of watchers may look at one store.
 */
class PYXRUNTIME_EXPORT PYXSettingsWatcher final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(PYXSettingsWatcher)
public:
    /** @param fileName a store in the XML format; neither it nor its directory needs to exist. */
    explicit PYXSettingsWatcher(const QString &fileName, QObject *parent = nullptr);
    /** Watches the file of that store; does not keep the store. */
    explicit PYXSettingsWatcher(const QSettings &store, QObject *parent = nullptr);
    ~PYXSettingsWatcher() override;

    QString fileName() const { return m_store.fileName(); }

Q_SIGNALS:
    /**
     * Every QSettings of this process that is built or synchronised from now on has the new values.
     * Changes that come close together are told together.
     * @param a_keys the keys that were added, removed or given another value; never empty.
     */
    void si_changed(const QStringList &a_keys);

private Q_SLOTS:
    void _sl_fileSystem_changed();
    void _sl_delay_timeout();

private:
    void _watchPaths();

    QSettings m_store;
    QFileSystemWatcher m_fileSystem;
    QTimer m_delay;
};

} // namespace PYXRuntime
