// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "StoreFailures.h"

#include "DataMutex.h"
#include "PYXTraceWrapper.h"

#include <QtCore/QSet>

#include <mutex>

namespace PYXRuntime::StoreFailures {
namespace {

constexpr char SourceTag[] = "source\\PYXSettings";

using Locker = std::lock_guard<DataMutex>;

struct struFailing
{
    DataMutex mutex;
    QSet<QString> files;
};

struFailing &failing()
{
    static auto *const data = new struFailing;
    return *data;
}

bool isNew(const QString &file)
{
    const Locker locker(failing().mutex);
    const int before = failing().files.size();
    failing().files.insert(file);
    return failing().files.size() != before;
}

void forget(const QString &file)
{
    const Locker locker(failing().mutex);
    failing().files.remove(file);
}

} // namespace

bool isFailing(const QString &file)
{
    const Locker locker(failing().mutex);
    return failing().files.contains(file);
}

void noteSaved(const QSettings &settings, QSettings::Status before)
{
    const QSettings::Status after = settings.status();
    if (after == QSettings::NoError) {
        forget(settings.fileName());
        return;
    }
    // A status stays as it is: one that is older than this attempt says nothing about it.
    const bool bFailed = before == QSettings::NoError || !settings.isWritable();
    if (!bFailed || after != QSettings::AccessError || !isNew(settings.fileName()))
        return;
    PYXTraceWrapper::staticTraceWarn(QLatin1String("The settings file \"") + settings.fileName() +
                                         QLatin1String("\" cannot be written; its changes are not saved."),
                                     SourceTag, ushort(__LINE__));
}

} // namespace PYXRuntime::StoreFailures
