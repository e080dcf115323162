// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "LiveTableModel.h"

#include <algorithm>

namespace PYXRuntime {

LiveTableModel::LiveTableModel(int keyCells, QObject *parent)
    : QAbstractTableModel(parent)
    , m_keyCells(keyCells)
{}

LiveTableModel::~LiveTableModel() = default;

void LiveTableModel::setHeaders(const QStringList &headers)
{
    beginResetModel();
    m_headers = headers;
    endResetModel();
}

void LiveTableModel::setRows(const QVector<LiveRow> &rows)
{
    if (!_hasSameKeys(rows)) {
        beginResetModel();
        m_rows = rows;
        endResetModel();
        return;
    }
    for (int row = 0; row < rows.size(); ++row) {
        if (m_rows.at(row) == rows.at(row))
            continue;
        m_rows[row] = rows.at(row);
        Q_EMIT dataChanged(index(row, 0), index(row, columnCount() - 1));
    }
}

bool LiveTableModel::_hasSameKeys(const QVector<LiveRow> &rows) const
{
    return std::equal(rows.begin(), rows.end(), m_rows.begin(), m_rows.end(),
                      [this](const LiveRow &left, const LiveRow &right) {
                          return std::equal(left.begin(), left.begin() + m_keyCells, right.begin());
                      });
}

int LiveTableModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_rows.size();
}

int LiveTableModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_headers.size();
}

QVariant LiveTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QVariant();
    return m_headers.value(section);
}

QVariant LiveTableModel::data(const QModelIndex &index, int role) const
{
    const struLiveCell cell = m_rows.value(index.row()).value(index.column());
    if (role == Qt::CheckStateRole)
        return cell.check < 0 ? QVariant() : cell.check;
    if (role == Qt::AccessibleTextRole)
        return cell.check < 0 ? cell.text : m_headers.value(index.column());
    if (role == Qt::DisplayRole || (role == Qt::ToolTipRole && cell.check < 0))
        return cell.text;
    return QVariant();
}

Qt::ItemFlags LiveTableModel::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags usual = QAbstractTableModel::flags(index);
    return m_rows.value(index.row()).value(index.column()).check < 0 ? usual
                                                                     : usual | Qt::ItemIsUserCheckable;
}

bool LiveTableModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (role != Qt::CheckStateRole || index.row() >= m_rows.size())
        return false;
    m_rows[index.row()][index.column()].check = value.toInt();
    Q_EMIT dataChanged(index, index);
    Q_EMIT si_checked(m_rows.at(index.row()).value(0).text, index.column(), value.toInt() == Qt::Checked);
    return true;
}

} // namespace PYXRuntime
