// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtWidgets/QDockWidget>

class QLabel;
class QPushButton;
class QTableView;

namespace BandMonitor {

class FileModel;

/** The written files by component; opens them, and the folders they are in. */
class FileDock final : public QDockWidget
{
    Q_OBJECT
public:
    explicit FileDock(QWidget *parent = nullptr);

protected:
    void changeEvent(QEvent *event) override;

private:
    void _retranslate();
    void _open(bool bFolder) const;

    FileModel *m_model;
    QTableView *m_table;
    QLabel *m_hint;
    QPushButton *m_openButton;
    QPushButton *m_folderButton;
};

} // namespace BandMonitor
