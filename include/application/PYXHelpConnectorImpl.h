// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "PYXBrokerRegistration.h"
#include "PYXIHelpConnector.h"
#include "pyxruntime_export.h"

#include <QtCore/QDateTime>

#include <memory>

namespace PYXRuntime {

struct struHelpEntries;

/**
 * The library's help connector. An application that has help makes it, once its application object is there:
 * @code
 * PYXHelpConnectorImpl::getInstance()->setHelpEntryFile(directory + "/help.xml");
 * @endcode
 * It lives until the library is shut down. From then on F1 in any window that does not use the key itself
 * opens the page of the widget with the focus. The context of a widget or an action is its property
 * "PYXHelpContext", else its object name; where that has no page, the parent's counts, and in the end the
 * start page.
 *
 * The help-entry file; pages are URLs, or relative to the file:
 * @code{.xml}
 * <HelpEntries start="index.html">
 *     <Entry context="MainWindow" page="window.html#spectrum"/>
 * </HelpEntries>
 * @endcode
 * Where there is a "help_de.xml" beside "help.xml", it is used as long as the language is German. A file that
 * has changed is read again.
 *
 * Main thread only.
 */
class PYXRUNTIME_EXPORT PYXHelpConnectorImpl final : public PYXIHelpConnector
{
    Q_OBJECT
    Q_DISABLE_COPY(PYXHelpConnectorImpl)
public:
    static constexpr const char *ContextProperty = "PYXHelpContext";

    ~PYXHelpConnectorImpl() override;

    /** Created on first use; shutting the library down destroys it. */
    static PYXHelpConnectorImpl *getInstance();
    static bool hasInstance();
    static void makeSureInitialized();
    static void destroyInstance();

    /** An empty path switches the help off. */
    void setHelpEntryFile(const QString &path);
    QString getHelpEntryFile() const { return m_helpEntryFile; }

    bool hasHelp(const QString &context) const override;
    bool showHelp(const QString &context) override;
    /** Shows the help for an object, and for its parents where it has none. */
    bool showHelpFor(const QObject *object);

    bool eventFilter(QObject *watched, QEvent *event) override;

public Q_SLOTS:
    void sl_onHelpRequested() override;

private:
    PYXHelpConnectorImpl();
    const struHelpEntries &_entries() const;
    QString _contextOf(const QObject *object) const;

    QString m_helpEntryFile;
    mutable QString m_readFile;
    mutable QDateTime m_readFileChanged;
    mutable std::unique_ptr<struHelpEntries> m_entries;
    PYXBrokerRegistration m_registration;
};

} // namespace PYXRuntime
