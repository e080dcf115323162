// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#include "HeadlessRun.h"

#include "DetectionModel.h"
#include "SignalMonitor.h"
#include "Units.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QStringList>

#include <algorithm>
#include <vector>

namespace BandMonitor {
namespace {

const QLatin1String ColumnGap("   ");

/** The texts of the table, headings first. */
std::vector<QStringList> tableOf(const QAbstractItemModel &model)
{
    std::vector<QStringList> rows(1);
    for (int column = 0; column < model.columnCount(); ++column)
        rows.front() += model.headerData(column, Qt::Horizontal).toString();
    for (int row = 0; row < model.rowCount(); ++row) {
        rows.emplace_back();
        for (int column = 0; column < model.columnCount(); ++column)
            rows.back() += model.index(row, column).data().toString();
    }
    return rows;
}

QString aligned(const std::vector<QStringList> &rows)
{
    QString text;
    for (const QStringList &row : rows) {
        for (int column = 0; column < row.size(); ++column) {
            int width = 0;
            for (const QStringList &other : rows)
                width = std::max(width, other.at(column).size());
            text += (column == 0 ? QString() : ColumnGap) + row.at(column).rightJustified(width);
        }
        text += QLatin1Char('\n');
    }
    return text;
}

} // namespace

QString detectionReport(std::unique_ptr<SampleSource> source)
{
    SignalMonitor monitor(std::move(source));
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
    return heading + QLatin1Char('\n') + aligned(tableOf(model));
}

} // namespace BandMonitor
