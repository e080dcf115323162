// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#include "StationDock.h"

#include "CompactTable.h"
#include "PeerModel.h"
#include "StationModel.h"

#include <PYXTraceWrapper.h>

#include <QtCore/QEvent>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
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
    , m_stationHint(addHint(m_stationTable))
    , m_peerHint(addHint(m_peerTable))
    , m_keepButton(new QPushButton)
    , m_addButton(new QPushButton)
    , m_removeButton(new QPushButton)
{
    setObjectName(QStringLiteral("stationDock"));
    auto *const content = new QWidget;
    auto *const layout = new QHBoxLayout(content);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(_createStations());
    layout->addWidget(_createPeers());
    setWidget(content);
    _retranslate();
}

void StationDock::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        _retranslate();
    QDockWidget::changeEvent(event);
}

void StationDock::_retranslate()
{
    setWindowTitle(tr("Stations"));
    m_stationTable->setAccessibleName(tr("Stations on air"));
    m_peerTable->setAccessibleName(tr("Peers"));
    m_stationHint->setText(tr("No other Band Monitor has been heard yet."));
    m_peerHint->setText(tr("There are no peers yet: keep a station, or add one."));
    m_keepButton->setText(tr("&Keep as Peer"));
    m_addButton->setText(tr("&Add"));
    m_removeButton->setText(tr("&Remove"));
    retranslate(m_stationTable);
    retranslate(m_peerTable);
}

QWidget *StationDock::_createStations()
{
    m_stationTable->setObjectName(QStringLiteral("stationTable"));
    enableWithRow(m_stationTable, m_keepButton);
    connect(m_keepButton, &QPushButton::clicked, this, &StationDock::_sl_keepButton_clicked);
    return withButtons(m_stationTable, {m_keepButton});
}

QWidget *StationDock::_createPeers()
{
    m_peerTable->setObjectName(QStringLiteral("peerTable"));
    m_addButton->setObjectName(QStringLiteral("addPeerButton"));
    m_removeButton->setObjectName(QStringLiteral("removePeerButton"));
    enableWithRow(m_peerTable, m_removeButton);
    connect(m_addButton, &QPushButton::clicked, this, &StationDock::_sl_addButton_clicked);
    connect(m_removeButton, &QPushButton::clicked, this, &StationDock::_sl_removeButton_clicked);
    return withButtons(m_peerTable, {m_addButton, m_removeButton});
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

void StationDock::restorePeers()
{
    m_peers->restore();
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
    const int row = m_peers->add(PYXNetworkEntry(tr("New peer"), QHostAddress(QHostAddress::LocalHost),
                                                 struAnnouncement::Port, QUuid::createUuid()));
    const QModelIndex added = m_peers->index(row, PeerModel::ekColumn_Name);
    m_peerTable->setCurrentIndex(added);
    m_peerTable->edit(added);
}

void StationDock::_sl_removeButton_clicked()
{
    m_peers->remove(m_peerTable->currentIndex().row());
}

} // namespace BandMonitor
