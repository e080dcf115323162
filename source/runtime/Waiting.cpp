// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXRuntime.h"

#include <QtCore/QAbstractEventDispatcher>
#include <QtCore/QCoreApplication>
#include <QtCore/QDeadlineTimer>
#include <QtCore/QThread>
#include <QtCore/QTimer>

#include <algorithm>
#include <chrono>
#include <limits>
#include <thread>

namespace PYXRuntime {
namespace {

/** Runs an event loop for the time, also where that is longer than one timer can last. */
void processEventsFor(qint64 milliseconds, QEventLoop::ProcessEventsFlags flags)
{
    if (milliseconds <= 0)
        return;
    if (QCoreApplication::instance() == nullptr && QAbstractEventDispatcher::instance() == nullptr) {
        // No events and no timers here: an event loop would never end.
        std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
        return;
    }
    const QDeadlineTimer deadline(milliseconds, Qt::PreciseTimer);
    QEventLoop loop;
    QTimer timer;
    timer.setSingleShot(true);
    timer.setTimerType(Qt::PreciseTimer);
    const auto startTimer = [&] {
        constexpr qint64 longest = std::numeric_limits<int>::max();
        timer.start(int(std::clamp<qint64>(deadline.remainingTime(), 0, longest)));
    };
    QObject::connect(&timer, &QTimer::timeout, &loop, [&] {
        if (deadline.hasExpired())
            loop.quit();
        else
            startTimer();
    });
    startTimer();
    loop.exec(flags);
}

} // namespace

void sleep(unsigned long seconds)
{
    QThread::sleep(seconds);
}

void msleep(unsigned long milliseconds)
{
    QThread::msleep(milliseconds);
}

void usleep(unsigned long microseconds)
{
    QThread::usleep(microseconds);
}

void active_sleep(int seconds, QEventLoop::ProcessEventsFlags flags)
{
    processEventsFor(qint64(seconds) * 1000, flags);
}

void active_msleep(int milliseconds, QEventLoop::ProcessEventsFlags flags)
{
    processEventsFor(milliseconds, flags);
}

} // namespace PYXRuntime
