// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "LiveTable.h"

#include "LiveTableModel.h"
#include "PageTable.h"

#include <QtCore/QSortFilterProxyModel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QVBoxLayout>

namespace PYXRuntime {
namespace {

constexpr int RefreshInterval = 500; // ms

} // namespace

LiveTable::LiveTable(int keyCells, std::function<QVector<LiveRow>()> ask, QWidget *parent)
    : QWidget(parent)
    , m_ask(std::move(ask))
    , m_model(new LiveTableModel(keyCells, this))
    , m_proxy(new QSortFilterProxyModel(this))
    , m_filter(new QLineEdit)
    , m_view(new QTableView)
{
    m_proxy->setSourceModel(m_model);
    m_proxy->setFilterCaseSensitivity(Qt::CaseInsensitive);
    m_proxy->setSortCaseSensitivity(Qt::CaseInsensitive);
    m_proxy->setFilterKeyColumn(-1);
    m_filter->setClearButtonEnabled(true);
    prepareTable(*m_view);
    m_view->setModel(m_proxy);
    m_view->setSelectionBehavior(QTableView::SelectRows);
    m_view->setSortingEnabled(true);
    m_view->sortByColumn(0, Qt::AscendingOrder);
    m_view->setWordWrap(false);
    m_view->horizontalHeader()->setStretchLastSection(true);
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_filter);
    layout->addWidget(m_view, 1);
    connect(m_filter, &QLineEdit::textChanged, m_proxy, &QSortFilterProxyModel::setFilterFixedString);
    connect(m_model, &LiveTableModel::si_checked, this, &LiveTable::si_checked);
    m_timer.setInterval(RefreshInterval);
    connect(&m_timer, &QTimer::timeout, this, &LiveTable::refresh);
}

LiveTable::~LiveTable() = default;

void LiveTable::setTexts(const QStringList &headers, const QString &accessibleName)
{
    m_model->setHeaders(headers);
    m_bSized = false; // for headings of another width
    m_view->setAccessibleName(accessibleName);
    m_filter->setPlaceholderText(tr("Filter"));
    m_filter->setAccessibleName(tr("Filter the table"));
    m_filter->setToolTip(tr("Shows the rows that have this text in any column"));
}

void LiveTable::refresh()
{
    m_model->setRows(m_ask());
    if (m_bSized || m_model->rowCount() == 0)
        return;
    m_view->resizeColumnsToContents();
    m_bSized = true;
}

void LiveTable::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    refresh();
    m_timer.start();
}

void LiveTable::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    m_timer.stop();
}

} // namespace PYXRuntime
