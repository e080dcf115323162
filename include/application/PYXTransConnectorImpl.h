// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "PYXBrokerRegistration.h"
#include "PYXITransConnector.h"
#include "pyxruntime_export.h"

#include <memory>
#include <vector>

class QTranslator;

namespace PYXRuntime {

class LanguageChangeHold;

/**
 * The library's translation connector. It is there, and known to the broker, from the first getInstance()
 * until the library is shut down; initialising the library makes it. The library itself is registered with it
 * as the optional module "PYXRuntime".
 *
 * Files: "<application name>_<locale>.qm", "qt_<locale>.qm", "<module>_<locale>.qm", all in one directory.
 * As with QTranslator, "de_AT" is served by a file for "de" where it has none of its own. A file is read and
 * checked as a whole: what is damaged counts as missing.
 *
 * During a change nobody sees a mixture: the application object gets one QEvent::LanguageChange, after
 * everything is loaded, and the widgets get theirs from it.
 *
 * Main thread only.
 */
class PYXRUNTIME_EXPORT PYXTransConnectorImpl final : public PYXITransConnector
{
    Q_OBJECT
    Q_DISABLE_COPY(PYXTransConnectorImpl)
public:
    ~PYXTransConnectorImpl() override;

    static PYXTransConnectorImpl *getInstance();
    static bool hasInstance();
    static void makeSureInitialized();
    /** Also unloads all translations, without a signal. */
    static void destroyInstance();

    bool changeLocale(const QString &locale) override;
    const QString &getLocaleName() const override { return m_localeName; }
    QList<strucLocale> getSupportedLocales() const override;
    /** Whether Qt's file and those of all modules that are not optional can be loaded; else says which not.
     */
    bool isLocaleSupported(const QString &locale) const;
    void setTransDirPath(const QString &path) override;
    /**
     * The directory that was set. Otherwise the first of these that exists: "translations" beside the
     * program;
     * "../share/PYXRuntime/translations" from there; "PYXRuntime/translations" in the system's shared data;
     * where none does, the first.
     */
    QString getTransDirPath() const;
    void registerModule(PYXTranslatableModuleImpl *module) override;
    void unregisterModule(PYXTranslatableModuleImpl *module) override;
    void registerModuleByName(const QString &baseName, bool optional) override;
    void unregisterModuleByName(const QString &baseName) override;

private:
    struct struModule
    {
        PYXTranslatableModuleImpl *module = nullptr;
        std::unique_ptr<PYXTranslatableModuleImpl> owned; ///< where it was registered by name
    };
    using Modules = std::vector<struModule>;

    PYXTransConnectorImpl();
    bool _loadBase(const QString &locale);
    bool _loadModules(const QString &locale);
    void _unloadAll();
    void _announce(LanguageChangeHold &hold, bool changed);
    Modules::iterator _find(const QString &baseName);
    void _remove(Modules::iterator position);

    QString m_transDirPath; ///< empty: the default
    QString m_localeName;
    std::unique_ptr<QTranslator> m_applicationTranslator;
    std::unique_ptr<QTranslator> m_qtTranslator;
    Modules m_modules;
    PYXBrokerRegistration m_registration;
};

} // namespace PYXRuntime
