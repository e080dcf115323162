// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#include "DeveloperDocks.h"

#include "CompactTable.h"
#include "MainActions.h"
#include "PoolDock.h"
#include "Scale.h"

#include <PYXStandardIcons.h>
#include <SHW_Debug_Broker.h>
#include <SHW_Debug_RuntimeScopes.h>

#include <QtWidgets/QAction>
#include <QtWidgets/QDockWidget>
#include <QtWidgets/QMainWindow>
#include <QtWidgets/QTableView>
#include <QtWidgets/QVBoxLayout>

using PYXRuntime::PYXStandardIcons;

namespace BandMonitor {
namespace {

constexpr int UsualWidth = 64; // in characters

/** As wide as is good for a page, which itself would do with less. */
class PageHolder final : public QWidget
{
public:
    explicit PageHolder(QWidget *page)
    {
        auto *const layout = new QVBoxLayout(this);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addWidget(page);
    }

    QSize sizeHint() const override
    {
        return {UsualWidth * fontMetrics().averageCharWidth(), QWidget::sizeHint().height()};
    }
};

void adapt(PYXRuntime::PYXSettingsHandlerWidget *page)
{
    const QFont font = page->font();
    page->setFont(smallerFont(font));
    const auto tables = page->findChildren<QTableView *>();
    for (QTableView *const table : tables)
        makeCompact(table, font);
}

} // namespace

DeveloperDocks::DeveloperDocks(QMainWindow *window, MainActions *actions)
    : QObject(window)
    , m_window(window)
    , m_scopeDock(_pageDock(QStringLiteral("scopeDock"), new PYXRuntime::SHW_Debug_RuntimeScopes))
    , m_brokerDock(_pageDock(QStringLiteral("brokerDock"), new PYXRuntime::SHW_Debug_Broker))
    , m_poolDock(new PoolDock(window))
{
    retranslate();
    setShown(false); // before they are part of the window, which would keep room for them
    window->addDockWidget(Qt::RightDockWidgetArea, m_scopeDock);
    window->tabifyDockWidget(m_scopeDock, m_brokerDock);
    window->addDockWidget(Qt::RightDockWidgetArea, m_poolDock);
    actions->addDock(m_scopeDock, PYXStandardIcons::ekIcon_GenericTool);
    actions->addDock(m_brokerDock, PYXStandardIcons::ekIcon_Link);
    actions->addDock(m_poolDock, PYXStandardIcons::ekIcon_Storage_Local);
}

QDockWidget *DeveloperDocks::_pageDock(const QString &name, PYXRuntime::PYXSettingsHandlerWidget *page)
{
    auto *const dock = new QDockWidget(m_window);
    dock->setObjectName(name);
    adapt(page);
    dock->setWidget(new PageHolder(page));
    // What the page shows may have been changed elsewhere meanwhile.
    connect(dock, &QDockWidget::visibilityChanged, page, [page](bool bVisible) {
        if (bVisible)
            page->initContents();
    });
    return dock;
}

void DeveloperDocks::retranslate()
{
    m_scopeDock->setWindowTitle(tr("Runtime Scopes"));
    m_brokerDock->setWindowTitle(tr("Broker"));
}

void DeveloperDocks::setShown(bool bShown)
{
    m_bShown = bShown;
    for (QDockWidget *const dock : {m_scopeDock, m_brokerDock, static_cast<QDockWidget *>(m_poolDock)}) {
        dock->setVisible(bShown);
        dock->toggleViewAction()->setVisible(bShown);
    }
    if (bShown)
        m_scopeDock->raise();
}

} // namespace BandMonitor
