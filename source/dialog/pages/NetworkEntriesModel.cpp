// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "NetworkEntriesModel.h"

#include <QtWidgets/QApplication>
#include <QtWidgets/QStyle>

namespace PYXRuntime {
namespace {

constexpr int HighestPort = 65535;

/** 0 for a text that is no port. */
quint16 portOf(const QString &text)
{
    bool bIsNumber = false;
    const int port = text.toInt(&bIsNumber);
    return bIsNumber && port > 0 && port <= HighestPort ? quint16(port) : quint16(0);
}

} // namespace

NetworkEntriesModel::NetworkEntriesModel(QObject *parent)
    : QAbstractTableModel(parent)
{}

NetworkEntriesModel::~NetworkEntriesModel() = default;

NetworkEntriesModel::struRow NetworkEntriesModel::_rowOf(const PYXNetworkEntry &entry)
{
    const QString port = entry.port() != 0 ? QString::number(entry.port()) : QString();
    return {{entry.name(), entry.address().toString(), port}, entry};
}

PYXNetworkEntry NetworkEntriesModel::_entryOf(const struRow &row)
{
    const PYXNetworkEntry &origin = row.origin;
    PYXNetworkEntry entry(row.texts[ekColumn_Name], QHostAddress(row.texts[ekColumn_Address]),
                          portOf(row.texts[ekColumn_Port]), origin.uuid());
    if (origin.hasGeoPosition())
        entry.setGeoPosition(origin.latitude(), origin.longitude(), origin.altitude());
    if (origin.hasDirection())
        entry.setDirection(origin.useDirection(), origin.azimuth(), origin.beamWidth());
    return entry;
}

void NetworkEntriesModel::setList(const PYXNetworkEntryList &list)
{
    beginResetModel();
    m_rows.clear();
    for (const PYXNetworkEntry &entry : list)
        m_rows.append(_rowOf(entry));
    m_defaultRow = list.containsDefaultEntry() ? list.names().indexOf(list.defaultEntryName()) : -1;
    endResetModel();
}

void NetworkEntriesModel::fill(PYXNetworkEntryList &list) const
{
    list.clear();
    for (const struRow &row : m_rows)
        list.append(_entryOf(row));
    list.setDefaultEntryName(m_rows.value(m_defaultRow).texts[ekColumn_Name]);
}

void NetworkEntriesModel::append(const PYXNetworkEntry &entry)
{
    beginInsertRows(QModelIndex(), m_rows.size(), m_rows.size());
    m_rows.append(_rowOf(entry));
    endInsertRows();
    Q_EMIT si_edited();
}

void NetworkEntriesModel::remove(int row)
{
    if (row < 0 || row >= m_rows.size())
        return;
    beginRemoveRows(QModelIndex(), row, row);
    m_rows.remove(row);
    if (m_defaultRow == row)
        m_defaultRow = -1;
    else if (m_defaultRow > row)
        --m_defaultRow;
    endRemoveRows();
    Q_EMIT si_edited();
}

QString NetworkEntriesModel::_nameError(int row) const
{
    const QString name = m_rows.at(row).texts[ekColumn_Name];
    if (name.isEmpty())
        return tr("The name is missing.");
    for (int other = 0; other < m_rows.size(); ++other) {
        if (other != row && m_rows.at(other).texts[ekColumn_Name] == name)
            return tr("Another entry has this name.");
    }
    return QString();
}

QString NetworkEntriesModel::errorOf(int row, int column) const
{
    if (column == ekColumn_Name)
        return _nameError(row);
    const struRow &entry = m_rows.at(row);
    if (column == ekColumn_Address && QHostAddress(entry.texts[ekColumn_Address]).isNull())
        return tr("This is no IPv4 or IPv6 address.");
    if (column == ekColumn_Port && portOf(entry.texts[ekColumn_Port]) == 0)
        return tr("A port is a number from 1 to 65535.");
    return QString();
}

int NetworkEntriesModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_rows.size();
}

int NetworkEntriesModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ekColumn_Count;
}

QVariant NetworkEntriesModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QVariant();
    const QString titles[] = {tr("Name"), tr("Address"), tr("Port"), tr("Default")};
    return section >= 0 && section < ekColumn_Count ? titles[section] : QString();
}

QVariant NetworkEntriesModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= m_rows.size())
        return QVariant();
    if (index.column() == ekColumn_Default) {
        if (role == Qt::CheckStateRole)
            return index.row() == m_defaultRow ? Qt::Checked : Qt::Unchecked;
        return role == Qt::AccessibleTextRole ? QVariant(tr("Default")) : QVariant();
    }
    if (role == Qt::DisplayRole || role == Qt::EditRole)
        return m_rows.at(index.row()).texts[index.column()];
    if (role != Qt::ToolTipRole && role != Qt::DecorationRole)
        return QVariant();
    const QString error = errorOf(index.row(), index.column());
    if (error.isEmpty())
        return QVariant();
    return role == Qt::ToolTipRole ? QVariant(error)
                                   : QApplication::style()->standardIcon(QStyle::SP_MessageBoxWarning);
}

Qt::ItemFlags NetworkEntriesModel::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags usual = QAbstractTableModel::flags(index);
    return usual | (index.column() == ekColumn_Default ? Qt::ItemIsUserCheckable : Qt::ItemIsEditable);
}

bool NetworkEntriesModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (!index.isValid() || index.row() >= m_rows.size())
        return false;
    if (index.column() == ekColumn_Default && role == Qt::CheckStateRole)
        m_defaultRow = value.toInt() == Qt::Checked ? index.row() : -1;
    else if (index.column() != ekColumn_Default && role == Qt::EditRole)
        m_rows[index.row()].texts[index.column()] = value.toString().trimmed();
    else
        return false;
    // Of every row: another name may be the same, and there is one default.
    Q_EMIT dataChanged(this->index(0, 0), this->index(m_rows.size() - 1, ekColumn_Count - 1));
    Q_EMIT si_edited();
    return true;
}

} // namespace PYXRuntime
