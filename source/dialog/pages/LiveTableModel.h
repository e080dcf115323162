// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "LiveTable.h"

#include <QtCore/QAbstractTableModel>

namespace PYXRuntime {

/** The rows of a LiveTable. */
class LiveTableModel final : public QAbstractTableModel
{
    Q_OBJECT
    Q_DISABLE_COPY(LiveTableModel)
public:
    LiveTableModel(int keyCells, QObject *parent);
    ~LiveTableModel() override;

    void setHeaders(const QStringList &headers);
    void setRows(const QVector<LiveRow> &rows);

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;

Q_SIGNALS:
    void si_checked(const QString &a_firstCell, int a_column, bool a_checked);

private:
    bool _hasSameKeys(const QVector<LiveRow> &rows) const;

    const int m_keyCells;
    QStringList m_headers;
    QVector<LiveRow> m_rows;
};

} // namespace PYXRuntime
