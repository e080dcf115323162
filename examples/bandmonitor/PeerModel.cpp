// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#include "PeerModel.h"

#include "StationModel.h"

#include <PYXSettings.h>
#include <SHW_Network_Entries.h>

#include <QtGui/QFont>

#include <algorithm>

using PYXRuntime::PYXNetworkEntry;
using PYXRuntime::PYXNetworkEntryList;
using PYXRuntime::PYXSettings;

namespace BandMonitor {
namespace {

const QLatin1String SettingsGroup("Peers");

QFont boldFont()
{
    QFont font;
    font.setBold(true);
    return font;
}

} // namespace

PeerModel::PeerModel(const StationModel &stations, QObject *parent)
    : QAbstractTableModel(parent)
    , m_stations(stations)
    , m_peers(emptyList())
{
    restore();
    connect(&stations, &QAbstractItemModel::rowsInserted, this, &PeerModel::_sl_stations_changed);
    connect(&stations, &QAbstractItemModel::rowsRemoved, this, &PeerModel::_sl_stations_changed);
}

PYXNetworkEntryList PeerModel::emptyList()
{
    PYXNetworkEntryList list = PYXRuntime::SHW_Network_Entries::usualKeys();
    list.setGroupKey(SettingsGroup);
    return list;
}

void PeerModel::restore()
{
    PYXSettings settings(PYXSettings::eUserApplicationSettings);
    PYXNetworkEntryList stored = emptyList();
    stored.restore(settings);
    if (stored == m_peers && stored.defaultEntryName() == m_peers.defaultEntryName())
        return;
    beginResetModel();
    m_peers = stored;
    endResetModel();
}

int PeerModel::add(const PYXNetworkEntry &peer)
{
    const auto same = std::find_if(m_peers.cbegin(), m_peers.cend(),
                                   [&](const PYXNetworkEntry &own) { return own.matches(peer); });
    const int row = int(same - m_peers.cbegin());
    if (same != m_peers.cend())
        return row;
    beginInsertRows({}, row, row);
    m_peers.append(peer);
    endInsertRows();
    _save();
    return row;
}

void PeerModel::remove(int row)
{
    if (row < 0 || row >= rowCount())
        return;
    beginRemoveRows({}, row, row);
    m_peers.removeAt(row);
    endRemoveRows();
    _save();
}

int PeerModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_peers.size();
}

int PeerModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ekColumn_Count;
}

Qt::ItemFlags PeerModel::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    return index.column() == ekColumn_Heard ? flags : flags | Qt::ItemIsEditable;
}

QVariant PeerModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const PYXNetworkEntry &peer = m_peers.at(index.row());
    const bool bDefault = peer.name() == m_peers.defaultEntryName();
    if (role == Qt::FontRole && bDefault)
        return boldFont();
    if (role == Qt::ToolTipRole && bDefault)
        return tr("Default peer");
    if (role != Qt::DisplayRole && role != Qt::EditRole)
        return {};
    switch (index.column()) {
    case ekColumn_Name:
        return peer.name();
    case ekColumn_Address:
        return peer.toIPPortString();
    default:
        return m_stations.contains(peer.address()) ? tr("on air") : QString();
    }
}

bool PeerModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (!index.isValid() || role != Qt::EditRole)
        return false;
    const QString text = value.toString().trimmed();
    PYXNetworkEntry &peer = m_peers[index.row()];
    if (index.column() == ekColumn_Name) {
        if (text.isEmpty())
            return false;
        if (&peer == &m_peers.defaultEntry())
            m_peers.setDefaultEntryName(text);
        peer.setName(text);
    } else {
        const PYXNetworkEntry parsed = PYXNetworkEntry::parseIPPortString(text);
        if (!parsed.isValid())
            return false;
        peer = PYXNetworkEntry(peer.name(), parsed.address(), parsed.port(), peer.uuid());
    }
    Q_EMIT dataChanged(this->index(index.row(), 0), this->index(index.row(), ekColumn_Count - 1));
    _save();
    return true;
}

QVariant PeerModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    const QString headings[] = {tr("Peer"), tr("Address and port"), tr("State")};
    return section >= 0 && section < ekColumn_Count ? headings[section] : QString();
}

void PeerModel::_save() const
{
    PYXSettings settings(PYXSettings::eUserApplicationSettings);
    m_peers.save(settings);
}

void PeerModel::_sl_stations_changed()
{
    if (rowCount() > 0)
        Q_EMIT dataChanged(index(0, ekColumn_Heard), index(rowCount() - 1, ekColumn_Heard));
}

} // namespace BandMonitor
