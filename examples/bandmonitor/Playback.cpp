// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#include "Playback.h"

#include "SignalMonitor.h"

#include <algorithm>

namespace BandMonitor {
namespace {

constexpr int TickInterval = 40; // in ms
// A tick that takes longer would make the window sluggish: the recording is played slower then.
constexpr int LongestTick = 30;         // in ms
constexpr double LongestStep = 0.25;    // in seconds of wall clock
constexpr double ProcessingStep = 0.02; // in seconds of the recording

} // namespace

Playback::Playback(QObject *parent)
    : QObject(parent)
{
    m_timer.setInterval(TickInterval);
    connect(&m_timer, &QTimer::timeout, this, &Playback::_sl_timer_timeout);
}

void Playback::start()
{
    m_sinceTick.start();
    m_timer.start();
}

void Playback::stop()
{
    m_timer.stop();
}

void Playback::_sl_timer_timeout()
{
    if (m_monitor == nullptr)
        return;
    const double elapsed = std::min(double(m_sinceTick.restart()) / 1000, LongestStep);
    double due = elapsed * m_speed;
    bool bMore = true;
    while (bMore && due > 0 && m_sinceTick.elapsed() < LongestTick) {
        const double step = std::min(due, ProcessingStep);
        due -= step;
        bMore = m_monitor->advance(step);
    }
    if (!bMore) {
        stop();
        Q_EMIT si_atEnd();
    }
    Q_EMIT si_advanced();
}

} // namespace BandMonitor
