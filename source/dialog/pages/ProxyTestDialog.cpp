// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "ProxyTestDialog.h"

#include "PageTable.h"
#include "ProxyTester.h"

#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QStyle>
#include <QtWidgets/QTableWidget>
#include <QtWidgets/QVBoxLayout>

namespace PYXRuntime {
namespace {

enum eColumn { ekColumn_Site, ekColumn_Result, ekColumn_Count };

constexpr QSize FirstSize(620, 320);

} // namespace

ProxyTestDialog::ProxyTestDialog(const ProxyConfiguration &configuration, const QStringList &sites,
                                 QWidget *parent)
    : QDialog(parent)
    , m_configuration(configuration)
    , m_table(new QTableWidget(0, ekColumn_Count))
    , m_summary(new QLabel)
    , m_start(new QPushButton(tr("&Start Test")))
    , m_add(new QPushButton(tr("&Add Site")))
    , m_remove(new QPushButton(tr("&Remove Site")))
{
    setObjectName(QStringLiteral("ProxyTestDialog"));
    setWindowTitle(tr("Proxy Test"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    _makeForm();
    for (const QString &site : sites)
        _addSite(site);
    m_table->setCurrentCell(0, ekColumn_Site);
    resize(FirstSize);
    m_start->setFocus();
}

ProxyTestDialog::~ProxyTestDialog() = default;

void ProxyTestDialog::_makeForm()
{
    auto *const layout = new QVBoxLayout(this);
    auto *const description = new QLabel(_description());
    description->setWordWrap(true);
    prepareTable(*m_table);
    m_table->setHorizontalHeaderLabels({tr("Site"), tr("Result")});
    m_table->setAccessibleName(tr("Sites and results"));
    m_table->horizontalHeader()->setSectionResizeMode(ekColumn_Site, QHeaderView::ResizeToContents);
    m_table->horizontalHeader()->setStretchLastSection(true);
    m_table->setSelectionBehavior(QTableWidget::SelectRows);
    m_summary->setWordWrap(true);
    auto *const buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    buttons->addButton(m_start, QDialogButtonBox::ActionRole);
    buttons->addButton(m_add, QDialogButtonBox::ActionRole);
    buttons->addButton(m_remove, QDialogButtonBox::ActionRole);
    m_start->setDefault(true);
    layout->addWidget(description);
    layout->addWidget(m_table, 1);
    layout->addWidget(m_summary);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_start, &QPushButton::clicked, this, &ProxyTestDialog::_sl_start_clicked);
    connect(m_add, &QPushButton::clicked, this, &ProxyTestDialog::_sl_add_clicked);
    connect(m_remove, &QPushButton::clicked, this, &ProxyTestDialog::_sl_remove_clicked);
}

QString ProxyTestDialog::_description() const
{
    switch (m_configuration.proxyType()) {
    case Enums::ekProxy_UseSystemSettings:
        return tr("Tries to reach these sites through the proxy of the system.");
    case Enums::ekProxy_ManualConfiguration:
        return tr("Tries to reach these sites through the proxy %1, port %2.")
            .arg(m_configuration.proxyHost(), QString::number(m_configuration.proxyPort()));
    case Enums::ekProxy_NoProxy:
        break;
    }
    return tr("Tries to reach these sites without a proxy.");
}

QStringList ProxyTestDialog::sites() const
{
    QStringList sites;
    for (int row = 0; row < m_table->rowCount(); ++row) {
        const QString site = m_table->item(row, ekColumn_Site)->text().trimmed();
        if (!site.isEmpty())
            sites += site;
    }
    return sites;
}

void ProxyTestDialog::_addSite(const QString &site)
{
    const int row = m_table->rowCount();
    m_table->insertRow(row);
    m_table->setItem(row, ekColumn_Site, new QTableWidgetItem(site));
    auto *const result = new QTableWidgetItem;
    result->setFlags(result->flags() & ~Qt::ItemIsEditable);
    m_table->setItem(row, ekColumn_Result, result);
}

void ProxyTestDialog::_setResult(int row, const QString &text)
{
    QTableWidgetItem *const item = m_table->item(row, ekColumn_Result);
    item->setText(text);
    item->setToolTip(text);
    item->setIcon(QIcon());
}

void ProxyTestDialog::_sl_add_clicked()
{
    _addSite(QStringLiteral("https://"));
    m_table->setCurrentCell(m_table->rowCount() - 1, ekColumn_Site);
    m_table->setFocus();
    m_table->editItem(m_table->currentItem());
}

void ProxyTestDialog::_sl_remove_clicked()
{
    m_table->removeRow(m_table->currentRow());
}

void ProxyTestDialog::_sl_start_clicked()
{
    m_tester = std::make_unique<ProxyTester>(m_configuration);
    connect(m_tester.get(), &ProxyTester::si_finished, this, &ProxyTestDialog::_sl_tester_finished);
    m_pending = m_table->rowCount();
    m_reached = 0;
    _showState();
    for (int row = 0; row < m_table->rowCount(); ++row) {
        _setResult(row, tr("Waiting..."));
        m_tester->test(row, m_table->item(row, ekColumn_Site)->text().trimmed());
    }
}

void ProxyTestDialog::_sl_tester_finished(int a_row, bool a_reached, const QString &a_result)
{
    _setResult(a_row, a_result);
    const auto icon = a_reached ? QStyle::SP_DialogApplyButton : QStyle::SP_MessageBoxWarning;
    m_table->item(a_row, ekColumn_Result)->setIcon(style()->standardIcon(icon));
    m_reached += a_reached ? 1 : 0;
    --m_pending;
    _showState();
}

void ProxyTestDialog::_showState()
{
    const bool bRuns = m_pending > 0;
    for (QPushButton *const button : {m_start, m_add, m_remove})
        button->setEnabled(!bRuns);
    if (!bRuns)
        m_start->setFocus(); // which it has lost while it was disabled
    m_table->setEditTriggers(bRuns ? QTableWidget::NoEditTriggers
                                   : QTableWidget::DoubleClicked | QTableWidget::EditKeyPressed);
    m_summary->setText(bRuns ? tr("The test is running.")
                             : tr("%1 of %2 sites were reached.")
                                   .arg(QString::number(m_reached), QString::number(m_table->rowCount())));
}

} // namespace PYXRuntime
