// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#include "TableText.h"

#include <QtCore/QAbstractItemModel>
#include <QtCore/QStringList>

#include <algorithm>
#include <vector>

namespace BandMonitor {
namespace {

const QLatin1String ColumnGap("   ");

/** The texts of the table, headings first. */
std::vector<QStringList> rowsOf(const QAbstractItemModel &model)
{
    std::vector<QStringList> rows(1);
    for (int column = 0; column < model.columnCount(); ++column)
        rows.front() += model.headerData(column, Qt::Horizontal).toString();
    for (int row = 0; row < model.rowCount(); ++row) {
        rows.emplace_back();
        for (int column = 0; column < model.columnCount(); ++column)
            rows.back() += model.index(row, column).data().toString();
    }
    return rows;
}

QString csvField(const QString &text)
{
    const bool bPlain = std::none_of(text.begin(), text.end(), [](QChar character) {
        return QStringLiteral(",\"\r\n").contains(character);
    });
    return bPlain ? text
                  : QLatin1Char('"') + QString(text).replace(QLatin1Char('"'), QLatin1String("\"\"")) +
                        QLatin1Char('"');
}

} // namespace

QString alignedText(const QAbstractItemModel &model)
{
    const std::vector<QStringList> rows = rowsOf(model);
    QString text;
    for (const QStringList &row : rows) {
        for (int column = 0; column < row.size(); ++column) {
            int width = 0;
            for (const QStringList &other : rows)
                width = std::max(width, other.at(column).size());
            text += (column == 0 ? QString() : ColumnGap) + row.at(column).rightJustified(width);
        }
        text += QLatin1Char('\n');
    }
    return text;
}

QString csvText(const QAbstractItemModel &model)
{
    QString text;
    for (QStringList &row : rowsOf(model)) {
        std::transform(row.begin(), row.end(), row.begin(), csvField);
        text += row.join(QLatin1Char(',')) + QLatin1String("\r\n");
    }
    return text;
}

} // namespace BandMonitor
