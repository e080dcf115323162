// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#include "DeveloperDocks.h"

#include "MainActions.h"
#include "PoolDock.h"
#include "Scale.h"

#include <PYXStandardIcons.h>
#include <SHW_Debug_Broker.h>
#include <SHW_Debug_RuntimeScopes.h>

#include <QtWidgets/QAction>
#include <QtWidgets/QMainWindow>

using PYXRuntime::PYXStandardIcons;

namespace BandMonitor {

DeveloperDocks::DeveloperDocks(QMainWindow *window, MainActions *actions)
    : QObject(window)
    , m_window(window)
    , m_scopeDock(_pageDock(QStringLiteral("scopeDock"), tr("Runtime Scopes"),
                            new PYXRuntime::SHW_Debug_RuntimeScopes))
    , m_brokerDock(_pageDock(QStringLiteral("brokerDock"), tr("Broker"), new PYXRuntime::SHW_Debug_Broker))
    , m_poolDock(new PoolDock(window))
{
    window->addDockWidget(Qt::RightDockWidgetArea, m_scopeDock);
    window->tabifyDockWidget(m_scopeDock, m_brokerDock);
    window->addDockWidget(Qt::RightDockWidgetArea, m_poolDock);
    actions->addDock(m_scopeDock, PYXStandardIcons::ekIcon_GenericTool);
    actions->addDock(m_brokerDock, PYXStandardIcons::ekIcon_Link);
    actions->addDock(m_poolDock, PYXStandardIcons::ekIcon_Storage_Local);
    setShown(false);
}

QDockWidget *DeveloperDocks::_pageDock(const QString &name, const QString &title,
                                       PYXRuntime::PYXSettingsHandlerWidget *page)
{
    auto *const dock = new QDockWidget(title, m_window);
    dock->setObjectName(name);
    page->setFont(smallerFont(page->font()));
    dock->setWidget(page);
    // What the page shows may have been changed elsewhere meanwhile.
    connect(dock, &QDockWidget::visibilityChanged, page, [page](bool bVisible) {
        if (bVisible)
            page->initContents();
    });
    return dock;
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
