// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#include "HeadlessRun.h"

#include "DetectionModel.h"
#include "SignalMonitor.h"
#include "TableText.h"
#include "Units.h"

#include <QtCore/QCoreApplication>

#include <algorithm>
#include <vector>

namespace BandMonitor {
QString detectionReport(std::unique_ptr<SampleSource> source, const struDetectorParameters &parameters)
{
    SignalMonitor monitor(std::move(source));
    monitor.setDetectorParameters(parameters);
    while (monitor.advance(1) && (monitor.source().duration() > 0 || monitor.time() < UnattendedTime))
        continue;

    std::vector<struDetection> detections = monitor.detector().detections();
    std::sort(detections.begin(), detections.end(),
              [](const auto &a, const auto &b) { return a.frequency < b.frequency; });
    DetectionModel model;
    model.setDetections(detections);
    const SampleSource &played = monitor.source();
    const QString heading =
        QCoreApplication::translate("BandMonitor::HeadlessRun", "%1 (%2, %3), signals: %4")
            .arg(played.name(), sourceText(played), timeText(monitor.time()),
                 QString::number(detections.size()));
    return heading + QLatin1Char('\n') + alignedText(model);
}

} // namespace BandMonitor
