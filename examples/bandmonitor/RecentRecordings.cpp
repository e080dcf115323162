// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#include "RecentRecordings.h"

#include <PYXSettings.h>

#include <QtCore/QDir>
#include <QtCore/QEvent>
#include <QtCore/QFileInfo>

using PYXRuntime::PYXSettings;

namespace BandMonitor {
namespace {

const QLatin1String SettingsKey("RecentRecordings");

} // namespace

RecentRecordings::RecentRecordings(QWidget *parent)
    : QMenu(parent)
{
    setObjectName(QStringLiteral("recentMenu"));
    setToolTipsVisible(true);
    connect(this, &QMenu::aboutToShow, this, &RecentRecordings::_sl_aboutToShow);
    setTitle(tr("Open &Recent"));
    _sl_aboutToShow();
}

void RecentRecordings::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        setTitle(tr("Open &Recent"));
        _sl_aboutToShow();
    }
    QMenu::changeEvent(event);
}

QStringList RecentRecordings::paths()
{
    return PYXSettings(PYXSettings::eUserApplicationSettings).stringListValue(SettingsKey);
}

void RecentRecordings::add(const QString &path)
{
    PYXSettings settings(PYXSettings::eUserApplicationSettings);
    const QString absolutePath = QFileInfo(path).absoluteFilePath();
    QStringList paths = settings.stringListValue(SettingsKey);
    paths.removeAll(absolutePath);
    paths.prepend(absolutePath);
    settings.setValue(SettingsKey, QStringList(paths.mid(0, MaximumCount)));
}

void RecentRecordings::_sl_aboutToShow()
{
    clear();
    // Another window of the program may have opened some meanwhile.
    const QStringList recent = paths();
    for (int i = 0; i < recent.size(); ++i) {
        const QFileInfo file(recent.at(i));
        // An ampersand would underline a letter.
        const QString name = file.fileName().replace(QLatin1Char('&'), QLatin1String("&&"));
        QAction *const action = addAction(tr("&%1  %2").arg(QString::number(i + 1), name));
        action->setToolTip(QDir::toNativeSeparators(file.filePath()));
        action->setEnabled(file.exists());
        connect(action, &QAction::triggered, this, [this, file] { Q_EMIT si_chosen(file.filePath()); });
    }
    if (recent.isEmpty()) {
        addAction(tr("None"))->setEnabled(false);
        return;
    }
    addSeparator();
    addAction(tr("&Clear List"), this,
              [] { PYXSettings(PYXSettings::eUserApplicationSettings).remove(SettingsKey); });
}

} // namespace BandMonitor
