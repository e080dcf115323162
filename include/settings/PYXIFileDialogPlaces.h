// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "PYXBrokerInterface.h"

#include <QtCore/QString>

namespace PYXRuntime {

/**
 * Who remembers the places of file dialogs. An object that implements this and is registered with the
 * broker, under this interface's identifier and the name 0, hears of settings that move such a place.
 */
class PYXIFileDialogPlaces
{
public:
    /**
     * Makes a directory the remembered last file or directory of the file dialogs that are bound to a
     * special directory. Called in the thread that compares the settings.
     * @param specialDir the special-directory code, as PYXIApplicationInfo has it.
     * @param directory the new place, as the user has set it.
     */
    virtual void resetLastFileOrDir(uint specialDir, const QString &directory) = 0;

protected:
    ~PYXIFileDialogPlaces() = default;
};

} // namespace PYXRuntime

Q_DECLARE_INTERFACE(PYXRuntime::PYXIFileDialogPlaces, "com.varnholt.PYXRuntime.PYXIFileDialogPlaces/1.0")
PYX_DECLARE_BROKER_INTERFACE(PYXRuntime::PYXIFileDialogPlaces, QUuid(0x6a0d5f1e, 0x3c7b, 0x4d92, 0xa8, 0x41,
                                                                     0x1f, 0x5e, 0x90, 0x7c, 0x2b, 0xd6))
