// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "SettingsDialogForm.h"

#include "PageText.h"
#include "PYXSettingsHandlerWidget.h"
#include "SettingsTree.h"

#include <QtWidgets/QDialog>
#include <QtWidgets/QFrame>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QSplitter>
#include <QtWidgets/QStackedWidget>
#include <QtWidgets/QStyle>
#include <QtWidgets/QVBoxLayout>

namespace PYXRuntime {
namespace {

constexpr auto PageButtons =
    QDialogButtonBox::Apply | QDialogButtonBox::Reset | QDialogButtonBox::RestoreDefaults;
constexpr auto DialogButtons = PageButtons | QDialogButtonBox::Ok | QDialogButtonBox::Close |
                               QDialogButtonBox::Discard | QDialogButtonBox::Help;
constexpr int UsualTreeWidth = 200;

QScrollArea *areaAround(const QWidget *page)
{
    QWidget *const viewport = page != nullptr ? page->parentWidget() : nullptr;
    return viewport != nullptr ? qobject_cast<QScrollArea *>(viewport->parentWidget()) : nullptr;
}

QWidget *lastInFocusChain(QWidget &window)
{
    return window.previousInFocusChain();
}

} // namespace

SettingsDialogForm::SettingsDialogForm(QDialog &dialog)
    : m_dialog(dialog)
{
    dialog.setObjectName(QStringLiteral("PYXSettingsDialog"));
    dialog.setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    dialog.setSizeGripEnabled(true);
    splitter = new QSplitter(Qt::Horizontal);
    splitter->setObjectName(QStringLiteral("splitter"));
    splitter->addWidget(_makeTreeSide());
    splitter->addWidget(_makePageSide());
    splitter->setStretchFactor(1, 1);
    splitter->setChildrenCollapsible(false);
    auto *const line = new QFrame;
    line->setObjectName(QStringLiteral("line"));
    line->setFrameShape(QFrame::HLine);
    line->setFrameShadow(QFrame::Sunken);
    auto *const layout = new QVBoxLayout(&dialog);
    layout->addWidget(splitter, 1);
    layout->addWidget(line);
    dialogBox = new QDialogButtonBox(DialogButtons);
    dialogBox->setObjectName(QStringLiteral("m_ButtonBoxDialog"));
    dialogButton(QDialogButtonBox::Help)->setObjectName(QStringLiteral("PYXSettingsDialog::HelpButton"));
    layout->addWidget(dialogBox);
    retranslate();
}

QWidget *SettingsDialogForm::_makeTreeSide()
{
    auto *const side = new QWidget;
    auto *const layout = new QVBoxLayout(side);
    layout->setContentsMargins(0, 0, 0, 0);
    searchLine = new QLineEdit;
    searchLine->setObjectName(QStringLiteral("m_SearchLine"));
    searchLine->setClearButtonEnabled(true);
    tree = new SettingsTree;
    tree->setObjectName(QStringLiteral("m_SettingsTree"));
    noMatch = new QLabel;
    noMatch->setWordWrap(true);
    noMatch->hide();
    layout->addWidget(searchLine);
    layout->addWidget(tree, 1);
    layout->addWidget(noMatch);
    return side;
}

QWidget *SettingsDialogForm::_makePageSide()
{
    auto *const side = new QWidget;
    auto *const layout = new QVBoxLayout(side);
    layout->setContentsMargins(0, 0, 0, 0);
    stack = new QStackedWidget;
    stack->setObjectName(QStringLiteral("m_SettingsPagesStack"));
    auto *const empty = new QWidget;
    empty->setObjectName(QStringLiteral("page"));
    stack->addWidget(empty);
    pageBox = new QDialogButtonBox(PageButtons);
    pageBox->setObjectName(QStringLiteral("m_ButtonBoxPage"));
    // In line with what is on the page, which has margins.
    const QStyle *const style = side->style();
    pageBox->setContentsMargins(style->pixelMetric(QStyle::PM_LayoutLeftMargin), 0,
                                style->pixelMetric(QStyle::PM_LayoutRightMargin), 0);
    layout->addWidget(stack, 1);
    layout->addWidget(pageBox);
    return side;
}

void SettingsDialogForm::retranslate()
{
    m_dialog.setWindowTitle(tr("PYX Settings"));
    searchLine->setPlaceholderText(tr("Search"));
    searchLine->setAccessibleName(tr("Search the settings"));
    searchLine->setToolTip(tr("Shows the pages with these words in their titles, labels or tool tips"));
    tree->setAccessibleName(tr("Settings pages"));
    noMatch->setText(tr("No page has these words."));
    _translateButtons();
}

void SettingsDialogForm::_translateButtons() const
{
    using Box = QDialogButtonBox;
    const std::pair<QPushButton *, QString> toolTips[] = {
        {pageButton(Box::Apply), tr("Apply the changes from this settings page")},
        {pageButton(Box::Reset), tr("Undo the changes on this settings page")},
        {pageButton(Box::RestoreDefaults), tr("Reset the settings from this page to their default values")},
        {dialogButton(Box::Ok), tr("Close the dialog, applying any pending changes")},
        {dialogButton(Box::Close), tr("Close the dialog")},
        {dialogButton(Box::Discard),
         tr("Close the dialog, discarding any changes that have not been applied yet")},
        {dialogButton(Box::Help), tr("Display help for the current settings page (if available)")},
        {dialogButton(Box::Apply), tr("Apply the changes made on any settings page")},
        {dialogButton(Box::RestoreDefaults), tr("Restore all settings in all pages to their default values")},
        {dialogButton(Box::Reset), tr("Undo all changes made on any of the settings pages")},
    };
    for (const auto &[button, toolTip] : toolTips)
        button->setToolTip(toolTip);
    // Three buttons are there twice, and a screen reader does not show which ones stand together.
    pageButton(Box::Apply)->setAccessibleName(tr("Apply this page"));
    pageButton(Box::Reset)->setAccessibleName(tr("Reset this page"));
    pageButton(Box::RestoreDefaults)->setAccessibleName(tr("Restore the defaults of this page"));
    dialogButton(Box::Apply)->setAccessibleName(tr("Apply all pages"));
    dialogButton(Box::Reset)->setAccessibleName(tr("Reset all pages"));
    dialogButton(Box::RestoreDefaults)->setAccessibleName(tr("Restore the defaults of all pages"));
}

QPushButton *SettingsDialogForm::pageButton(QDialogButtonBox::StandardButton which) const
{
    return pageBox->button(which);
}

QPushButton *SettingsDialogForm::dialogButton(QDialogButtonBox::StandardButton which) const
{
    return dialogBox->button(which);
}

void SettingsDialogForm::show(QWidget *page) const
{
    QWidget *const area = areaAround(page);
    stack->setCurrentWidget(area != nullptr ? area : stack->widget(0));
}

QWidget *SettingsDialogForm::shownPage() const
{
    auto *const area = qobject_cast<QScrollArea *>(stack->currentWidget());
    return area != nullptr ? area->widget() : nullptr;
}

void SettingsDialogForm::add(QWidget *page) const
{
    auto *const area = new QScrollArea;
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setFocusPolicy(Qt::NoFocus); // its page takes the focus, and hands the keys on
    area->setWidget(page);
    stack->addWidget(area);
    page->show();
}

void SettingsDialogForm::remove(QWidget *page) const
{
    QScrollArea *const area = areaAround(page);
    page->hide();
    page->setParent(nullptr);
    delete area;
}

void SettingsDialogForm::removeEmptyAreas() const
{
    for (int i = stack->count() - 1; i > 0; --i) {
        auto *const area = qobject_cast<QScrollArea *>(stack->widget(i));
        if (area == nullptr || area->widget() != nullptr)
            continue;
        stack->removeWidget(area);
        area->deleteLater(); // what is left of the page is still its child
    }
}

void SettingsDialogForm::fitTree(int wholeWidth) const
{
    const int treeWidth = qBound(UsualTreeWidth, tree->fittingWidth(), wholeWidth / 2);
    splitter->setSizes({treeWidth, wholeWidth - treeWidth});
}

void SettingsDialogForm::filter(const QString &words,
                                const QMap<QTreeWidgetItem *, PYXSettingsHandlerWidget *> &pages) const
{
    const PageText::Words wanted(words);
    bool bFound = pages.isEmpty();
    for (auto page = pages.begin(); page != pages.end(); ++page) {
        const QTreeWidgetItem *const category = page.key()->parent();
        const QString path =
            (category != nullptr ? category->text(0) + QLatin1Char(' ') : QString()) + page.key()->text(0);
        const bool bShown = wanted.areIn(path, *page.value());
        page.key()->setHidden(!bShown);
        bFound = bFound || bShown;
    }
    for (int i = 0; i < tree->topLevelItemCount(); ++i) {
        QTreeWidgetItem *const item = tree->topLevelItem(i);
        if (!SettingsTree::isCategory(item))
            continue;
        // One without pages is shown or hidden for other reasons.
        if (const QTreeWidgetItem *const first = SettingsTree::firstPageOf(item))
            item->setHidden(first->isHidden());
        if (!wanted.isEmpty())
            item->setExpanded(true);
    }
    noMatch->setVisible(!bFound);
}

void SettingsDialogForm::orderFocus() const
{
    QWidget *last = lastInFocusChain(m_dialog);
    for (QDialogButtonBox *const box : {pageBox, dialogBox}) {
        // It would hand the focus to its first button before any page has its turn.
        box->setFocusProxy(nullptr);
        const QLayout *const layout = box->layout();
        for (int i = 0; i < layout->count(); ++i) {
            QWidget *const button = layout->itemAt(i)->widget();
            if (button == nullptr)
                continue;
            QWidget::setTabOrder(last, button);
            last = button;
        }
    }
}

} // namespace PYXRuntime
