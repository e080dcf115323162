// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "SignalDetector.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QObject>
#include <QtCore/QTimer>

#include <map>
#include <set>
#include <vector>

class QWidget;

namespace BandMonitor {

/** Pop-ups over the window that tell which signals are new, several in one where they come fast. */
class SignalPopups final : public QObject
{
    Q_OBJECT
public:
    explicit SignalPopups(QWidget *window);

    /**
     * @param collecting how long signals are collected for a pop-up, in ms
     * @param shortest from one pop-up to the next at least, in ms
     */
    void setIntervals(int collecting, int shortest);

    /** Signals that come while it is disabled, as at first, are no news later. */
    void setEnabled(bool bEnabled);
    /** From now on other signals are detected: all of them are new. */
    void forget();
    void setDetections(const std::vector<struDetection> &detections);

Q_SIGNALS:
    void si_announced(const QString &a_text);

private:
    void _announce();

    QWidget *m_window;
    int m_collecting = 1000;
    int m_shortest = 6000;
    bool m_bEnabled = false;
    std::set<int> m_known;
    std::map<int, double> m_news; ///< frequencies by signal
    QTimer m_timer;
    QElapsedTimer m_sinceLast;
};

} // namespace BandMonitor
