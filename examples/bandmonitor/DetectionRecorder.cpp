// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#include "DetectionRecorder.h"

#include "SignalMonitor.h"

#include <QtCore/QDateTime>

#include <iterator>

namespace BandMonitor {
namespace {

const QLatin1String TableName("detections.csv");
const QLatin1String ComponentName(QT_TRANSLATE_NOOP("BandMonitor::FileModel", "Detections"));
const char Headings[] = "time_utc,event,signal,frequency_hz,bandwidth_hz,level_dbfs,recording_s\n";

constexpr double SecondsBefore = 1;
constexpr double SecondsAfter = 2;

} // namespace

DetectionRecorder::DetectionRecorder(const QString &directory, QObject *parent)
    : QObject(parent)
    , m_snippets(directory)
{
    m_table.setBaseDirectory(directory);
    m_table.setBaseFileName(TableName);
    m_table.setMaximumNumberOfLinesPerFile(LinesPerFile);
    m_table.setFlushAfterWriting(true); // a line now and then, that others want to read
    m_table.setRegisterWrittenFiles(true);
    m_table.setRegisterFileComponentName(ComponentName);
    for (PYXRuntime::PYXCountingFileSet *const files :
         {static_cast<PYXRuntime::PYXCountingFileSet *>(&m_table), &m_snippets.files()})
        connect(files, &PYXRuntime::PYXCountingFileSet::si_writeError, this, &DetectionRecorder::_fail);
}

DetectionRecorder::~DetectionRecorder() = default;

void DetectionRecorder::setMonitor(const SignalMonitor *monitor)
{
    if (m_monitor != nullptr)
        m_monitor->disconnect(this);
    m_monitor = monitor;
    m_latest.clear();
    m_latestCount = 0;
    m_known.clear();
    m_onAir.clear();
    if (monitor == nullptr)
        return;
    connect(monitor, &SignalMonitor::si_samples, this, &DetectionRecorder::_sl_monitor_samples);
    connect(monitor, &SignalMonitor::si_spectrum, this, &DetectionRecorder::_sl_monitor_spectrum);
    connect(monitor, &QObject::destroyed, this, [this] { m_monitor = nullptr; });
}

void DetectionRecorder::_sl_monitor_samples(const struSampleBlock &a_block)
{
    m_snippets.write(a_block.samples(), a_block.count);
    m_latest.push_back(a_block);
    m_latestCount += a_block.count;
    const auto wanted = std::size_t(SecondsBefore * m_monitor->source().sampleRate());
    while (m_latestCount - m_latest.front().count >= wanted) {
        m_latestCount -= m_latest.front().count;
        m_latest.pop_front();
    }
}

void DetectionRecorder::_sl_monitor_spectrum()
{
    const std::vector<struDetection> detections = m_monitor->detector().detections();
    if (m_known.size() > detections.size())
        _forgetAllBut(detections);
    for (const struDetection &detection : detections) {
        const bool bWasOnAir = m_onAir.count(detection.id) != 0;
        if (detection.bOnAir == bWasOnAir)
            continue;
        if (detection.bOnAir)
            m_onAir.insert(detection.id);
        else
            m_onAir.erase(detection.id);
        _note(detection);
        if (m_known.insert(detection.id).second && !m_snippets.isBusy())
            _beginSnippet(detection);
    }
}

/** Signals that the detector has dropped do not come back under their numbers. */
void DetectionRecorder::_forgetAllBut(const std::vector<struDetection> &detections)
{
    std::set<int> ids;
    for (const struDetection &detection : detections)
        ids.insert(detection.id);
    for (std::set<int> *const remembered : {&m_known, &m_onAir})
        for (auto id = remembered->begin(); id != remembered->end();)
            id = ids.count(*id) != 0 ? std::next(id) : remembered->erase(id);
}

void DetectionRecorder::_note(const struDetection &detection)
{
    if (!m_table.isOpen() && !m_table.open(QIODevice::WriteOnly | QIODevice::Text))
        return _fail(m_table.errorString());
    // Not yet open or just opened: both have no line.
    if (m_table.numberOfLinesOfCurrentFile() == 0)
        m_table.write(Headings);
    const QString line =
        QStringLiteral("%1,%2,%3,%4,%5,%6,%7\n")
            .arg(QDateTime::currentDateTimeUtc().toString(Qt::ISODateWithMs),
                 detection.bOnAir ? QStringLiteral("on") : QStringLiteral("off"),
                 QString::number(detection.id), QString::number(detection.frequency, 'f', 1),
                 QString::number(detection.bandwidth, 'f', 1), QString::number(detection.level, 'f', 1),
                 QString::number(m_monitor->time(), 'f', 3));
    if (m_table.write(line.toUtf8()) == line.size())
        m_bFailed = false;
}

void DetectionRecorder::_beginSnippet(const struDetection &detection)
{
    const SampleSource &source = m_monitor->source();
    const auto count = m_latestCount + std::size_t(SecondsAfter * source.sampleRate());
    m_snippets.begin(detection.frequency, source.sampleRate(), source.isComplex(), count);
    for (const struSampleBlock &block : m_latest)
        m_snippets.write(block.samples(), block.count);
}

void DetectionRecorder::_fail(const QString &reason)
{
    if (m_bFailed)
        return;
    m_bFailed = true;
    Q_EMIT si_failed(reason);
}

} // namespace BandMonitor
