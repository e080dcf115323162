// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXFileFilter.h"

#include "PYXBroker.h"
#include "PYXIApplicationInfo.h"
#include "PYXRuntimeCenter.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QMap>
#include <QtWidgets/QFileDialog>

namespace PYXRuntime {
namespace {

const uint s_runtimeScope = PYXRuntimeCenter::registerRuntimeScope(
    QStringLiteral("PYXFileFilter"),
    QStringLiteral(
        QT_TRANSLATE_NOOP("PYXRuntime::RuntimeScopes", "Name filters and places of file dialogs")));

struct struFilter
{
    QString title;
    QStringList patterns;
};

QMap<QString, struFilter> &filters()
{
    static QMap<QString, struFilter> registered;
    return registered;
}

/** Numbers are told from the purposes of callers by a group of their own. */
QString idOf(uint specialDir)
{
    return QStringLiteral("FileDialogs/SpecialDir/%1").arg(specialDir);
}

QString idOf(const QString &purpose)
{
    return QLatin1String("FileDialogs/Purpose/") + purpose;
}

void remember(const QString &id, const QString &path)
{
    if (auto *const info = PYXBroker::getInstance()->topObject<PYXIApplicationInfo>())
        info->saveLastDirPath(id, path);
}

/** "wav" of "Recordings (*.wav *.flac)"; empty where any name will do. */
QString suffixOf(const QString &nameFilter)
{
    const int from = nameFilter.lastIndexOf(QLatin1String("(*.")) + 3;
    if (from < 3)
        return {};
    int to = from;
    while (to < nameFilter.size() && nameFilter.at(to) != QLatin1Char(' ') &&
           nameFilter.at(to) != QLatin1Char(')'))
        ++to;
    const QString suffix = nameFilter.mid(from, to - from);
    return suffix.contains(QLatin1Char('*')) || suffix.contains(QLatin1Char('?')) ? QString() : suffix;
}

} // namespace

PYXFileFilter::PYXFileFilter(const QString &purpose, const QStringList &filterNames)
    : m_id(idOf(purpose))
    , m_specialDir(PYXIApplicationInfo::eSystemUserDocuments)
    , m_filterNames(filterNames)
{}

PYXFileFilter::PYXFileFilter(uint specialDir, const QStringList &filterNames)
    : m_id(idOf(specialDir))
    , m_specialDir(specialDir)
    , m_filterNames(filterNames)
{}

void PYXFileFilter::registerFilter(const QString &name, const QString &title, const QStringList &patterns)
{
    filters().insert(name, {title, patterns});
}

void PYXFileFilter::unregisterFilter(const QString &name)
{
    filters().remove(name);
}

QStringList PYXFileFilter::registeredFilters()
{
    return filters().keys();
}

QStringList PYXFileFilter::nameFilters() const
{
    QStringList texts;
    for (const QString &name : m_filterNames) {
        const auto filter = filters().constFind(name);
        if (filter == filters().cend())
            PYX_WARNING(s_runtimeScope, QLatin1String("unknown file filter: ") + name);
        else
            texts += filter->title + QLatin1String(" (") + filter->patterns.join(QLatin1Char(' ')) +
                     QLatin1Char(')');
    }
    texts += QCoreApplication::translate("PYXRuntime::PYXFileFilter", "All files") + QLatin1String(" (*)");
    return texts;
}

QString PYXFileFilter::lastFileOrDir() const
{
    auto *const info = PYXBroker::getInstance()->topObject<PYXIApplicationInfo>();
    return info != nullptr ? info->getLastDirPath(m_id) : QString();
}

void PYXFileFilter::setLastFileOrDir(const QString &path) const
{
    remember(m_id, path);
}

QString PYXFileFilter::startPlace() const
{
    const QString last = lastFileOrDir();
    if (!last.isEmpty()) {
        for (const QString &path : {last, QFileInfo(last).path()}) {
            if (QFileInfo::exists(path))
                return path;
        }
    }
    auto *const info = PYXBroker::getInstance()->topObject<PYXIApplicationInfo>();
    const QString first = info != nullptr ? info->getSpecialDirPath(m_specialDir, false) : QString();
    return QFileInfo(first).isDir() ? first : QDir::homePath();
}

QString PYXFileFilter::getOpenFileName(QWidget *parent, const QString &caption) const
{
    QFileDialog dialog(parent, caption);
    dialog.setFileMode(QFileDialog::ExistingFile);
    return _run(dialog).value(0);
}

QStringList PYXFileFilter::getOpenFileNames(QWidget *parent, const QString &caption) const
{
    QFileDialog dialog(parent, caption);
    dialog.setFileMode(QFileDialog::ExistingFiles);
    return _run(dialog);
}

QString PYXFileFilter::getSaveFileName(QWidget *parent, const QString &caption, const QString &proposal) const
{
    QFileDialog dialog(parent, caption);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setDefaultSuffix(suffixOf(nameFilters().constFirst()));
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog,
                     [&dialog](const QString &nameFilter) { dialog.setDefaultSuffix(suffixOf(nameFilter)); });
    return _run(dialog, proposal).value(0);
}

QString PYXFileFilter::getExistingDirectory(QWidget *parent, const QString &caption) const
{
    QFileDialog dialog(parent, caption);
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setOption(QFileDialog::ShowDirsOnly);
    return _run(dialog).value(0);
}

QStringList PYXFileFilter::_run(QFileDialog &dialog, const QString &proposal) const
{
    const bool bDirectories = dialog.fileMode() == QFileDialog::Directory;
    if (!bDirectories)
        dialog.setNameFilters(nameFilters());
    const QFileInfo place(startPlace());
    dialog.setDirectory(place.isDir() ? place.filePath() : place.path());
    if (!proposal.isEmpty())
        dialog.selectFile(proposal);
    else if (dialog.acceptMode() == QFileDialog::AcceptSave && place.isFile())
        dialog.selectFile(place.fileName());
    if (dialog.exec() != QDialog::Accepted)
        return {};
    QStringList chosen = dialog.selectedFiles();
    setLastFileOrDir(chosen.value(0));
    return chosen;
}

void PYXFileFilter::resetLastFileOrDir(uint specialDir, const QString &directory)
{
    remember(idOf(specialDir), directory);
}

} // namespace PYXRuntime
