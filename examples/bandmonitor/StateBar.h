// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtWidgets/QStatusBar>

class QLabel;

namespace BandMonitor {

class SignalMonitor;

/** What is played, how far, and how loud its noise is. */
class StateBar final : public QStatusBar
{
    Q_OBJECT
public:
    explicit StateBar(QWidget *parent = nullptr);

    void showState(const SignalMonitor &monitor);

private:
    QLabel *m_sourceLabel;
    QLabel *m_noiseLabel;
    QLabel *m_timeLabel;
};

} // namespace BandMonitor
