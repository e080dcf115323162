// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "PYXITranslatableModule.h"
#include "pyxruntime_export.h"

#include <memory>

class QTranslator;

namespace PYXRuntime {

/**
 * A module that takes its translations from files. A copy has the same settings and nothing loaded;
 * assignment unloads what the target had loaded. Main thread only.
 */
class PYXRUNTIME_EXPORT PYXTranslatableModuleImpl : public PYXITranslatableModule
{
public:
    explicit PYXTranslatableModuleImpl(const QString &baseName, const QString &translationsDir = QString(),
                                       bool optional = false);
    PYXTranslatableModuleImpl(const PYXTranslatableModuleImpl &other);
    PYXTranslatableModuleImpl &operator=(const PYXTranslatableModuleImpl &other);
    /** Unloads. A module that is registered with the connector is unregistered first. */
    ~PYXTranslatableModuleImpl() override;

    QString getModuleBaseName() const override { return m_moduleBaseName; }
    void setModuleBaseName(const QString &baseName) override { m_moduleBaseName = baseName; }
    QString getTranslationsDir() const override { return m_translationsDir; }
    void setTranslationsDir(const QString &dir) override { m_translationsDir = dir; }
    bool isTranslationOptional() const override { return m_bTranslationOptional; }
    void setTranslationOptional(bool optional) override { m_bTranslationOptional = optional; }
    bool loadTranslations(const QString &locale, bool searchResources) override;
    void unloadTranslations() override;

private:
    QString m_moduleBaseName;
    QString m_translationsDir;
    bool m_bTranslationOptional = false;
    std::unique_ptr<QTranslator> m_translator;
};

} // namespace PYXRuntime
