// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#include "StateBar.h"

#include "SignalMonitor.h"
#include "Units.h"

#include <QtWidgets/QLabel>

namespace BandMonitor {

StateBar::StateBar(QWidget *parent)
    : QStatusBar(parent)
    , m_sourceLabel(new QLabel)
    , m_noiseLabel(new QLabel)
    , m_timeLabel(new QLabel)
{
    m_sourceLabel->setContentsMargins(6, 0, 6, 0);
    m_timeLabel->setContentsMargins(6, 0, 6, 0);
    addWidget(m_sourceLabel, 1);
    addPermanentWidget(m_noiseLabel);
    addPermanentWidget(m_timeLabel);
}

void StateBar::showState(const SignalMonitor &monitor)
{
    const SampleSource &source = monitor.source();
    m_sourceLabel->setText(source.name() + QStringLiteral("   ") + sourceText(source));
    const QString time = timeText(monitor.time());
    m_timeLabel->setText(source.duration() > 0 ? tr("%1 of %2").arg(time, timeText(source.duration()))
                                               : time);
    m_noiseLabel->setText(monitor.time() > 0 ? tr("Noise %1").arg(levelText(monitor.detector().noiseFloor()))
                                             : QString());
}

} // namespace BandMonitor
