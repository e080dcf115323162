// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "PYXNetworkEntryList.h"

#include <QtCore/QAbstractTableModel>
#include <QtCore/QVector>

namespace PYXRuntime {

/** Network entries as they are typed, which may be wrong for a while. */
class NetworkEntriesModel final : public QAbstractTableModel
{
    Q_OBJECT
    Q_DISABLE_COPY(NetworkEntriesModel)
public:
    enum eColumn { ekColumn_Name, ekColumn_Address, ekColumn_Port, ekColumn_Default, ekColumn_Count };

    explicit NetworkEntriesModel(QObject *parent = nullptr);
    ~NetworkEntriesModel() override;

    void setList(const PYXNetworkEntryList &list);
    /** Entries and the name of the default one, into a list with keys. */
    void fill(PYXNetworkEntryList &list) const;
    void append(const PYXNetworkEntry &entry);
    void remove(int row);
    /** What is wrong with a cell; empty where nothing is. */
    QString errorOf(int row, int column) const;

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;

Q_SIGNALS:
    void si_edited();

private:
    struct struRow
    {
        QString texts[ekColumn_Default];
        PYXNetworkEntry origin; ///< with what the table does not show
    };

    static struRow _rowOf(const PYXNetworkEntry &entry);
    static PYXNetworkEntry _entryOf(const struRow &row);
    QString _nameError(int row) const;

    QVector<struRow> m_rows;
    int m_defaultRow = -1;
};

} // namespace PYXRuntime
