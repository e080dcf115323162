// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "pyxruntime_export.h"

#include <QtCore/QList>
#include <QtCore/QMap>
#include <QtWidgets/QDialog>

#include <memory>

class QAbstractButton;
class QAction;
class QTreeWidgetItem;

namespace PYXRuntime {

class PYXSettings;
class PYXSettingsHandlerWidget;
class SettingsDialogForm;

/**
 * The one dialog in which an application shows its settings pages, in a tree of categories with a search line
 * above.
 *
 * Pages are registered once; each run binds them to the stores, and applies, resets, restores or discards
 * what the user does, page by page or all at once. A page that does not verify cannot be left.
 * @code
 * dialog.registerSettingsHandler(new SHW_Plots_Waterfall);
 * PYXSettings settings(PYXSettings::eUserApplicationSettings);
 * PYXSettings defaults(PYXSettings::eDefaultApplicationSettings);
 * dialog.exec(settings, defaults);
 * @endcode
 * A registered page belongs to the dialog as its child. Window and splitter are remembered in the settings,
 * which can also hide buttons: see docs/dialog.md. GUI thread only.
 */
class PYXRUNTIME_EXPORT PYXSettingsDialog : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY(PYXSettingsDialog)
public:
    explicit PYXSettingsDialog(QWidget *parent = nullptr);
    ~PYXSettingsDialog() override;

    /** @return false for null, and for a page that a dialog has already. */
    bool registerSettingsHandler(PYXSettingsHandlerWidget *page);
    /** Gives the page back, hidden and without a parent. @return false if it is not registered here. */
    bool unregisterSettingsHandler(PYXSettingsHandlerWidget *page);

    /** The category of that name, which is made where there is none. @return its index, good for ever. */
    int addCategory(const QString &name);
    void renameCategory(int index, const QString &name);
    /** -1 where nothing matches. */
    int categoryIndex(const QString &name) const;
    int categoryIndex(PYXSettingsHandlerWidget *page) const;

    /**
     * Runs the dialog.
     * @param pageToShow null: the page that was shown last, or else the first one
     * @return QDialog::Accepted after OK or Close
     */
    int exec(PYXSettings &settings, PYXSettings &defaults, PYXSettings &shared, PYXSettings &sharedDefaults,
             PYXSettingsHandlerWidget *pageToShow = nullptr);
    /** With the shared stores of the user and of the machine. */
    int exec(PYXSettings &settings, PYXSettings &defaults, PYXSettingsHandlerWidget *pageToShow = nullptr);
    /** With the application's and the shared stores of the user and of the machine. */
    int exec() override;

    /** The page that is shown; null for the empty page. */
    PYXSettingsHandlerWidget *activePage() const;

public Q_SLOTS:
    void sl_retranslateUi();

Q_SIGNALS:
    /** All pages have been applied. */
    void si_settingsApplied();
    /** This page has been applied alone, by its own button. */
    void si_settingsApplied(PYXSettingsHandlerWidget *a_page);
    /** A page has been applied, either way. */
    void si_settingsPageApplied(PYXSettingsHandlerWidget *a_page);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void changeEvent(QEvent *event) override;

private Q_SLOTS:
    void _sl_styleChanged();
    void _sl_pageCleanStateChanged();
    void _sl_page_destroyed(QObject *a_page);
    void _sl_SettingsTree_currentItemChanged(QTreeWidgetItem *a_current, QTreeWidgetItem *a_previous);
    void _sl_SettingsTree_itemSelectionChanged();
    void _sl_ButtonBoxPage_clicked(QAbstractButton *a_button);
    void _sl_ButtonBoxDialog_clicked(QAbstractButton *a_button);
    void _sl_SearchLine_textChanged(const QString &a_text);

private:
    struct struModificationState;
    using PageAction = void (PYXSettingsHandlerWidget::*)();

    QTreeWidgetItem *_itemOf(const QObject *page) const;
    QList<PYXSettingsHandlerWidget *> _pagesInTreeOrder() const;
    void _connectServices(PYXSettingsHandlerWidget *page);
    void _removeItem(QTreeWidgetItem *item);

    void _bindPages();
    void _bindPage(PYXSettingsHandlerWidget *page);
    void _fillPages();
    void _showConfigurableButtons();
    void _sortTree();
    void _sortSoon();
    void _showFirstPage(PYXSettingsHandlerWidget *pageToShow);
    void _restoreWindow();
    void _storeWindow(PYXSettings &settings) const;

    void _showItem(QTreeWidgetItem *item);
    bool _keyInSearchLine(const QKeyEvent &event);
    struModificationState _checkModificationState() const;
    bool _verifyItem(QTreeWidgetItem *item, QString &errors) const;
    bool _verifyAll(QString &errors) const;
    void _showErrors(const QString &errors);

    void _applyCurrentPage();
    bool _applyAll();
    bool _applyChanges(PYXSettingsHandlerWidget *page);
    void _syncStores();
    void _refill(const QList<PYXSettingsHandlerWidget *> &pages, PageAction refill);
    void _ok();
    void _close();
    bool _discard();
    QAction *_helpAction() const;

    const std::unique_ptr<SettingsDialogForm> m_form;
    PYXSettings *m_settings = nullptr; ///< null outside a run, as the others
    PYXSettings *m_defaults = nullptr;
    PYXSettings *m_shared = nullptr;
    PYXSettings *m_sharedDefaults = nullptr;
    bool m_bClosing = false;
    bool m_bSortsSoon = false;
    bool m_bCollectingChanges = false; ///< the buttons are brought up to date once, at the end
    QList<QTreeWidgetItem *> m_categories;
    QMap<QTreeWidgetItem *, PYXSettingsHandlerWidget *> m_pages;
};

} // namespace PYXRuntime
