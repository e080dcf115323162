// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "pyxruntime_export.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QString>
#include <QtCore/QStringList>

class QVariant;

namespace PYXRuntime {

class PYXSettings;

/**
 * Takes a store, or a part of one, to a file and back: to keep it, or to give it to a colleague.
 *
 * The file is an XML settings file with the keys as they are in the store. Secrets stay behind unless they
 * are asked for. A secret is a value under a registered key, under a name that speaks of one ("password",
 * "token" and the like, in any group of the key), or one that holds such a name or a URL with a password in
 * itself; it is left out as a whole.
 *
 * The store may be in a group, to which all keys are then relative. Any thread, one at a time per store.
 */
class PYXRUNTIME_EXPORT PYXSettingsTransfer final
{
    Q_GADGET
    Q_DECLARE_TR_FUNCTIONS(PYXRuntime::PYXSettingsTransfer)
public:
    PYXSettingsTransfer() = delete;

    enum eSecrets { ekSecrets_LeaveOut, ekSecrets_Include };
    Q_ENUM(eSecrets)

    struct struResult
    {
        bool bOk = false;
        QString error;       ///< for the user; empty where all went well
        int entries = 0;     ///< that have been taken over
        QStringList leftOut; ///< keys of secrets that were not
    };

    /**
     * Writes what is below @p group (and at its key) in this store, not in those it falls back to. An empty
     * group stands for all. A file of that name is replaced when the new one is complete, and not before;
     * with secrets in it, only its owner can read it.
     */
    static struResult exportTo(const QString &fileName, PYXSettings &store, const QString &group = QString(),
                               eSecrets secrets = ekSecrets_LeaveOut);

    /**
     * Sets what the file has below @p group (and at its key), and saves the store. Other keys of the store
     * stay. Where the file cannot be read as a whole, nothing is changed.
     */
    static struResult importFrom(const QString &fileName, PYXSettings &store,
                                 const QString &group = QString(), eSecrets secrets = ekSecrets_LeaveOut);

    /** Makes a key, and all that is below it, a secret in every store, until the process ends. */
    static void registerSecret(const QString &key);

    /** @param key the whole key. */
    static bool isSecret(const QString &key, const QVariant &value);
};

} // namespace PYXRuntime
