// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "OpenFileRetry.h"

#include "Platform.h"
#include "StoreFailures.h"

#include <QtCore/QDeadlineTimer>
#include <QtCore/QSettings>
#include <QtCore/QThread>

namespace PYXRuntime::OpenFileRetry {
namespace {

constexpr int LongestWaitMs = 2000;
constexpr ulong PauseMs = 5;

/** Objects on one file share its changes; a new one tries to save them, and its status is that of the
 * attempt. */
bool isRefused(const QString &file, QSettings::Format format)
{
    return QSettings(file, format).status() == QSettings::AccessError;
}

} // namespace

void save(const QSettings &settings)
{
    if (Platform::canReplaceOpenFiles() || settings.format() == QSettings::NativeFormat)
        return;
    const QString file = settings.fileName();
    if (StoreFailures::isFailing(file))
        return;
    const QDeadlineTimer deadline(LongestWaitMs);
    while (isRefused(file, settings.format()) && Platform::mayBecomeReplaceable(file) &&
           !deadline.hasExpired())
        QThread::msleep(PauseMs);
}

} // namespace PYXRuntime::OpenFileRetry
