// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "pyxruntime_export.h"

#include <QtCore/QObject>
#include <QtCore/QSettings>

class QIODevice;

namespace PYXRuntime {

/**
 * The file format, with the suffix "PYXTRO", of settings that hold for the current run only: XML settings
 * files, which are removed when the library is shut down.
 *
 * What a run that ended without shutting down has left is read by the next run, and removed at its end.
 *
 * Initialising the library creates the object, shutting it down destroys it, both in the main thread while
 * no other thread uses settings of this format. The rest may be called from any thread.
 */
class PYXRUNTIME_EXPORT PYXThisRunOnlySettings final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(PYXThisRunOnlySettings)
public:
    ~PYXThisRunOnlySettings() override;

    static void makeSureInitialized();
    static bool hasInstance();
    /**
     * Removes every file of this format that was read or written since the object was created. A file that
     * cannot be removed is traced and stays.
     */
    static void destroyInstance();

    /** The format to pass to QSettings; QSettings::InvalidFormat before the first initialisation. */
    static QSettings::Format format();

    /**
     * The callbacks of the format. They take file devices only.
     * @return false where the file is refused; nothing may be written while there is no instance.
     */
    static bool readSettings(QIODevice &device, QSettings::SettingsMap &map);
    static bool writeSettings(QIODevice &device, const QSettings::SettingsMap &map);

private:
    explicit PYXThisRunOnlySettings(QObject *parent = nullptr);

    static PYXThisRunOnlySettings *getInstance();
    static bool _registerSettingsFile(QIODevice &device);
};

} // namespace PYXRuntime
