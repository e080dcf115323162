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
