// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXRecentFilesMenu.h"

#include "PYXSettings.h"

#include <QtCore/QDir>
#include <QtCore/QEvent>
#include <QtCore/QFileInfo>
#include <QtCore/QHash>

#include <algorithm>

namespace PYXRuntime {
namespace {

constexpr int Ten = 10;

QString wholePath(const QString &path)
{
    return QDir::cleanPath(QFileInfo(path).absoluteFilePath());
}

void removeFrom(QStringList &files, const QString &path)
{
    const QFileInfo wanted(path); // compares as the file system does
    files.erase(std::remove_if(files.begin(), files.end(),
                               [&wanted](const QString &file) { return QFileInfo(file) == wanted; }),
                files.end());
}

// 1 to 9 can be pressed, and 0 for the tenth.
QString mnemonic(int number)
{
    if (number < Ten)
        return QLatin1Char('&') + QString::number(number);
    return number == Ten ? QStringLiteral("1&0") : QString::number(number);
}

QString escaped(QString text)
{
    return text.replace(QLatin1Char('&'), QLatin1String("&&"));
}

} // namespace

PYXRecentFilesMenu::PYXRecentFilesMenu(const QString &key, QWidget *parent)
    : QMenu(parent)
    , m_key(key)
{
    setTitle(tr("Open &Recent"));
    setToolTipsVisible(true);
    connect(this, &QMenu::aboutToShow, this, &PYXRecentFilesMenu::_fill);
    _fill();
}

PYXRecentFilesMenu::~PYXRecentFilesMenu() = default;

QStringList PYXRecentFilesMenu::files() const
{
    return PYXSettings(PYXSettings::eUserApplicationSettings).stringListValue(m_key).mid(0, m_maximumCount);
}

void PYXRecentFilesMenu::addFile(const QString &path)
{
    if (path.isEmpty())
        return;
    QStringList list = files();
    const QString whole = wholePath(path);
    removeFrom(list, whole);
    list.prepend(whole);
    _store(list);
}

void PYXRecentFilesMenu::removeFile(const QString &path)
{
    QStringList list = files();
    removeFrom(list, wholePath(path));
    _store(list);
}

void PYXRecentFilesMenu::clearFiles()
{
    _store(QStringList());
}

void PYXRecentFilesMenu::setMaximumCount(int count)
{
    m_maximumCount = qMax(1, count);
    _fill();
}

void PYXRecentFilesMenu::_store(const QStringList &files)
{
    {
        PYXSettings settings(PYXSettings::eUserApplicationSettings);
        settings.setValue(m_key, QVariant(files.mid(0, m_maximumCount)));
    }
    _fill();
}

void PYXRecentFilesMenu::_fill()
{
    clear();
    QStringList list = files();
    if (m_missing == ekMissingFiles_Remove) {
        const int before = list.size();
        list.erase(std::remove_if(list.begin(), list.end(),
                                  [](const QString &file) { return !QFileInfo::exists(file); }),
                   list.end());
        if (list.size() != before)
            PYXSettings(PYXSettings::eUserApplicationSettings).setValue(m_key, QVariant(list));
    }
    QHash<QString, int> names;
    for (const QString &file : qAsConst(list))
        ++names[QFileInfo(file).fileName()];
    for (int i = 0; i < list.size(); ++i)
        _addAction(i + 1, list.at(i), names.value(QFileInfo(list.at(i)).fileName()) == 1);
    menuAction()->setEnabled(!list.isEmpty());
    if (list.isEmpty())
        return;
    addSeparator();
    // Queued: the action is deleted with the list.
    connect(addAction(tr("&Clear List")), &QAction::triggered, this, &PYXRecentFilesMenu::clearFiles,
            Qt::QueuedConnection);
}

void PYXRecentFilesMenu::_addAction(int number, const QString &path, bool bNameIsUnique)
{
    const QString native = QDir::toNativeSeparators(path);
    const QString shown = bNameIsUnique ? QFileInfo(path).fileName() : native;
    QAction *const action = addAction(mnemonic(number) + QLatin1Char(' ') + escaped(shown));
    action->setToolTip(native);
    action->setStatusTip(native);
    action->setEnabled(QFileInfo::exists(path));
    // Queued: who opens the file calls addFile(), which deletes the action.
    connect(
        action, &QAction::triggered, this, [this, path] { Q_EMIT si_fileChosen(path); },
        Qt::QueuedConnection);
}

void PYXRecentFilesMenu::changeEvent(QEvent *event)
{
    QMenu::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        setTitle(tr("Open &Recent"));
        _fill();
    }
}

} // namespace PYXRuntime
