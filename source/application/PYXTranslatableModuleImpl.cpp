// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXTranslatableModuleImpl.h"

#include "TranslationFile.h"

#include <QtCore/QCoreApplication>

namespace PYXRuntime {

PYXTranslatableModuleImpl::PYXTranslatableModuleImpl(const QString &baseName, const QString &translationsDir,
                                                     bool optional)
    : m_moduleBaseName(baseName)
    , m_translationsDir(translationsDir)
    , m_bTranslationOptional(optional)
{}

PYXTranslatableModuleImpl::PYXTranslatableModuleImpl(const PYXTranslatableModuleImpl &other)
    : PYXTranslatableModuleImpl(other.m_moduleBaseName, other.m_translationsDir, other.m_bTranslationOptional)
{}

PYXTranslatableModuleImpl &PYXTranslatableModuleImpl::operator=(const PYXTranslatableModuleImpl &other)
{
    if (this != &other) {
        m_translator.reset();
        m_moduleBaseName = other.m_moduleBaseName;
        m_translationsDir = other.m_translationsDir;
        m_bTranslationOptional = other.m_bTranslationOptional;
    }
    return *this;
}

PYXTranslatableModuleImpl::~PYXTranslatableModuleImpl() = default;

bool PYXTranslatableModuleImpl::loadTranslations(const QString &locale, bool searchResources)
{
    unloadTranslations();
    QStringList directories{m_translationsDir};
    if (searchResources)
        directories += {QStringLiteral(":/%1/translations").arg(m_moduleBaseName),
                        QStringLiteral(":/translations"), QStringLiteral(":/")};
    for (const QString &directory : qAsConst(directories)) {
        m_translator = TranslationFile::open(m_moduleBaseName, locale, directory);
        if (m_translator != nullptr) {
            QCoreApplication::installTranslator(m_translator.get());
            return true;
        }
    }
    return false;
}

void PYXTranslatableModuleImpl::unloadTranslations()
{
    m_translator.reset();
}

} // namespace PYXRuntime
