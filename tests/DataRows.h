// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtTest/QTest>

#include <tuple>
#include <vector>

/** A row of test data: its name, then a value for each column. */
template <typename... Columns>
using Rows = std::vector<std::tuple<const char *, Columns...>>;

/** Makes the table of a data-driven test. */
template <typename... Columns>
void addRows(std::initializer_list<const char *> columns,
             const std::vector<std::tuple<const char *, Columns...>> &rows)
{
    auto column = columns.begin();
    (QTest::addColumn<Columns>(*column++), ...);
    for (const auto &row : rows) {
        const auto add = [](const char *name, const Columns &...values) {
            (QTest::newRow(name) << ... << values);
        };
        std::apply(add, row);
    }
}

/**
 * Calls the check with the values of one row after the other. Where it fails, the name of the row is told,
 * and the rows behind it are left out.
 */
template <typename... Columns, typename Check>
void forRows(const std::vector<std::tuple<const char *, Columns...>> &rows, Check check)
{
    const auto checkRow = [&check](const char *name, const Columns &...values) {
        check(values...);
        if (QTest::currentTestFailed())
            qWarning("in the row \"%s\"", name);
        return !QTest::currentTestFailed();
    };
    for (const auto &row : rows) {
        if (!std::apply(checkRow, row))
            return;
    }
}
