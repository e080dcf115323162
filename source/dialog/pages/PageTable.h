// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtWidgets/QHeaderView>
#include <QtWidgets/QTableView>

namespace PYXRuntime {

/** Gives a table on a page its low rows without numbers, which the tab key leads out of. */
inline void prepareTable(QTableView &table)
{
    constexpr int RowPadding = 8;
    table.setTabKeyNavigation(false);
    table.verticalHeader()->hide();
    table.verticalHeader()->setDefaultSectionSize(table.fontMetrics().height() + RowPadding);
}

} // namespace PYXRuntime
