// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#include "DetectionDock.h"

#include "CompactTable.h"
#include "DetectionModel.h"

#include <QtCore/QEvent>
#include <QtCore/QSortFilterProxyModel>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLabel>
#include <QtWidgets/QTableView>

namespace BandMonitor {
namespace {

constexpr int FrequencyPadding = 24; // for the mark of the state, and the arrow in the heading

} // namespace

DetectionDock::DetectionDock(QWidget *parent)
    : QDockWidget(parent)
    , m_model(new DetectionModel(this))
    , m_sortedModel(new QSortFilterProxyModel(this))
    , m_table(new QTableView(this))
{
    setObjectName(QStringLiteral("detectionDock"));
    m_sortedModel->setSourceModel(m_model);
    m_sortedModel->setSortRole(DetectionModel::SortRole);
    _createTable();
    setWidget(m_table);
    _retranslate();
    connect(m_table->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &DetectionDock::_sl_table_selectionChanged);
}

void DetectionDock::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        _retranslate();
    QDockWidget::changeEvent(event);
}

void DetectionDock::_retranslate()
{
    setWindowTitle(tr("Signals"));
    m_table->setAccessibleName(tr("Detected signals"));
    m_hint->setText(tr("No signals have been found yet."));
    retranslate(m_table);
}

void DetectionDock::_createTable()
{
    m_table->setObjectName(QStringLiteral("detectionTable"));
    makeCompact(m_table, font());
    m_table->setModel(m_sortedModel);
    m_hint = addHint(m_table);
    m_table->setSortingEnabled(true);
    m_table->sortByColumn(DetectionModel::ekColumn_Frequency, Qt::AscendingOrder);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->setAlternatingRowColors(true);
    m_table->setIconSize({8, 8});

    QHeaderView *const header = m_table->horizontalHeader();
    header->setTextElideMode(Qt::ElideRight);
    header->setSectionResizeMode(QHeaderView::Stretch);
    header->setSectionResizeMode(DetectionModel::ekColumn_Frequency, QHeaderView::Fixed);
    header->resizeSection(DetectionModel::ekColumn_Frequency,
                          m_table->fontMetrics().horizontalAdvance(QStringLiteral("-00000.000 kHz")) +
                              FrequencyPadding);
}

const QAbstractItemModel &DetectionDock::table() const
{
    return *m_sortedModel;
}

void DetectionDock::setDetections(const std::vector<struDetection> &detections)
{
    m_model->setDetections(detections);
}

void DetectionDock::_sl_table_selectionChanged()
{
    const QModelIndexList rows = m_table->selectionModel()->selectedRows();
    const int row = rows.isEmpty() ? -1 : m_sortedModel->mapToSource(rows.first()).row();
    Q_EMIT si_selected(row < 0 ? 0 : m_model->detections()[std::size_t(row)].id);
}

} // namespace BandMonitor
