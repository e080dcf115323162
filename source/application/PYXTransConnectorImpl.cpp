// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXTransConnectorImpl.h"

#include "LanguageChangeHold.h"
#include "PYXStringPool.h"
#include "PYXTraceWrapper.h"
#include "PYXTranslatableModuleImpl.h"
#include "SingletonHolder.h"
#include "TranslationFile.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QLocale>
#include <QtCore/QPointer>
#include <QtCore/QStandardPaths>

#include <algorithm>
#include <utility>

namespace PYXRuntime {
namespace {

using Holder = SingletonHolder<PYXTransConnectorImpl>;

constexpr const char *TraceFile = "source\\PYXTransConnectorImpl";
constexpr uint BrokerName = 0;
const QLatin1String English("en");
const QLatin1String QtStem("qt");
const QLatin1String LibraryStem("PYXRuntime");
const QLatin1String QmSuffix(".qm");
const QLatin1String DirectoryName("translations");
const QLatin1String SharedDirectory("PYXRuntime/translations");
// The translators of the library write their language's own name for this text.
struct struNameOfLanguage
{
    const char *text;
    const char *comment;
} const NameOfLanguage =
    QT_TRANSLATE_NOOP3("PYXTransConnectorImpl", "English",
                       "Please enter the language for which you are doing the translations.");
constexpr const char *NameContext = "PYXTransConnectorImpl";

QString defaultDirectory()
{
    if (QCoreApplication::instance() == nullptr)
        return {};
    const QDir program(QCoreApplication::applicationDirPath());
    const QString first = program.filePath(DirectoryName);
    const QString shared = QDir::cleanPath(program.filePath(QLatin1String("../share/") + SharedDirectory));
    for (const QString &directory : {first, shared}) {
        if (QDir(directory).exists())
            return directory;
    }
    const QString located = QStandardPaths::locate(QStandardPaths::GenericDataLocation, SharedDirectory,
                                                   QStandardPaths::LocateDirectory);
    return located.isEmpty() ? first : located;
}

QString noQtFileText(const QString &locale)
{
    return QStringLiteral("Cannot load Qt's translation file for locale \"%1\".").arg(locale);
}

QString noModuleFileText(const PYXTranslatableModuleImpl &module, const QString &locale)
{
    return QStringLiteral("Cannot load translation file for module \"%1\" and locale \"%2\".")
        .arg(module.getModuleBaseName(), locale);
}

QString displayName(const QString &locale, const QString &directory)
{
    if (const auto library = TranslationFile::open(LibraryStem, locale, directory)) {
        QString name = library->translate(NameContext, NameOfLanguage.text, NameOfLanguage.comment, -1);
        if (!name.isEmpty())
            return name;
    }
    QString name = QLocale(locale).nativeLanguageName();
    if (name.isEmpty())
        return locale;
    name[0] = name.at(0).toUpper(); // some languages write their names small
    return name;
}

/** What follows the stem in the names of the files that begin with it. */
QStringList localesOf(const QString &stem, const QString &directory)
{
    QStringList locales;
    const QString begin = stem + QLatin1Char('_');
    const QStringList files = QDir(directory).entryList(QDir::Files, QDir::Name);
    for (const QString &file : files) {
        if (file.startsWith(begin, Qt::CaseInsensitive) && file.endsWith(QmSuffix, Qt::CaseInsensitive) &&
            file.size() > begin.size() + QmSuffix.size())
            locales += file.mid(begin.size(), file.size() - begin.size() - QmSuffix.size());
    }
    return locales;
}

} // namespace

PYXTransConnectorImpl::PYXTransConnectorImpl()
    : m_localeName(English)
{
    setObjectName(QStringLiteral("PYXRuntime::PYXTransConnectorImpl"));
    registerModuleByName(LibraryStem, true);
}

PYXTransConnectorImpl::~PYXTransConnectorImpl()
{
    const LanguageChangeHold silence;
    _unloadAll();
}

PYXTransConnectorImpl *PYXTransConnectorImpl::getInstance()
{
    if (PYXTransConnectorImpl *const connector = Holder::existing())
        return connector;
    PYXTransConnectorImpl *const connector = Holder::instance([] { return new PYXTransConnectorImpl; });
    connector->m_registration =
        PYXBrokerRegistration(InterfaceIdentifiers::transConnector(), BrokerName, connector);
    return connector;
}

bool PYXTransConnectorImpl::hasInstance()
{
    return Holder::existing() != nullptr;
}

void PYXTransConnectorImpl::makeSureInitialized()
{
    getInstance();
}

void PYXTransConnectorImpl::destroyInstance()
{
    delete Holder::take();
}

bool PYXTransConnectorImpl::changeLocale(const QString &locale)
{
    // A copy: the argument may be what getLocaleName() has given.
    QString wanted(locale.constData(), locale.size());
    const QString previous = std::exchange(m_localeName, English);
    LanguageChangeHold hold;
    _unloadAll();
    const bool bBase = _loadBase(wanted);
    const bool bLoaded = bBase && (_loadModules(wanted) || wanted == English);
    if (bLoaded)
        m_localeName.swap(wanted);
    else
        _unloadAll();
    _announce(hold, bBase || previous != English);
    return bLoaded;
}

void PYXTransConnectorImpl::_announce(LanguageChangeHold &hold, bool changed)
{
    const QPointer<PYXTransConnectorImpl> guard(this);
    if (changed)
        PYXStringPool::populate();
    hold.release();
    if (changed && !guard.isNull())
        Q_EMIT si_localeChanged();
}

/** Loads the files of the application and of Qt. */
bool PYXTransConnectorImpl::_loadBase(const QString &locale)
{
    const bool bNeedsFiles = locale != English;
    const QString directory = getTransDirPath();
    m_applicationTranslator = TranslationFile::open(QCoreApplication::applicationName(), locale, directory);
    if (m_applicationTranslator == nullptr && bNeedsFiles) {
        PYXTraceWrapper::staticTraceError(
            QStringLiteral("Cannot load the application's translation file for locale \"%1\".").arg(locale),
            TraceFile, __LINE__);
        return false;
    }
    m_qtTranslator = TranslationFile::open(QtStem, locale, directory);
    if (m_qtTranslator == nullptr && bNeedsFiles) {
        PYXTraceWrapper::staticTraceError(noQtFileText(locale), TraceFile, __LINE__);
        return false;
    }
    for (QTranslator *const translator : {m_applicationTranslator.get(), m_qtTranslator.get()}) {
        if (translator != nullptr)
            QCoreApplication::installTranslator(translator);
    }
    return true;
}

/** @return false where a file is missing that is not optional. */
bool PYXTransConnectorImpl::_loadModules(const QString &locale)
{
    for (const struModule &entry : m_modules) {
        if (entry.module->getTranslationsDir().isEmpty())
            entry.module->setTranslationsDir(getTransDirPath());
        if (entry.module->loadTranslations(locale, false) || entry.module->isTranslationOptional() ||
            locale == English)
            continue;
        PYXTraceWrapper::staticTraceError(noModuleFileText(*entry.module, locale), TraceFile, __LINE__);
        return false;
    }
    return true;
}

void PYXTransConnectorImpl::_unloadAll()
{
    m_applicationTranslator.reset();
    m_qtTranslator.reset();
    for (const struModule &entry : m_modules)
        entry.module->unloadTranslations();
}

QList<PYXITransConnector::strucLocale> PYXTransConnectorImpl::getSupportedLocales() const
{
    QList<strucLocale> locales{{English, QString::fromLatin1(NameOfLanguage.text)}};
    const QString directory = getTransDirPath();
    const QString stem = QCoreApplication::applicationName();
    const QStringList candidates = localesOf(stem, directory);
    for (const QString &locale : candidates) {
        if (locale != English && TranslationFile::open(stem, locale, directory) != nullptr &&
            isLocaleSupported(locale))
            locales += {locale, displayName(locale, directory)};
    }
    return locales;
}

bool PYXTransConnectorImpl::isLocaleSupported(const QString &locale) const
{
    if (locale == English)
        return true;
    if (TranslationFile::open(QtStem, locale, getTransDirPath()) == nullptr) {
        PYXTraceWrapper::staticTraceWarn(noQtFileText(locale), TraceFile, __LINE__);
        return false;
    }
    for (const struModule &entry : m_modules) {
        const PYXTranslatableModuleImpl &module = *entry.module;
        const QString own = module.getTranslationsDir(); // none yet where there was no application
        const QString directory = own.isEmpty() ? getTransDirPath() : own;
        if (module.isTranslationOptional() ||
            TranslationFile::open(module.getModuleBaseName(), locale, directory) != nullptr)
            continue;
        PYXTraceWrapper::staticTraceWarn(noModuleFileText(module, locale), TraceFile, __LINE__);
        return false;
    }
    return true;
}

void PYXTransConnectorImpl::setTransDirPath(const QString &path)
{
    m_transDirPath = path;
    for (const struModule &entry : m_modules)
        entry.module->setTranslationsDir(getTransDirPath());
}

QString PYXTransConnectorImpl::getTransDirPath() const
{
    return m_transDirPath.isEmpty() ? defaultDirectory() : m_transDirPath;
}

void PYXTransConnectorImpl::registerModule(PYXTranslatableModuleImpl *module)
{
    const auto bSame = [module](const struModule &entry) { return entry.module == module; };
    if (module == nullptr || std::any_of(m_modules.cbegin(), m_modules.cend(), bSame))
        return;
    m_modules.push_back({module, nullptr});
    module->setTranslationsDir(getTransDirPath());
}

void PYXTransConnectorImpl::unregisterModule(PYXTranslatableModuleImpl *module)
{
    _remove(std::find_if(m_modules.begin(), m_modules.end(),
                         [module](const struModule &entry) { return entry.module == module; }));
}

void PYXTransConnectorImpl::registerModuleByName(const QString &baseName, bool optional)
{
    if (_find(baseName) != m_modules.end())
        return;
    auto module = std::make_unique<PYXTranslatableModuleImpl>(baseName, getTransDirPath(), optional);
    PYXTranslatableModuleImpl *const address = module.get();
    m_modules.push_back({address, std::move(module)});
}

void PYXTransConnectorImpl::unregisterModuleByName(const QString &baseName)
{
    _remove(_find(baseName));
}

PYXTransConnectorImpl::Modules::iterator PYXTransConnectorImpl::_find(const QString &baseName)
{
    return std::find_if(m_modules.begin(), m_modules.end(), [&baseName](const struModule &entry) {
        return entry.module->getModuleBaseName() == baseName;
    });
}

void PYXTransConnectorImpl::_remove(Modules::iterator position)
{
    if (position == m_modules.end())
        return;
    // Who hears that the texts go may come back here.
    const struModule removed = std::move(*position);
    m_modules.erase(position);
    removed.module->unloadTranslations();
}

} // namespace PYXRuntime
