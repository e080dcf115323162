// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "SignalDetector.h"

#include <QtWidgets/QDockWidget>

#include <vector>

class QAbstractItemModel;
class QSortFilterProxyModel;
class QLabel;
class QTableView;

namespace BandMonitor {

class DetectionModel;

/** The table of the detected signals. */
class DetectionDock final : public QDockWidget
{
    Q_OBJECT
public:
    explicit DetectionDock(QWidget *parent = nullptr);

    /** As it is sorted now. */
    const QAbstractItemModel &table() const;
    void setDetections(const std::vector<struDetection> &detections);

Q_SIGNALS:
    /** The user has chosen a signal; 0 for none. */
    void si_selected(int a_id);

protected:
    void changeEvent(QEvent *event) override;

private:
    void _retranslate();
    void _createTable();
    void _sl_table_selectionChanged();

    DetectionModel *m_model;
    QSortFilterProxyModel *m_sortedModel;
    QTableView *m_table;
    QLabel *m_hint = nullptr;
};

} // namespace BandMonitor
