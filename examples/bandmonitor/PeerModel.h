// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <PYXNetworkEntryList.h>

#include <QtCore/QAbstractTableModel>

namespace BandMonitor {

class StationModel;

/** The peers that the user keeps: edited in place, and saved to the user's settings with every change. */
class PeerModel final : public QAbstractTableModel
{
    Q_OBJECT
public:
    enum eColumn { ekColumn_Name, ekColumn_Address, ekColumn_Heard, ekColumn_Count };

    /** @param stations tell which peers are on air; outlive the model */
    explicit PeerModel(const StationModel &stations, QObject *parent = nullptr);

    /** What is stored in the settings, where it differs from what the model has. */
    void restore();
    /** Without entries: its keys tell where they are stored. */
    static PYXRuntime::PYXNetworkEntryList emptyList();

    /** @return its row, or that of the one with the same address and port, which is there already. */
    int add(const PYXRuntime::PYXNetworkEntry &peer);
    void remove(int row);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    /** Refuses a name that is empty, and what is no address with a port. */
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
    void _save() const;
    void _sl_stations_changed();

    const StationModel &m_stations;
    PYXRuntime::PYXNetworkEntryList m_peers;
};

} // namespace BandMonitor
