// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "SignalDetector.h"

#include <QtCore/QAbstractTableModel>

#include <vector>

namespace BandMonitor {

/** The detected signals as a table with one row for each. */
class DetectionModel final : public QAbstractTableModel
{
    Q_OBJECT
public:
    enum eColumn {
        ekColumn_Frequency,
        ekColumn_Bandwidth,
        ekColumn_Level,
        ekColumn_FirstSeen,
        ekColumn_LastSeen,
        ekColumn_Count
    };
    /** Gives the bare number of a cell: what the table is sorted by. */
    static constexpr int SortRole = Qt::UserRole;

    using QAbstractTableModel::QAbstractTableModel;

    /** Signals that are known already keep their rows. */
    void setDetections(const std::vector<struDetection> &detections);
    const std::vector<struDetection> &detections() const { return m_detections; }

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
    bool _isContinuedBy(const std::vector<struDetection> &detections) const;

    std::vector<struDetection> m_detections;
};

} // namespace BandMonitor
