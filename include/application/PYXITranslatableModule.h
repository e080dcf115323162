// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QString>

namespace PYXRuntime {

/**
 * A library or plug-in that has translation files of its own, named "<base name>_<locale>.qm".
 * Main thread only. The order of the operations is part of the contract.
 */
class PYXITranslatableModule
{
public:
    virtual QString getModuleBaseName() const = 0;
    virtual void setModuleBaseName(const QString &baseName) = 0;
    virtual QString getTranslationsDir() const = 0;
    virtual void setTranslationsDir(const QString &dir) = 0;
    /** Whether a language can be had without a file of this module. */
    virtual bool isTranslationOptional() const = 0;
    virtual void setTranslationOptional(bool optional) = 0;
    /**
     * Replaces the module's translations by those of a locale, and installs them in the application.
     * @param searchResources whether ":/<base name>/translations", ":/translations" and ":/" are searched
     * too, in this order, where the translations directory has no file
     * @return false, and nothing is loaded any more, where no file could be loaded.
     */
    virtual bool loadTranslations(const QString &locale, bool searchResources) = 0;
    virtual void unloadTranslations() = 0;
    virtual ~PYXITranslatableModule() = default;
};

} // namespace PYXRuntime
