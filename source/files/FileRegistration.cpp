// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "FileRegistration.h"

#include "DataMutex.h"
#include "PYXBroker.h"

#include <QtCore/QThread>

#include <mutex>

namespace PYXRuntime {
namespace {

/** Held from the look-up of the list until what is sent to it is in its queue. Never destroyed. */
DataMutex &sendingMutex()
{
    static auto *const mutex = new DataMutex;
    return *mutex;
}

void doRegister(PYXIFileList *files, const PYXIFileList::struFileData &file)
{
    files->registerFile(file.filePath, file.fileType, file.componentName, file.startDateTime,
                        file.endDateTime);
}

/** @return the list, if it is to be called at once */
PYXIFileList *sentLater(const PYXIFileList::struFileData &file, Qt::ConnectionType type)
{
    const std::lock_guard<DataMutex> locker(sendingMutex());
    auto *const files = PYXBroker::getInstance()->topObject<PYXIFileList>();
    if (files == nullptr || (type == Qt::AutoConnection && files->thread() == QThread::currentThread()))
        return files;
    QMetaObject::invokeMethod(
        files, [files, file] { doRegister(files, file); }, Qt::QueuedConnection);
    return nullptr;
}

} // namespace

void registerWrittenFile(const PYXIFileList::struFileData &file, Qt::ConnectionType type)
{
    if (PYXIFileList *const files = sentLater(file, type))
        doRegister(files, file);
}

void awaitFileRegistrations()
{
    const std::lock_guard<DataMutex> locker(sendingMutex());
}

} // namespace PYXRuntime
