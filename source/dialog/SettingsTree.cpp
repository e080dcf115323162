// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "SettingsTree.h"

#include <QtCore/QSignalBlocker>
#include <QtWidgets/QHeaderView>

namespace PYXRuntime {
namespace {

bool isShown(const QTreeWidgetItem *item)
{
    return !item->isHidden();
}

QTreeWidgetItem *lastPageOf(const QTreeWidgetItem *category)
{
    for (int i = category->childCount() - 1; i >= 0; --i) {
        if (isShown(category->child(i)))
            return category->child(i);
    }
    return nullptr;
}

} // namespace

SettingsTree::SettingsTree(QWidget *parent)
    : QTreeWidget(parent)
{
    setColumnCount(1);
    header()->hide();
    setSelectionMode(SingleSelection);
    setUniformRowHeights(true);
}

SettingsTree::~SettingsTree() = default;

bool SettingsTree::isCategory(const QTreeWidgetItem *item)
{
    return item != nullptr && item->type() == ekItem_Category;
}

QTreeWidgetItem *SettingsTree::firstPageOf(const QTreeWidgetItem *category)
{
    for (int i = 0; i < category->childCount(); ++i) {
        if (isShown(category->child(i)))
            return category->child(i);
    }
    return category->child(0);
}

QTreeWidgetItem *SettingsTree::firstPage() const
{
    const auto items = pageItems();
    for (QTreeWidgetItem *const item : items) {
        if (isShown(item) && (item->parent() == nullptr || isShown(item->parent())))
            return item;
    }
    return nullptr;
}

QList<QTreeWidgetItem *> SettingsTree::pageItems() const
{
    QList<QTreeWidgetItem *> items;
    for (int i = 0; i < topLevelItemCount(); ++i) {
        QTreeWidgetItem *const top = topLevelItem(i);
        if (!isCategory(top))
            items += top;
        for (int j = 0; j < top->childCount(); ++j)
            items += top->child(j);
    }
    return items;
}

void SettingsTree::sortPages()
{
    const QSignalBlocker blocker(this);
    QTreeWidgetItem *const current = currentItem();
    sortItems(0, Qt::AscendingOrder);
    int pages = 0;
    for (int i = 0; i < topLevelItemCount(); ++i) {
        if (isCategory(topLevelItem(i)))
            continue;
        if (i != pages)
            insertTopLevelItem(pages, takeTopLevelItem(i));
        ++pages;
    }
    if (currentItem() != current)
        setCurrentItem(current);
}

QModelIndex SettingsTree::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers)
{
    const QModelIndex target = QTreeWidget::moveCursor(action, modifiers);
    QTreeWidgetItem *const item = itemFromIndex(target);
    if (!isCategory(item))
        return target;
    QTreeWidgetItem *page = nullptr;
    if (action == MoveUp || action == MovePrevious || action == MovePageUp)
        page = _pageAbove(item);
    else if (action == MoveHome)
        page = firstPage();
    else if (action == MoveEnd)
        page = lastPageOf(item);
    else
        return target;
    return page != nullptr ? indexFromItem(page) : currentIndex();
}

QTreeWidgetItem *SettingsTree::_pageAbove(QTreeWidgetItem *item)
{
    const bool bOwn = currentItem() != nullptr && currentItem()->parent() == item;
    if (!bOwn)
        return lastPageOf(item);
    for (int i = indexOfTopLevelItem(item) - 1; i >= 0; --i) {
        QTreeWidgetItem *const above = topLevelItem(i);
        if (isShown(above))
            return isCategory(above) ? lastPageOf(above) : above;
    }
    return nullptr;
}

} // namespace PYXRuntime
