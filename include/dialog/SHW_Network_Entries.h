// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "PYXBoundSettingsWidget.h"
#include "PYXNetworkEntryList.h"

class QLabel;
class QPushButton;
class QTableView;

namespace PYXRuntime {

class NetworkEntriesModel;

/** The settings page for a list of network peers, with a default one, and with import from and export to
 * files. GUI thread only. */
class PYXRUNTIME_EXPORT SHW_Network_Entries final : public PYXBoundSettingsWidget
{
    Q_OBJECT
    Q_DISABLE_COPY(SHW_Network_Entries)
public:
    /** @param keys a list whose keys say where the entries are kept; its entries do not count. */
    explicit SHW_Network_Entries(const PYXNetworkEntryList &keys = usualKeys(), QWidget *parent = nullptr);
    ~SHW_Network_Entries() override;

    /** The list's own keys with the default entry, below the group "NetworkEntries". */
    static PYXNetworkEntryList usualKeys();

    bool verifyContents(QStringList &errors) override;
    bool applyChanges() override;
    bool checkUnmodified(PYXSettings *settings) const override;
    void initFromSettings(const PYXSettings *settings) override;
    void locallyHandleModifications() override;
    void sl_retranslateUi() override;

    /** Adds the entries of a file, but not those that the list has already. @return how many; -1: none there.
     */
    int importFrom(const QString &fileName);
    /** @return false where the file cannot be written. */
    bool exportTo(const QString &fileName);

private Q_SLOTS:
    void _sl_add_clicked();
    void _sl_remove_clicked();
    void _sl_import_clicked();
    void _sl_export_clicked();

private:
    PYXNetworkEntryList _stored(const PYXSettings *settings) const;
    void _select(int row);

    PYXNetworkEntryList m_keys;
    NetworkEntriesModel *m_model;
    QTableView *m_table;
    QLabel *m_result;
    QPushButton *m_add;
    QPushButton *m_remove;
    QPushButton *m_import;
    QPushButton *m_export;
};

} // namespace PYXRuntime
