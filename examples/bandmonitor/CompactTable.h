// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtCore/QList>

class QAbstractItemModel;
class QFont;
class QLabel;
class QPushButton;
class QTableView;
class QWidget;

namespace BandMonitor {

/** A table for a dock: rows are selected one at a time, columns are as wide as their texts. */
QTableView *createCompactTable(QAbstractItemModel *model, const QFont &font);
/** Low rows in a small font, without lines and frames. */
void makeCompact(QTableView *table, const QFont &font);
/** A label that is seen in the table while that has no rows. */
QLabel *addHint(QTableView *table);
/** Lets the button be pressed only while the table has a current row. */
void enableWithRow(const QTableView *table, QPushButton *button);
/** The table with its buttons in a row below. */
QWidget *withButtons(QTableView *table, const QList<QPushButton *> &buttons);

/** Lets the table ask for headings and texts again, after a change of the language. */
void retranslate(QTableView *table);

} // namespace BandMonitor
