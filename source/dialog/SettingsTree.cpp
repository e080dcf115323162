// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "SettingsTree.h"

#include <QtCore/QSignalBlocker>
#include <QtGui/QPainter>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QStyledItemDelegate>
#include <QtWidgets/QTreeWidgetItemIterator>

namespace PYXRuntime {
namespace {

bool isShown(const QTreeWidgetItem *item)
{
    return !item->isHidden();
}

/** Whether it is made of lines, and not a picture or a block of colour. */
bool isLineDrawing(const QImage &image)
{
    int opaque = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            opaque += qAlpha(image.pixel(x, y)) > 127 ? 1 : 0;
    }
    return opaque * 2 < image.width() * image.height();
}

/** Lines in the colour of the selected text, as their own colours may be those of the selection. */
QIcon onSelection(const QIcon &icon, const QSize &size, const QStyleOptionViewItem &option)
{
    QPixmap pixmap = icon.pixmap(option.widget->window()->windowHandle(), size);
    if (!pixmap.isNull() && isLineDrawing(pixmap.toImage())) {
        QPainter painter(&pixmap);
        painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
        painter.fillRect(QRect(QPoint(), pixmap.size()), option.palette.color(QPalette::HighlightedText));
    }
    QIcon result;
    result.addPixmap(pixmap, QIcon::Selected);
    return result;
}

class ItemDelegate final : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        if (option->state.testFlag(QStyle::State_Selected) && !option->icon.isNull())
            option->icon = onSelection(option->icon, option->decorationSize, *option);
    }
};

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
    setItemDelegate(new ItemDelegate(this));
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

int SettingsTree::fittingWidth()
{
    int widest = 0;
    for (QTreeWidgetItemIterator it(this); *it != nullptr; ++it) {
        const int level = (*it)->parent() != nullptr ? 2 : 1;
        widest = qMax(widest, level * indentation() + sizeHintForIndex(indexFromItem(*it)).width());
    }
    return widest + 2 * frameWidth() + verticalScrollBar()->sizeHint().width();
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
