// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#include "StationDock.h"

#include "CompactTable.h"
#include "PeerModel.h"
#include "StationModel.h"

#include <PYXTraceWrapper.h>

#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTableView>

using PYXRuntime::PYXNetworkEntry;

namespace BandMonitor {
namespace {

const char TraceFile[] = "bandmonitor\\StationDock";

} // namespace

StationDock::StationDock(QWidget *parent)
    : QDockWidget(parent)
    , m_announcement(struAnnouncement::own())
    , m_stations(new StationModel(m_announcement.id, this))
    , m_peers(new PeerModel(*m_stations, this))
    , m_stationTable(createCompactTable(m_stations, font()))
    , m_peerTable(createCompactTable(m_peers, font()))
{
    setObjectName(QStringLiteral("stationDock"));
    setWindowTitle(tr("Stations"));
    auto *const content = new QWidget;
    auto *const layout = new QHBoxLayout(content);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(_createStations());
    layout->addWidget(_createPeers());
    setWidget(content);
}

QWidget *StationDock::_createStations()
{
    m_stationTable->setObjectName(QStringLiteral("stationTable"));
    m_stationTable->setAccessibleName(tr("Stations on air"));
    auto *const keepButton = new QPushButton(tr("&Keep as Peer"));
    connect(keepButton, &QPushButton::clicked, this, &StationDock::_sl_keepButton_clicked);
    return withButtons(m_stationTable, {keepButton});
}

QWidget *StationDock::_createPeers()
{
    m_peerTable->setObjectName(QStringLiteral("peerTable"));
    m_peerTable->setAccessibleName(tr("Peers"));
    auto *const addButton = new QPushButton(tr("&Add"));
    auto *const removeButton = new QPushButton(tr("&Remove"));
    addButton->setObjectName(QStringLiteral("addPeerButton"));
    removeButton->setObjectName(QStringLiteral("removePeerButton"));
    connect(addButton, &QPushButton::clicked, this, &StationDock::_sl_addButton_clicked);
    connect(removeButton, &QPushButton::clicked, this, &StationDock::_sl_removeButton_clicked);
    return withButtons(m_peerTable, {addButton, removeButton});
}

void StationDock::start()
{
    m_receiver.start(struAnnouncement::Port, m_stations);
    if (!m_receiver.isListening())
        PYXRuntime::PYXTraceWrapper::staticTraceWarn(
            tr("Port %1 cannot be listened on: no stations will be shown.").arg(struAnnouncement::Port),
            TraceFile, __LINE__);
    m_sender.start(m_announcement.toDatagram(), struAnnouncement::Port, m_announcement.interval, {});
}

void StationDock::_sl_keepButton_clicked()
{
    const QModelIndex current = m_stationTable->currentIndex();
    if (current.isValid())
        m_peers->add(m_stations->entry(current.row()));
}

void StationDock::_sl_addButton_clicked()
{
    // An address that nobody has, for the user to overwrite.
    m_peers->add(PYXNetworkEntry(tr("New peer"), QHostAddress(QHostAddress::LocalHost),
                                 struAnnouncement::Port, QUuid::createUuid()));
    const QModelIndex added = m_peers->index(m_peers->rowCount() - 1, PeerModel::ekColumn_Name);
    m_peerTable->setCurrentIndex(added);
    m_peerTable->edit(added);
}

void StationDock::_sl_removeButton_clicked()
{
    m_peers->remove(m_peerTable->currentIndex().row());
}

} // namespace BandMonitor
