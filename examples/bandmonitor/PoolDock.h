// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtCore/QPointer>
#include <QtCore/QTimer>
#include <QtWidgets/QDockWidget>

class QLabel;

namespace PYXRuntime {
class PYXMemoryPool;
} // namespace PYXRuntime

namespace BandMonitor {

/** How the pool of sample buffers is doing; for developers. */
class PoolDock final : public QDockWidget
{
    Q_OBJECT
public:
    explicit PoolDock(QWidget *parent = nullptr);

    void setPool(const PYXRuntime::PYXMemoryPool *pool);

protected:
    void changeEvent(QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void _retranslate();
    void _showFigures();

    QPointer<const PYXRuntime::PYXMemoryPool> m_pool;
    QLabel *m_label;
    QTimer m_timer;
};

} // namespace BandMonitor
