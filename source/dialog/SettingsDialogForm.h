// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QCoreApplication>
#include <QtCore/QMap>
#include <QtWidgets/QDialogButtonBox>

class QDialog;
class QLabel;
class QLineEdit;
class QPushButton;
class QSplitter;
class QStackedWidget;
class QTreeWidgetItem;

namespace PYXRuntime {

class PYXSettingsHandlerWidget;
class SettingsTree;

/** The widgets of the settings dialog; they belong to the dialog. */
class SettingsDialogForm final
{
    Q_DECLARE_TR_FUNCTIONS(PYXRuntime::PYXSettingsDialog)
    Q_DISABLE_COPY(SettingsDialogForm)
public:
    explicit SettingsDialogForm(QDialog &dialog);

    void retranslate();

    QPushButton *pageButton(QDialogButtonBox::StandardButton which) const;
    QPushButton *dialogButton(QDialogButtonBox::StandardButton which) const;

    /** Makes the shown widget of the stack that page, in its scroll area; null: the empty page. */
    void show(QWidget *page) const;
    QWidget *shownPage() const;
    void add(QWidget *page) const;
    /** Takes the page out, hidden and without parent. */
    void remove(QWidget *page) const;
    /** Removes the scroll area of a page that is destroyed already. */
    void removeEmptyAreas() const;

    /** Gives the tree its usual width, or as much more as its texts need. */
    void fitTree(int wholeWidth) const;
    /** Shows only the pages that have these words, and their categories. An empty text shows all. */
    void filter(const QString &words, const QMap<QTreeWidgetItem *, PYXSettingsHandlerWidget *> &pages) const;

    /** Puts the buttons behind all pages, in the order in which the eye meets them. */
    void orderFocus() const;

    QSplitter *splitter;
    QLineEdit *searchLine;
    SettingsTree *tree;
    QLabel *noMatch;
    QStackedWidget *stack;
    QDialogButtonBox *pageBox;
    QDialogButtonBox *dialogBox;

private:
    QWidget *_makeTreeSide();
    QWidget *_makePageSide();
    void _translateButtons() const;

    QDialog &m_dialog;
};

} // namespace PYXRuntime
