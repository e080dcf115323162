// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#include "FileModel.h"

#include <PYXBroker.h>

#include <QtCore/QFileInfo>
#include <QtCore/QLocale>

#include <algorithm>

using PYXRuntime::PYXIFileList;

namespace BandMonitor {
namespace {

QString typeText(PYXIFileList::eFileType type)
{
    switch (type) {
    case PYXIFileList::ekFT_TEXT:
        return FileModel::tr("Text");
    case PYXIFileList::ekFT_RECORDING:
        return FileModel::tr("Recording");
    case PYXIFileList::ekFT_AUDIO:
        return FileModel::tr("Audio");
    case PYXIFileList::ekFT_IMAGE:
    case PYXIFileList::ekFT_SCREENSHOT:
        return FileModel::tr("Image");
    default:
        return FileModel::tr("Data");
    }
}

} // namespace

FileModel::FileModel(QObject *parent)
    : QAbstractTableModel(parent)
{
    const auto *const list = PYXRuntime::PYXBroker::getInstance()->topObject<PYXIFileList>();
    if (list != nullptr)
        connect(list, &PYXIFileList::si_fileCountChanged, this, &FileModel::_reload);
    _reload();
}

QString FileModel::path(int row) const
{
    return m_files.value(row).filePath;
}

void FileModel::_reload()
{
    const auto *const list = PYXRuntime::PYXBroker::getInstance()->topObject<PYXIFileList>();
    beginResetModel();
    m_files = list != nullptr ? list->fileList() : QList<PYXIFileList::struFileData>();
    std::reverse(m_files.begin(), m_files.end());
    std::stable_sort(m_files.begin(), m_files.end(), [](const auto &a, const auto &b) {
        return a.componentName.localeAwareCompare(b.componentName) < 0;
    });
    endResetModel();
}

int FileModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_files.size();
}

int FileModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ekColumn_Count;
}

QVariant FileModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const PYXIFileList::struFileData &file = m_files.at(index.row());
    if (role == Qt::ToolTipRole)
        return file.filePath;
    if (role != Qt::DisplayRole)
        return {};
    switch (index.column()) {
    case ekColumn_Component:
        return tr(file.componentName.toUtf8().constData());
    case ekColumn_File:
        return QFileInfo(file.filePath).fileName();
    case ekColumn_Type:
        return typeText(file.fileType);
    default:
        return QLocale().toString(file.startDateTime.toLocalTime(), QLocale::ShortFormat);
    }
}

QVariant FileModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    const QString headings[] = {tr("Component"), tr("File"), tr("Type"), tr("Begin")};
    return section >= 0 && section < ekColumn_Count ? headings[section] : QString();
}

} // namespace BandMonitor
