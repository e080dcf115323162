// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later

// What the user does in the settings dialog: going from page to page, and the buttons.

#include "PYXSettings.h"
#include "PYXSettingsDialog.h"
#include "PYXSettingsHandlerWidget.h"
#include "SettingsDialogForm.h"
#include "SettingsTree.h"

#include <QtCore/QPointer>
#include <QtCore/QSignalBlocker>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QAction>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>

namespace PYXRuntime {
namespace {

QString asHtmlList(const QStringList &errors)
{
    return QLatin1String("<ul><li>") + errors.join(QLatin1String("</li>\n<li>")) +
           QLatin1String("</li></ul>");
}

// Pages and listeners may destroy pages while all are gone through.
QList<QPointer<PYXSettingsHandlerWidget>> guarded(const QList<PYXSettingsHandlerWidget *> &pages)
{
    QList<QPointer<PYXSettingsHandlerWidget>> result;
    for (PYXSettingsHandlerWidget *const page : pages)
        result.append(page);
    return result;
}

/** Deletes the box after it; NoButton where it went before, with the dialog: it may go while it waits. */
int answerOf(QMessageBox *box)
{
    const QPointer<QMessageBox> guard(box);
    const int answer = box->exec();
    if (guard.isNull())
        return QMessageBox::NoButton;
    delete box;
    return answer;
}

} // namespace

/** All false outside a run. */
struct PYXSettingsDialog::struModificationState
{
    bool bAnyModified = false;
    bool bAnyNotDefault = false;
    bool bCurrentDirty = false;
    bool bCurrentNotDefault = false;
};

void PYXSettingsDialog::_sl_SettingsTree_currentItemChanged(QTreeWidgetItem *a_current,
                                                            QTreeWidgetItem *a_previous)
{
    if (m_bClosing)
        return;
    QTreeWidgetItem *const category = SettingsTree::isCategory(a_current) ? a_current : nullptr;
    if (category != nullptr && a_previous != nullptr && a_previous->parent() == category) {
        category->setExpanded(true);
        m_form->tree->setCurrentItem(a_previous);
        return;
    }
    const bool bIntoCategory =
        SettingsTree::isCategory(a_previous) && a_current != nullptr && a_current->parent() == a_previous;
    QString errors;
    if (!bIntoCategory && !_verifyItem(a_previous, errors)) {
        {
            const QSignalBlocker blocker(m_form->tree);
            m_form->tree->setCurrentItem(a_previous);
        }
        _showErrors(errors);
        return;
    }
    if (category != nullptr && category->childCount() > 0) {
        category->setExpanded(true);
        m_form->tree->setCurrentItem(SettingsTree::firstPageOf(category));
        return;
    }
    _showItem(a_current);
}

void PYXSettingsDialog::_sl_SettingsTree_itemSelectionChanged()
{
    // A click selects what it meets even where the handler above has made another item the current one.
    const QModelIndex current = m_form->tree->currentIndex();
    QItemSelectionModel *const selection = m_form->tree->selectionModel();
    if (current.isValid() && !selection->isSelected(current))
        selection->select(current, QItemSelectionModel::ClearAndSelect);
}

void PYXSettingsDialog::_showItem(QTreeWidgetItem *item)
{
    PYXSettingsHandlerWidget *const page = m_pages.value(item);
    m_form->show(page);
    _sl_pageCleanStateChanged();
    m_form->pageBox->setVisible(page != nullptr);
}

PYXSettingsDialog::struModificationState PYXSettingsDialog::_checkModificationState() const
{
    struModificationState state;
    if (m_settings == nullptr)
        return state;
    const PYXSettingsHandlerWidget *const current = activePage();
    for (const PYXSettingsHandlerWidget *const page : m_pages) {
        if (page == current)
            continue;
        state.bAnyModified = state.bAnyModified || page->isDirty();
        state.bAnyNotDefault = state.bAnyNotDefault || !page->isInDefaultState();
    }
    if (current != nullptr) {
        state.bCurrentDirty = current->isDirty();
        state.bCurrentNotDefault = !current->isInDefaultState();
    }
    state.bAnyModified = state.bAnyModified || state.bCurrentDirty;
    state.bAnyNotDefault = state.bAnyNotDefault || state.bCurrentNotDefault;
    return state;
}

void PYXSettingsDialog::_sl_pageCleanStateChanged()
{
    if (m_bCollectingChanges)
        return;
    using Box = QDialogButtonBox;
    const struModificationState state = _checkModificationState();
    m_form->pageButton(Box::Apply)->setEnabled(state.bCurrentDirty);
    m_form->pageButton(Box::Reset)->setEnabled(state.bCurrentDirty);
    m_form->pageButton(Box::RestoreDefaults)->setEnabled(state.bCurrentNotDefault);
    m_form->dialogBox->setUpdatesEnabled(false);
    m_form->dialogButton(Box::Apply)->setEnabled(state.bAnyModified);
    m_form->dialogButton(Box::Reset)->setEnabled(state.bAnyModified);
    m_form->dialogButton(Box::RestoreDefaults)->setEnabled(state.bAnyNotDefault);
    m_form->dialogButton(Box::Ok)->setVisible(state.bAnyModified);
    m_form->dialogButton(Box::Discard)->setVisible(state.bAnyModified);
    m_form->dialogButton(Box::Close)->setVisible(!state.bAnyModified);
    m_form->dialogButton(state.bAnyModified ? Box::Ok : Box::Close)->setDefault(true);
    m_form->dialogButton(Box::Help)->setEnabled(_helpAction() != nullptr);
    m_form->dialogBox->setUpdatesEnabled(true);
}

bool PYXSettingsDialog::_verifyItem(QTreeWidgetItem *item, QString &errors) const
{
    PYXSettingsHandlerWidget *const page = m_pages.value(item);
    QStringList list;
    if (page == nullptr || page->verifyContents(list))
        return true;
    errors = asHtmlList(list);
    return false;
}

bool PYXSettingsDialog::_verifyAll(QString &errors) const
{
    bool bGood = true;
    const auto items = m_form->tree->pageItems();
    for (QTreeWidgetItem *const item : items) {
        QString pageErrors;
        const PYXSettingsHandlerWidget *const page = m_pages.value(item);
        const QString title = page != nullptr ? page->title().toHtmlEscaped() : QString();
        if (_verifyItem(item, pageErrors))
            continue;
        bGood = false;
        errors += QLatin1String("<h6>") + title + QLatin1String("</h6>\n") + pageErrors + QLatin1Char('\n');
    }
    return bGood;
}

void PYXSettingsDialog::_showErrors(const QString &errors)
{
    const QString text =
        QLatin1String("<h4>") + tr("There are errors in the settings") + QLatin1String("</h4>");
    auto *const box =
        new QMessageBox(QMessageBox::Warning, tr("Errors in Settings"), text, QMessageBox::Ok, this);
    box->setInformativeText(errors);
    answerOf(box);
}

void PYXSettingsDialog::_sl_ButtonBoxPage_clicked(QAbstractButton *a_button)
{
    PYXSettingsHandlerWidget *const page = activePage();
    if (page == nullptr)
        return;
    switch (m_form->pageBox->standardButton(a_button)) {
    case QDialogButtonBox::Apply:
        _applyCurrentPage();
        break;
    case QDialogButtonBox::Reset:
        _refill({page}, &PYXSettingsHandlerWidget::resetContents);
        break;
    case QDialogButtonBox::RestoreDefaults:
        _refill({page}, &PYXSettingsHandlerWidget::restoreDefaultsContents);
        break;
    default:
        break;
    }
}

void PYXSettingsDialog::_sl_ButtonBoxDialog_clicked(QAbstractButton *a_button)
{
    switch (m_form->dialogBox->standardButton(a_button)) {
    case QDialogButtonBox::Ok:
        _ok();
        break;
    case QDialogButtonBox::Close:
        _close();
        break;
    case QDialogButtonBox::Discard:
        _discard();
        break;
    case QDialogButtonBox::Help:
        if (QAction *const action = _helpAction())
            action->trigger();
        break;
    case QDialogButtonBox::Apply:
        _applyAll();
        break;
    case QDialogButtonBox::Reset:
        _refill(_pagesInTreeOrder(), &PYXSettingsHandlerWidget::resetContents);
        break;
    case QDialogButtonBox::RestoreDefaults:
        _refill(_pagesInTreeOrder(), &PYXSettingsHandlerWidget::restoreDefaultsContents);
        break;
    default:
        break;
    }
}

void PYXSettingsDialog::_applyCurrentPage()
{
    PYXSettingsHandlerWidget *const page = activePage();
    QString errors;
    if (!_verifyItem(_itemOf(page), errors)) {
        _showErrors(errors);
        return;
    }
    const QPointer<PYXSettingsDialog> self(this);
    const QPointer<PYXSettingsHandlerWidget> guard(page);
    if (!_applyChanges(page) || self.isNull())
        return;
    _syncStores();
    if (!guard.isNull())
        Q_EMIT si_settingsApplied(page);
}

bool PYXSettingsDialog::_applyAll()
{
    QString errors;
    if (!_verifyAll(errors)) {
        _showErrors(errors);
        return false;
    }
    m_bCollectingChanges = true;
    bool bGood = true;
    const QPointer<PYXSettingsDialog> self(this);
    const auto pages = guarded(_pagesInTreeOrder());
    for (const auto &page : pages) {
        bGood = page.isNull() || _applyChanges(page);
        if (self.isNull())
            return false;
        if (!bGood)
            break;
    }
    m_bCollectingChanges = false;
    _sl_pageCleanStateChanged();
    if (!bGood)
        return false;
    _syncStores();
    Q_EMIT si_settingsApplied();
    return !self.isNull();
}

bool PYXSettingsDialog::_applyChanges(PYXSettingsHandlerWidget *page)
{
    const QPointer<PYXSettingsHandlerWidget> guard(page);
    if (!page->applyChanges())
        return false;
    if (!guard.isNull())
        page->sl_modified();
    if (!guard.isNull())
        Q_EMIT si_settingsPageApplied(page);
    return true;
}

void PYXSettingsDialog::_syncStores()
{
    if (m_settings != nullptr)
        m_settings->sync();
    if (m_shared != nullptr)
        m_shared->sync();
}

void PYXSettingsDialog::_refill(const QList<PYXSettingsHandlerWidget *> &pages, PageAction refill)
{
    if (m_settings == nullptr)
        return;
    m_bCollectingChanges = true;
    const QPointer<PYXSettingsDialog> self(this);
    const auto guardedPages = guarded(pages);
    for (const auto &page : guardedPages) {
        if (page.isNull())
            continue;
        page->setIgnoreModified(true);
        (page->*refill)();
        if (!page.isNull())
            page->setIgnoreModified(false);
        if (!page.isNull())
            page->sl_modified();
        if (self.isNull())
            return;
    }
    m_bCollectingChanges = false;
    _sl_pageCleanStateChanged();
}

void PYXSettingsDialog::_ok()
{
    if (!_applyAll())
        return;
    m_bClosing = true;
    accept();
}

void PYXSettingsDialog::_close()
{
    m_bClosing = true;
    accept();
}

bool PYXSettingsDialog::_discard()
{
    if (!_checkModificationState().bAnyModified)
        return true;
    const QString question = tr("The settings have been modified.") + QLatin1Char('\n') +
                             tr("Do you really want to discard the changes?");
    auto *const box = new QMessageBox(QMessageBox::Question, tr("Settings Modified"), question,
                                      QMessageBox::Yes | QMessageBox::No, this);
    box->setDefaultButton(QMessageBox::No);
    if (answerOf(box) != QMessageBox::Yes)
        return false;
    const QPointer<PYXSettingsDialog> self(this);
    const auto pages = guarded(_pagesInTreeOrder());
    for (const auto &page : pages) {
        if (!page.isNull() && !page->discardChanges())
            return false;
        if (self.isNull())
            return false;
    }
    m_bClosing = true;
    reject();
    return true;
}

void PYXSettingsDialog::closeEvent(QCloseEvent *event)
{
    if (!m_bClosing && !_discard()) {
        event->ignore();
        return;
    }
    _syncStores();
    QDialog::closeEvent(event);
}

void PYXSettingsDialog::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    m_form->orderFocus();
    m_form->tree->setFocus(Qt::OtherFocusReason);
}

void PYXSettingsDialog::changeEvent(QEvent *event)
{
    QDialog::changeEvent(event);
    // Button boxes lay themselves out anew for another style, and show all buttons. Queued: theirs may come
    // after this event.
    if (event->type() == QEvent::StyleChange)
        QMetaObject::invokeMethod(this, &PYXSettingsDialog::_sl_styleChanged, Qt::QueuedConnection);
}

void PYXSettingsDialog::_sl_styleChanged()
{
    m_form->orderFocus();
    if (m_settings == nullptr)
        return;
    _showConfigurableButtons();
    _sl_pageCleanStateChanged();
}

void PYXSettingsDialog::keyPressEvent(QKeyEvent *event)
{
    if (m_form->searchLine->hasFocus() && _keyInSearchLine(*event))
        return;
    if (event->matches(QKeySequence::Cancel))
        close(); // asks where something is modified
    else
        QDialog::keyPressEvent(event);
}

bool PYXSettingsDialog::_keyInSearchLine(const QKeyEvent &event)
{
    QTreeWidgetItem *const found = m_form->tree->firstPage();
    switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (found != nullptr)
            m_form->tree->setCurrentItem(found);
        return true; // and the default button is not pressed
    case Qt::Key_Down:
        if (found != nullptr && m_form->tree->currentItem() != nullptr &&
            m_form->tree->currentItem()->isHidden())
            m_form->tree->setCurrentItem(found);
        m_form->tree->setFocus(Qt::OtherFocusReason);
        return true;
    case Qt::Key_Escape:
        if (m_form->searchLine->text().isEmpty())
            return false;
        m_form->searchLine->clear();
        return true;
    default:
        return false;
    }
}

void PYXSettingsDialog::_sl_SearchLine_textChanged(const QString &a_text)
{
    m_form->filter(a_text, m_pages);
}

} // namespace PYXRuntime
