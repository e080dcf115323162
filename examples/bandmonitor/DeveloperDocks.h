// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtCore/QList>
#include <QtCore/QObject>

class QDockWidget;
class QMainWindow;

namespace PYXRuntime {
class PYXSettingsHandlerWidget;
} // namespace PYXRuntime

namespace BandMonitor {

class MainActions;
class PoolDock;

/**
 * The docks that developers see, in debug mode only: runtime scopes, registrations with the broker, and the
 * pool of sample buffers.
 */
class DeveloperDocks final : public QObject
{
    Q_OBJECT
public:
    /** Hidden at first, on the right. */
    DeveloperDocks(QMainWindow *window, MainActions *actions);

    PoolDock *poolDock() const { return m_poolDock; }
    /** Shows all of them, or none, and offers them in the menu or not. */
    void setShown(bool bShown);
    void retranslate();
    bool isShown() const { return m_bShown; }

private:
    QDockWidget *_pageDock(const QString &name, PYXRuntime::PYXSettingsHandlerWidget *page);

    QMainWindow *m_window;
    QDockWidget *m_scopeDock;
    QDockWidget *m_brokerDock;
    PoolDock *m_poolDock;
    bool m_bShown = false;
};

} // namespace BandMonitor
