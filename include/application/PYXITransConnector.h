// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "PYXBrokerInterface.h"
#include "PYXInterfaceIdentifiers.h"
#include "pyxruntime_export.h"

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QString>

namespace PYXRuntime {
class PYXITransConnector;
class PYXTranslatableModuleImpl;
} // namespace PYXRuntime

// Before the class, so that every implementation answers to the interface id without further ado.
Q_DECLARE_INTERFACE(PYXRuntime::PYXITransConnector, "com.varnholt.PYXRuntime.PYXITransConnector/1.0")
PYX_DECLARE_BROKER_INTERFACE(PYXRuntime::PYXITransConnector,
                             PYXRuntime::InterfaceIdentifiers::transConnector())

namespace PYXRuntime {

/**
 * Switches the language of the whole process at run time: the application's texts, Qt's own and those of
 * every registered module.
 *
 * The library's implementation, PYXTransConnectorImpl, registers itself with the broker under the name 0.
 * @code
 * if (auto *translations = PYXBroker::getInstance()->topObject<PYXITransConnector>()) {
 *     connect(translations, &PYXITransConnector::si_localeChanged, this, &Page::sl_retranslateUi);
 *     translations->changeLocale("de");
 * }
 * @endcode
 * Main thread only. Failures are traced. The order of the operations is part of the contract.
 */
class PYXRUNTIME_EXPORT PYXITransConnector : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(PYXITransConnector)
    Q_INTERFACES(PYXRuntime::PYXITransConnector)
public:
    struct strucLocale
    {
        QString localeName;  ///< what changeLocale() takes, e.g. "de"
        QString displayName; ///< the language in that language, e.g. "Deutsch"
    };

    ~PYXITransConnector() override = default;

    /**
     * Loads the files of the locale and announces it; "en" needs none.
     * @return false where the application's file, Qt's or that of a module that is not optional is missing:
     * the process speaks English then, and nothing of the locale stays loaded.
     */
    virtual bool changeLocale(const QString &locale) = 0;
    /** The current locale: "en" at first, and after any change that has failed. */
    virtual const QString &getLocaleName() const = 0;
    /** English, and every language that changeLocale() would accept, ordered by file name. */
    virtual QList<strucLocale> getSupportedLocales() const = 0;
    /** Where all translation files are; handed to every module. Takes effect with the next change. */
    virtual void setTransDirPath(const QString &path) = 0;
    /**
     * Adds a module, once, and gives it the translations directory. Its files are loaded with the next
     * change. The connector does not own it: unregister it before it goes.
     */
    virtual void registerModule(PYXTranslatableModuleImpl *module) = 0;
    /** Also unloads its translations. */
    virtual void unregisterModule(PYXTranslatableModuleImpl *module) = 0;
    /** The same with a module of the connector's own; nothing happens where one of this base name is there.
     */
    virtual void registerModuleByName(const QString &baseName, bool optional) = 0;
    virtual void unregisterModuleByName(const QString &baseName) = 0;

Q_SIGNALS:
    /** All texts are in place: retranslate. Comes before the widgets' QEvent::LanguageChange. */
    void si_localeChanged();

protected:
    explicit PYXITransConnector(QObject *parent = nullptr)
        : QObject(parent)
    {}
};

} // namespace PYXRuntime
