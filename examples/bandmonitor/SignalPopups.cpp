// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#include "SignalPopups.h"

#include "Units.h"

#include <PYXPopupNotification.h>

#include <QtCore/QStringList>
#include <QtWidgets/QApplication>

#include <algorithm>

namespace BandMonitor {
namespace {

constexpr int ShowingTime = 2000;  // in ms
constexpr int MostFrequencies = 4; // that are named

} // namespace

SignalPopups::SignalPopups(QWidget *window)
    : QObject(window)
    , m_window(window)
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &SignalPopups::_announce);
}

void SignalPopups::setIntervals(int collecting, int shortest)
{
    m_collecting = collecting;
    m_shortest = shortest;
}

void SignalPopups::setEnabled(bool bEnabled)
{
    m_bEnabled = bEnabled;
    if (bEnabled)
        return;
    m_news.clear();
    m_timer.stop();
}

void SignalPopups::forget()
{
    m_known.clear();
    m_news.clear();
    m_timer.stop();
}

void SignalPopups::setDetections(const std::vector<struDetection> &detections)
{
    std::set<int> known; // without those that have gone: they do not come back under that number
    std::map<int, double> news;
    for (const struDetection &detection : detections) {
        known.insert(detection.id);
        const bool bNew = m_known.count(detection.id) == 0;
        if (m_bEnabled && (bNew || m_news.count(detection.id) > 0))
            news[detection.id] = detection.frequency;
    }
    m_known = std::move(known);
    m_news = std::move(news); // without those that have turned out to be part of another
    if (m_news.empty() || m_timer.isActive())
        return;
    // Signals that begin together are not found in the same spectrum, and fragments of one soon become one.
    const qint64 remaining = m_sinceLast.isValid() ? m_shortest - m_sinceLast.elapsed() : 0;
    m_timer.start(int(std::max<qint64>(m_collecting, remaining)));
}

void SignalPopups::_announce()
{
    if (m_news.empty())
        return;
    if (QApplication::activeModalWidget() != nullptr) {
        m_timer.start(m_collecting); // it would lie over what the user has to read
        return;
    }
    QStringList frequencies;
    for (const auto &[id, frequency] : m_news)
        frequencies += frequencyText(frequency).replace(QLatin1Char(' '), QChar(QChar::Nbsp));
    const int unnamed = frequencies.size() - MostFrequencies;
    frequencies = frequencies.mid(0, MostFrequencies);
    const QString named = frequencies.join(tr(", "));
    const QString text = unnamed > 0
                             ? tr("New signals at %1 and %2 more").arg(named, QString::number(unnamed))
                         : frequencies.size() > 1 ? tr("New signals at %1").arg(named)
                                                  : tr("New signal at %1").arg(named);
    m_news.clear();
    m_sinceLast.start();
    PYXRuntime::PYXPopupNotification::queueNotification(text, ShowingTime, m_window);
    Q_EMIT si_announced(text);
}

} // namespace BandMonitor
