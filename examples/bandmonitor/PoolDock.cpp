// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#include "PoolDock.h"

#include "Scale.h"

#include <PYXMemoryPool.h>

#include <QtCore/QEvent>
#include <QtCore/QLocale>
#include <QtWidgets/QLabel>

namespace BandMonitor {
namespace {

constexpr int UpdateInterval = 500; // in ms
constexpr int Margin = 6;

} // namespace

PoolDock::PoolDock(QWidget *parent)
    : QDockWidget(parent)
    , m_label(new QLabel)
{
    setObjectName(QStringLiteral("poolDock"));
    m_label->setObjectName(QStringLiteral("poolLabel"));
    m_label->setFont(smallerFont(font()));
    m_label->setAlignment(Qt::AlignTop);
    m_label->setMargin(Margin);
    m_label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    setWidget(m_label);
    _retranslate();
    m_timer.setInterval(UpdateInterval);
    connect(&m_timer, &QTimer::timeout, this, &PoolDock::_showFigures);
}

void PoolDock::setPool(const PYXRuntime::PYXMemoryPool *pool)
{
    m_pool = pool;
    _showFigures();
}

void PoolDock::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        _retranslate();
    QDockWidget::changeEvent(event);
}

void PoolDock::_retranslate()
{
    setWindowTitle(tr("Sample Buffers"));
    _showFigures();
}

void PoolDock::showEvent(QShowEvent *event)
{
    QDockWidget::showEvent(event);
    _showFigures();
    m_timer.start();
}

void PoolDock::hideEvent(QHideEvent *event)
{
    QDockWidget::hideEvent(event);
    m_timer.stop();
}

void PoolDock::_showFigures()
{
    if (m_pool.isNull())
        return;
    const QLocale locale;
    const PYXRuntime::PYXMemoryPool::struStatistics figures = m_pool->statistics();
    const QStringList lines = {
        tr("In use: %1, free: %2").arg(figures.acquiredBlocks).arg(figures.freeBlocks),
        tr("Memory: %1, at most %2")
            .arg(locale.formattedDataSize(qint64(figures.bytes)),
                 locale.formattedDataSize(qint64(figures.peakBytes))),
        tr("Reused: %1, made: %2").arg(locale.toString(figures.hits), locale.toString(figures.misses))};
    m_label->setText(lines.join(QLatin1Char('\n')));
}

} // namespace BandMonitor
