// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "Announcement.h"

#include <IBroadcastParser.h>
#include <PYXNetworkEntry.h>

#include <QtCore/QAbstractTableModel>
#include <QtCore/QTimer>

#include <functional>
#include <vector>

namespace BandMonitor {

/** The other Band Monitors that announce themselves. One that has missed three announcements goes. */
class StationModel final : public QAbstractTableModel, public PYXRuntime::IBroadcastParser
{
    Q_OBJECT
    Q_INTERFACES(PYXRuntime::IBroadcastParser)
public:
    enum eColumn { ekColumn_Name, ekColumn_Address, ekColumn_Age, ekColumn_Count };
    static constexpr int MaximumCount = 200;
    /** Time that only goes forward, in ms. */
    using Clock = std::function<qint64()>;

    /** @param ownId the announcements that are not shown */
    explicit StationModel(const QUuid &ownId, QObject *parent = nullptr);
    StationModel(const QUuid &ownId, Clock clock, QObject *parent = nullptr);

    /** As a peer; the port is that of the announcements. */
    PYXRuntime::PYXNetworkEntry entry(int row) const;
    bool contains(const QHostAddress &address) const;
    /** Shows how long ago the stations were heard, and drops those that have gone. Runs every second. */
    void update();

    void parseBroadcastDatagram(const QByteArray &datagram, const QHostAddress &sender,
                                quint16 port) override;
    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
    struct struStation
    {
        struAnnouncement announcement;
        QHostAddress address;
        qint64 heard = 0; ///< by the clock
    };

    QString _text(const struStation &station, int column) const;

    const QUuid m_ownId;
    const Clock m_clock;
    QTimer m_timer;
    std::vector<struStation> m_stations;
};

} // namespace BandMonitor
