// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXFileListImpl.h"

#include "FileRegistration.h"
#include "PYXTraceWrapper.h"
#include "SingletonHolder.h"

#include <QtCore/QFileInfo>
#include <QtCore/QPointer>

#include <algorithm>

namespace PYXRuntime {
namespace {

using Holder = SingletonHolder<PYXFileListImpl>;

constexpr const char *TraceFile = "source\\PYXFileListImpl";
// Log analysis finds registrations by this line number.
constexpr ushort RegisterTraceLine = 74;
constexpr uint BrokerName = 0;
constexpr int MaximumFiles = 1000;

/** When the file was created; its last change of status on file systems that do not know. */
QDateTime creationTime(const QFileInfo &file)
{
    const QDateTime birth = file.birthTime();
    return birth.isValid() ? birth : file.metadataChangeTime();
}

void takeTimes(PYXIFileList::struFileData &data, const QDateTime &start, const QDateTime &end)
{
    if (start.isValid() && end.isValid()) {
        data.startDateTime = start.toUTC();
        data.endDateTime = end.toUTC();
        return;
    }
    const QFileInfo file(data.filePath);
    data.startDateTime = creationTime(file).toUTC();
    data.endDateTime = file.lastModified().toUTC();
}

} // namespace

PYXFileListImpl::PYXFileListImpl()
{
    setObjectName(QStringLiteral("PYXRuntime::PYXFileListImpl"));
}

PYXFileListImpl::~PYXFileListImpl()
{
    m_registration.reset();
    awaitFileRegistrations();
}

PYXFileListImpl *PYXFileListImpl::getInstance()
{
    if (PYXFileListImpl *const list = Holder::existing())
        return list;
    PYXFileListImpl *const list = Holder::instance([] { return new PYXFileListImpl; });
    list->m_registration = PYXBrokerRegistration(InterfaceIdentifiers::fileList(), BrokerName, list);
    return list;
}

bool PYXFileListImpl::hasInstance()
{
    return Holder::existing() != nullptr;
}

void PYXFileListImpl::makeSureInitialized()
{
    getInstance();
}

void PYXFileListImpl::destroyInstance()
{
    delete Holder::take();
}

void PYXFileListImpl::registerFile(const QString &filePath, eFileType fileType, const QString &componentName,
                                   const QDateTime &start, const QDateTime &end)
{
    struFileData file;
    file.filePath = QString(filePath).replace(QLatin1Char('\\'), QLatin1Char('/'));
    file.fileType = fileType;
    file.componentName = componentName;
    if (_contains(file))
        return;
    takeTimes(file, start, end);
    const QPointer<PYXFileListImpl> guard(this);
    PYXTraceWrapper::staticTraceDebug(QLatin1String("PYXFileListImpl::registerFile(): componentName: ") +
                                          file.componentName,
                                      TraceFile, RegisterTraceLine);
    // Who hears of it, or that a file leaves, may register, clear or shut down.
    if (guard.isNull() || _contains(file) || !_makeRoomFor(file))
        return;
    m_fileList.append(file);
    Q_EMIT si_fileCountChanged(file.componentName, _changeCount(file.componentName, 1));
}

void PYXFileListImpl::clear(const QString &componentName)
{
    // A copy: it may be that of a record which goes.
    const QString component = componentName;
    m_fileList.erase(
        std::remove_if(m_fileList.begin(), m_fileList.end(),
                       [&](const struFileData &file) { return file.componentName == component; }),
        m_fileList.end());
    m_fileCounts.remove(component);
    Q_EMIT si_fileCountChanged(component, 0);
}

bool PYXFileListImpl::_contains(const struFileData &file) const
{
    return std::any_of(m_fileList.cbegin(), m_fileList.cend(), [&](const struFileData &known) {
        return known.fileType == file.fileType && known.filePath == file.filePath &&
               known.componentName == file.componentName;
    });
}

int PYXFileListImpl::_changeCount(const QString &componentName, int change)
{
    int &count = m_fileCounts[componentName];
    count += change;
    const int result = count;
    if (result == 0)
        m_fileCounts.remove(componentName);
    return result;
}

/** @return false where a listener has destroyed the list, or registered the file. */
bool PYXFileListImpl::_makeRoomFor(const struFileData &file)
{
    const QPointer<PYXFileListImpl> guard(this);
    while (m_fileList.size() >= MaximumFiles) {
        const QString componentName = m_fileList.takeFirst().componentName;
        Q_EMIT si_fileCountChanged(componentName, _changeCount(componentName, -1));
        if (guard.isNull() || _contains(file))
            return false;
    }
    return true;
}

} // namespace PYXRuntime
