// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#include "FileDock.h"

#include "CompactTable.h"
#include "FileModel.h"

#include <QtCore/QEvent>
#include <QtCore/QFileInfo>
#include <QtCore/QUrl>
#include <QtGui/QDesktopServices>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTableView>

namespace BandMonitor {

FileDock::FileDock(QWidget *parent)
    : QDockWidget(parent)
    , m_model(new FileModel(this))
    , m_table(createCompactTable(m_model, font()))
    , m_hint(addHint(m_table))
    , m_openButton(new QPushButton)
    , m_folderButton(new QPushButton)
{
    setObjectName(QStringLiteral("fileDock"));
    m_table->setObjectName(QStringLiteral("fileTable"));
    m_table->horizontalHeader()->setStretchLastSection(false);
    m_table->horizontalHeader()->setSectionResizeMode(FileModel::ekColumn_File, QHeaderView::Stretch);
    enableWithRow(m_table, m_openButton);
    enableWithRow(m_table, m_folderButton);
    connect(m_openButton, &QPushButton::clicked, this, [this] { _open(false); });
    connect(m_folderButton, &QPushButton::clicked, this, [this] { _open(true); });
    connect(m_table, &QTableView::activated, this, [this] { _open(false); });
    setWidget(withButtons(m_table, {m_openButton, m_folderButton}));
    _retranslate();
}

void FileDock::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        _retranslate();
    QDockWidget::changeEvent(event);
}

void FileDock::_retranslate()
{
    setWindowTitle(tr("Files"));
    m_table->setAccessibleName(tr("Written files"));
    m_hint->setText(tr("No files have been written yet."));
    m_openButton->setText(tr("Open F&ile"));
    m_folderButton->setText(tr("Open F&older"));
    retranslate(m_table);
}

void FileDock::_open(bool bFolder) const
{
    const QModelIndex current = m_table->currentIndex();
    if (!current.isValid())
        return;
    const QString path = m_model->path(current.row());
    QDesktopServices::openUrl(QUrl::fromLocalFile(bFolder ? QFileInfo(path).path() : path));
}

} // namespace BandMonitor
