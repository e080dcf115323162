// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtWidgets/QTreeWidget>

namespace PYXRuntime {

/** The tree of categories and pages, in which the keys go from page to page. */
class SettingsTree final : public QTreeWidget
{
    Q_OBJECT
    Q_DISABLE_COPY(SettingsTree)
public:
    enum eItemType { ekItem_Page = QTreeWidgetItem::Type, ekItem_Category = QTreeWidgetItem::UserType };

    explicit SettingsTree(QWidget *parent = nullptr);
    ~SettingsTree() override;

    static bool isCategory(const QTreeWidgetItem *item);
    /** The first child that is not hidden, else the first; null for an item without children. */
    static QTreeWidgetItem *firstPageOf(const QTreeWidgetItem *category);
    /** The first page that is not hidden; null where there is none. */
    QTreeWidgetItem *firstPage() const;
    /** Every item that is no category, hidden or not, from top to bottom. */
    QList<QTreeWidgetItem *> pageItems() const;

    /** So wide that no text is cut, not even of an item that is not seen. */
    int fittingWidth();
    /** By text, with the pages without category before all categories; nothing is signalled. */
    void sortPages();

protected:
    /** A category sends the user to its first page, so the way up must not end on the own category. */
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;

private:
    QTreeWidgetItem *_pageAbove(QTreeWidgetItem *item);
};

} // namespace PYXRuntime
