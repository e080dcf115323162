// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "EmbeddedFonts.h"

#include <QtCore/QDir>
#include <QtGui/QFont>
#include <QtGui/QFontDatabase>
#include <QtWidgets/QApplication>

namespace PYXRuntime {
namespace {

const QLatin1String FontsDirectory(":/PYXRuntime/fonts");
const QLatin1String NormalFamily("KTCorpid");
const QLatin1String CondensedFamily("KTCorpid Cd");
const QLatin1String SubstitutedFamilies[] = {QLatin1String("Helvetica"), QLatin1String("MS Shell Dlg 2")};

bool hasFonts()
{
    return qobject_cast<QGuiApplication *>(QCoreApplication::instance()) != nullptr;
}

bool hasWidgets()
{
    return qobject_cast<QApplication *>(QCoreApplication::instance()) != nullptr;
}

void setApplicationFontFamily(const QString &family)
{
    QFont font = QApplication::font();
    font.setFamily(family);
    QApplication::setFont(font);
}

} // namespace

void EmbeddedFonts::load()
{
    if (!hasFonts())
        return;
    unload();
    const QStringList files = QDir(FontsDirectory).entryList(QDir::Files, QDir::Unsorted);
    for (const QString &file : files) {
        const QString path = FontsDirectory + QLatin1Char('/') + file;
        m_ids.insert(path, QFontDatabase::addApplicationFont(path));
    }
}

void EmbeddedFonts::loadOnDemand()
{
    if (!m_ids.isEmpty() || m_bLoadedOnDemand)
        return;
    load();
    m_bLoadedOnDemand = !m_ids.isEmpty();
}

void EmbeddedFonts::unload()
{
    if (hasFonts()) {
        for (const int id : qAsConst(m_ids))
            QFontDatabase::removeApplicationFont(id);
    }
    m_ids.clear();
    m_bLoadedOnDemand = false;
}

void EmbeddedFonts::unloadIfOnDemand()
{
    if (m_bLoadedOnDemand)
        unload();
}

void EmbeddedFonts::insertSubstitutions(bool condensed)
{
    const QString substitute = condensed ? CondensedFamily : NormalFamily;
    for (const QLatin1String &family : SubstitutedFamilies) {
        if (QFont::substitutes(family).contains(substitute, Qt::CaseInsensitive))
            continue;
        QFont::insertSubstitution(family, substitute);
        m_substitutions.insert(family, substitute);
    }
}

void EmbeddedFonts::removeSubstitutions()
{
    for (auto ours = m_substitutions.cbegin(); ours != m_substitutions.cend(); ++ours) {
        // Qt keeps substitutes in lower case.
        QStringList others;
        const QStringList present = QFont::substitutes(ours.key());
        for (const QString &substitute : present) {
            if (substitute.compare(ours.value(), Qt::CaseInsensitive) != 0)
                others += substitute;
        }
        QFont::removeSubstitutions(ours.key());
        if (!others.isEmpty())
            QFont::insertSubstitutions(ours.key(), others);
    }
    m_substitutions.clear();
}

void EmbeddedFonts::applyToApplicationFont()
{
    if (!hasWidgets())
        return;
    const QString family = QApplication::font().family();
    if (QFont::substitutes(family).isEmpty())
        return;
    QString substitute = QFont::substitute(family);
    for (const QLatin1String &ours : {NormalFamily, CondensedFamily}) {
        if (substitute.compare(ours, Qt::CaseInsensitive) == 0)
            substitute = ours;
    }
    setApplicationFontFamily(substitute);
    m_originalFamily = family;
    m_appliedFamily = substitute;
}

void EmbeddedFonts::restoreApplicationFont()
{
    if (hasWidgets() && !m_appliedFamily.isEmpty() && QApplication::font().family() == m_appliedFamily)
        setApplicationFontFamily(m_originalFamily);
    m_appliedFamily.clear();
    m_originalFamily.clear();
}

} // namespace PYXRuntime
