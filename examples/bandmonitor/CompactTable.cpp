// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#include "CompactTable.h"

#include "Scale.h"

#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTableView>
#include <QtWidgets/QVBoxLayout>

namespace BandMonitor {

void makeCompact(QTableView *table, const QFont &font)
{
    table->setFont(smallerFont(font));
    table->setShowGrid(false);
    table->setFrameShape(QFrame::NoFrame);
    table->verticalHeader()->hide();
    table->verticalHeader()->setDefaultSectionSize(table->fontMetrics().height() + 6);
    table->horizontalHeader()->setFont(table->font());
    table->horizontalHeader()->setHighlightSections(false);
}

QTableView *createCompactTable(QAbstractItemModel *model, const QFont &font)
{
    auto *const table = new QTableView;
    makeCompact(table, font);
    table->setModel(model);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setSelectionMode(QAbstractItemView::SingleSelection);
    table->setTabKeyNavigation(false);
    table->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    table->horizontalHeader()->setStretchLastSection(true);
    return table;
}

QLabel *addHint(QTableView *table)
{
    auto *const hint = new QLabel;
    hint->setEnabled(false); // dimmed
    hint->setWordWrap(true);
    hint->setAlignment(Qt::AlignCenter);
    (new QVBoxLayout(table->viewport()))->addWidget(hint);
    const QAbstractItemModel *const model = table->model();
    const auto update = [hint, model] { hint->setVisible(model->rowCount() == 0); };
    QObject::connect(model, &QAbstractItemModel::rowsInserted, hint, update);
    QObject::connect(model, &QAbstractItemModel::rowsRemoved, hint, update);
    QObject::connect(model, &QAbstractItemModel::modelReset, hint, update);
    update();
    return hint;
}

void enableWithRow(const QTableView *table, QPushButton *button)
{
    const auto update = [table, button] { button->setEnabled(table->currentIndex().isValid()); };
    QObject::connect(table->selectionModel(), &QItemSelectionModel::currentChanged, button, update);
    QObject::connect(table->model(), &QAbstractItemModel::modelReset, button, update);
    update();
}

void retranslate(QTableView *table)
{
    table->horizontalHeader()->headerDataChanged(Qt::Horizontal, 0, table->model()->columnCount() - 1);
    table->viewport()->update();
}

QWidget *withButtons(QTableView *table, const QList<QPushButton *> &buttons)
{
    auto *const row = new QHBoxLayout;
    row->setContentsMargins(4, 0, 4, 4);
    for (QPushButton *const button : buttons) {
        button->setFont(table->font());
        row->addWidget(button);
    }
    row->addStretch();
    auto *const part = new QWidget;
    auto *const layout = new QVBoxLayout(part);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    layout->addWidget(table);
    layout->addLayout(row);
    return part;
}

} // namespace BandMonitor
