// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtCore/QElapsedTimer>
#include <QtCore/QTimer>

namespace BandMonitor {

class SignalMonitor;

/** Moves a monitor on with the clock, some times faster or slower, as far as the machine keeps up. */
class Playback final : public QObject
{
    Q_OBJECT
public:
    explicit Playback(QObject *parent);

    /** Null: nothing is played. What is played has to outlive that, or be replaced before it goes. */
    void setMonitor(SignalMonitor *monitor) { m_monitor = monitor; }
    /** Seconds of the recording per second. */
    void setSpeed(double speed) { m_speed = speed; }

    void start();
    void stop();
    bool isRunning() const { return m_timer.isActive(); }

Q_SIGNALS:
    void si_advanced();
    void si_atEnd(); ///< it has stopped by itself

private:
    void _sl_timer_timeout();

    SignalMonitor *m_monitor = nullptr;
    double m_speed = 1;
    QTimer m_timer;
    QElapsedTimer m_sinceTick;
};

} // namespace BandMonitor
