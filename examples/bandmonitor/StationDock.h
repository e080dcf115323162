// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "Announcement.h"

#include <BroadcastReceiver.h>
#include <BroadcastSender.h>

#include <QtWidgets/QDockWidget>

class QLabel;
class QPushButton;
class QTableView;

namespace BandMonitor {

class PeerModel;
class StationModel;

/** Announces this program, and shows the others that do, beside the peers that the user keeps. */
class StationDock final : public QDockWidget
{
    Q_OBJECT
public:
    explicit StationDock(QWidget *parent = nullptr);

    /** Begins to announce and to listen. */
    void start();
    /** Shows the peers that are stored now. */
    void restorePeers();

protected:
    void changeEvent(QEvent *event) override;

private:
    void _retranslate();
    QWidget *_createStations();
    QWidget *_createPeers();
    void _sl_keepButton_clicked();
    void _sl_addButton_clicked();
    void _sl_removeButton_clicked();

    const struAnnouncement m_announcement;
    StationModel *m_stations;
    PeerModel *m_peers;
    QTableView *m_stationTable;
    QTableView *m_peerTable;
    QLabel *m_stationHint;
    QLabel *m_peerHint;
    QPushButton *m_keepButton;
    QPushButton *m_addButton;
    QPushButton *m_removeButton;
    PYXRuntime::BroadcastSender m_sender;
    PYXRuntime::BroadcastReceiver m_receiver;
};

} // namespace BandMonitor
