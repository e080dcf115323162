// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "SampleBlock.h"
#include "SignalDetector.h"
#include "SnippetWriter.h"

#include <PYXLineCountingFileSet.h>

#include <QtCore/QObject>

#include <deque>
#include <set>

namespace BandMonitor {

class SignalMonitor;

/**
 * Writes down when signals come and go: a table in CSV files, and for each new signal the second before it
 * was found and the two after it as a WAV file, one at a time.
 */
class DetectionRecorder final : public QObject
{
    Q_OBJECT
public:
    static constexpr int LinesPerFile = 1000;

    /** @param directory must exist */
    explicit DetectionRecorder(const QString &directory, QObject *parent = nullptr);
    ~DetectionRecorder() override;

    /** Follows another monitor, or none; what is known of signals is that one's. */
    void setMonitor(const SignalMonitor *monitor);

Q_SIGNALS:
    /** A file cannot be written. Comes once until writing has succeeded again. */
    void si_failed(const QString &a_reason);

private:
    void _sl_monitor_samples(const BandMonitor::struSampleBlock &a_block);
    void _sl_monitor_spectrum();
    void _forgetAllBut(const std::vector<struDetection> &detections);
    void _note(const struDetection &detection);
    void _beginSnippet(const struDetection &detection);
    void _fail(const QString &reason);

    const SignalMonitor *m_monitor = nullptr;
    PYXRuntime::PYXLineCountingFileSet m_table;
    SnippetWriter m_snippets;
    std::deque<struSampleBlock> m_latest; ///< the last second
    std::size_t m_latestCount = 0;        ///< of samples
    std::set<int> m_known;                ///< signals that have been on air, of those that the detector has
    std::set<int> m_onAir;
    bool m_bFailed = false;
};

} // namespace BandMonitor
