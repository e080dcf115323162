// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <PYXIFileList.h>

#include <QtCore/QAbstractTableModel>

namespace BandMonitor {

/** The files that the components of this program have registered, the newest first. */
class FileModel final : public QAbstractTableModel
{
    Q_OBJECT
public:
    enum eColumn { ekColumn_Component, ekColumn_File, ekColumn_Type, ekColumn_Begin, ekColumn_Count };

    explicit FileModel(QObject *parent = nullptr);

    QString path(int row) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
    void _reload();

    QList<PYXRuntime::PYXIFileList::struFileData> m_files;
};

} // namespace BandMonitor
