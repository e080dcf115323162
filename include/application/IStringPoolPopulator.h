// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QHash>
#include <QtCore/QObject>
#include <QtCore/QString>

namespace PYXRuntime {

/** A plain QObject that also puts texts into the shared string pool. */
class IStringPoolPopulator
{
public:
    virtual ~IStringPoolPopulator() = default;

    /**
     * Adds its texts, translated into the current language, under keys that begin with the module's name,
     * e.g. "Viewer::Bandwidth". Called in the main thread at each filling of the pool; a text under a key
     * that is there already replaces it.
     */
    virtual void populateStringPool(QHash<QString, QString> &texts) = 0;
};

} // namespace PYXRuntime

Q_DECLARE_INTERFACE(PYXRuntime::IStringPoolPopulator, "com.varnholt.PYXRuntime.IStringPoolPopulator/1.0")
