// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#include "DetectionModel.h"

#include "Units.h"

#include <QtGui/QColor>

#include <algorithm>

namespace BandMonitor {
namespace {

constexpr QRgb OnAirColour = qRgb(0x2e, 0xb3, 0x5a);
constexpr QRgb OffAirColour = qRgba(0x80, 0x80, 0x80, 0x50);

double valueOf(const struDetection &detection, int column)
{
    switch (column) {
    case DetectionModel::ekColumn_Frequency:
        return detection.frequency;
    case DetectionModel::ekColumn_Bandwidth:
        return detection.bandwidth;
    case DetectionModel::ekColumn_Level:
        return detection.level;
    case DetectionModel::ekColumn_FirstSeen:
        return detection.firstSeen;
    default:
        return detection.lastSeen;
    }
}

QString textOf(const struDetection &detection, int column)
{
    const double value = valueOf(detection, column);
    switch (column) {
    case DetectionModel::ekColumn_Frequency:
        return frequencyText(value);
    case DetectionModel::ekColumn_Bandwidth:
        return bandwidthText(value);
    case DetectionModel::ekColumn_Level:
        return levelText(value);
    default:
        return timeText(value);
    }
}

} // namespace

bool DetectionModel::_isContinuedBy(const std::vector<struDetection> &detections) const
{
    return m_detections.size() <= detections.size() &&
           std::equal(m_detections.begin(), m_detections.end(), detections.begin(),
                      [](const auto &a, const auto &b) { return a.id == b.id; });
}

void DetectionModel::setDetections(const std::vector<struDetection> &detections)
{
    if (!_isContinuedBy(detections)) {
        beginResetModel();
        m_detections = detections;
        endResetModel();
        return;
    }
    const int known = rowCount();
    std::copy_n(detections.begin(), known, m_detections.begin());
    if (known > 0)
        Q_EMIT dataChanged(index(0, 0), index(known - 1, ekColumn_Count - 1));
    if (detections.size() > m_detections.size()) {
        beginInsertRows({}, known, int(detections.size()) - 1);
        m_detections = detections;
        endInsertRows();
    }
}

int DetectionModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_detections.size());
}

int DetectionModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ekColumn_Count;
}

QVariant DetectionModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const struDetection &detection = m_detections[std::size_t(index.row())];
    switch (role) {
    case Qt::DisplayRole:
        return textOf(detection, index.column());
    case SortRole:
        return valueOf(detection, index.column());
    case Qt::TextAlignmentRole:
        return int(Qt::AlignRight | Qt::AlignVCenter);
    case Qt::DecorationRole:
        if (index.column() != ekColumn_Frequency)
            return {};
        return QColor::fromRgba(detection.bOnAir ? OnAirColour : OffAirColour);
    case Qt::ToolTipRole:
        return detection.bOnAir ? tr("On air") : tr("Off air since %1").arg(timeText(detection.lastSeen));
    default:
        return {};
    }
}

QVariant DetectionModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::TextAlignmentRole)
        return int(Qt::AlignRight | Qt::AlignVCenter);
    if (role != Qt::DisplayRole)
        return {};
    switch (section) {
    case ekColumn_Frequency:
        return tr("Frequency");
    case ekColumn_Bandwidth:
        return tr("Bandwidth");
    case ekColumn_Level:
        return tr("Level");
    case ekColumn_FirstSeen:
        return tr("First seen");
    default:
        return tr("Last seen");
    }
}

} // namespace BandMonitor
