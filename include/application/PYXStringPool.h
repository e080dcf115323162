// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "pyxruntime_export.h"

#include <QtCore/QString>

class QObject;

namespace PYXRuntime {

/**
 * Texts that many modules show, translated once per language: those of the library (PYXStrings) and those of
 * the populators. The pool is filled when the library is initialised and again at every change of language,
 * before si_localeChanged(); who reads sees the old language or the new one, never some of both.
 *
 * Texts may be read in any thread; all else is for the main thread.
 */
class PYXRUNTIME_EXPORT PYXStringPool final
{
public:
    PYXStringPool() = delete;

    /** Asks the library and all populators, the first one added first, for their texts in the current
     * language. */
    static void populate();
    /** The text of a key; an empty one if there is none, or before the first filling. */
    static QString text(const QString &key);
    static bool contains(const QString &key);

    /**
     * Adds an object that implements IStringPoolPopulator, once. A pool that is filled gets its texts at
     * once. The object is not owned; its texts go with the filling after its destruction.
     * @return false, with a trace, for an object that is none
     */
    static bool addPopulator(QObject *populator);
    /** Takes the texts away, too. */
    static void removePopulator(QObject *populator);
};

} // namespace PYXRuntime
