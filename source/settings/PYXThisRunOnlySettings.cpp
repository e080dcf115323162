// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXThisRunOnlySettings.h"

#include "DataMutex.h"
#include "PYXTraceWrapper.h"
#include "SingletonHolder.h"
#include "XmlSettingsReader.h"
#include "XmlSettingsWriter.h"

#include <QtCore/QFile>
#include <QtCore/QSet>

#include <mutex>

namespace PYXRuntime {
namespace {

constexpr char SourceTag[] = "source\\PYXThisRunOnlySettings";
const QLatin1String FileSuffix("PYXTRO");

using Holder = SingletonHolder<PYXThisRunOnlySettings>;
using Locker = std::lock_guard<DataMutex>;

/** QSettings locks each file apart, so two of its callbacks may run at once. */
struct struShared
{
    DataMutex mutex;
    QSettings::Format format = QSettings::InvalidFormat;
    QSet<QString> files;
    bool bAlive = false;
};

struShared &shared()
{
    static auto *const data = new struShared;
    return *data;
}

} // namespace

PYXThisRunOnlySettings::PYXThisRunOnlySettings(QObject *parent)
    : QObject(parent)
{}

PYXThisRunOnlySettings::~PYXThisRunOnlySettings() = default;

PYXThisRunOnlySettings *PYXThisRunOnlySettings::getInstance()
{
    auto *const instance = Holder::instance([] { return new PYXThisRunOnlySettings; });
    const Locker locker(shared().mutex);
    shared().bAlive = true;
    if (shared().format == QSettings::InvalidFormat)
        shared().format =
            QSettings::registerFormat(FileSuffix, readSettings, writeSettings, Qt::CaseSensitive);
    return instance;
}

void PYXThisRunOnlySettings::makeSureInitialized()
{
    getInstance();
}

bool PYXThisRunOnlySettings::hasInstance()
{
    return Holder::existing() != nullptr;
}

void PYXThisRunOnlySettings::destroyInstance()
{
    if (!hasInstance())
        return;
    QSet<QString> files;
    {
        const Locker locker(shared().mutex);
        shared().bAlive = false;
        files.swap(shared().files);
    }
    for (const QString &file : qAsConst(files)) {
        if (!QFile::remove(file))
            PYXTraceWrapper::staticTraceInfo(
                QLatin1String("Failed to remove 'this run only' settings file: ") + file, SourceTag,
                ushort(__LINE__));
    }
    Holder::destroy();
}

QSettings::Format PYXThisRunOnlySettings::format()
{
    const Locker locker(shared().mutex);
    return shared().format;
}

bool PYXThisRunOnlySettings::readSettings(QIODevice &device, QSettings::SettingsMap &map)
{
    // A damaged file is not kept aside: nothing of this format is to outlive the run.
    return _registerSettingsFile(device) && XmlSettingsReader::read(device, map);
}

bool PYXThisRunOnlySettings::writeSettings(QIODevice &device, const QSettings::SettingsMap &map)
{
    {
        const Locker locker(shared().mutex);
        // Nobody would remove the file.
        if (!shared().bAlive)
            return false;
    }
    return _registerSettingsFile(device) && XmlSettingsWriter::write(device, map);
}

bool PYXThisRunOnlySettings::_registerSettingsFile(QIODevice &device)
{
    // QSettings reads from a QFile and writes to a QSaveFile.
    const auto *const file = qobject_cast<QFileDevice *>(&device);
    if (file == nullptr || file->fileName().isEmpty())
        return false;
    const Locker locker(shared().mutex);
    shared().files.insert(file->fileName());
    return true;
}

} // namespace PYXRuntime
