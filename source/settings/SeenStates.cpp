// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "SeenStates.h"

#include "DataMutex.h"
#include "FileState.h"

#include <QtCore/QDateTime>
#include <QtCore/QFile>
#include <QtCore/QHash>

#include <algorithm>
#include <mutex>

namespace PYXRuntime::SeenStates {
namespace {

using Platform::struFileState;
using Locker = std::lock_guard<DataMutex>;

constexpr qint64 NanosecondsPerMillisecond = 1'000'000;

struct struSeen
{
    DataMutex mutex;
    QHash<QString, struFileState> states;
};

struSeen &seen()
{
    static auto *const data = new struSeen;
    return *data;
}

void remember(const QString &path, const struFileState &state)
{
    const Locker locker(seen().mutex);
    seen().states.insert(path, state);
}

void forget(const QString &path)
{
    const Locker locker(seen().mutex);
    seen().states.remove(path);
}

struFileState remembered(const QString &path)
{
    const Locker locker(seen().mutex);
    return seen().states.value(path);
}

/** QSettings does not read an empty file, so there is nothing in it that it could have missed. */
bool isUnseen(const struFileState &known, const struFileState &now)
{
    return known.isPresent() && now.size > 0 && !(known == now);
}

void changeTime(const QString &path, const struFileState &now)
{
    const qint64 later =
        std::max(QDateTime::currentMSecsSinceEpoch(), now.nanoseconds / NanosecondsPerMillisecond + 1);
    QFile file(path);
    if (file.open(QIODevice::ReadWrite | QIODevice::ExistingOnly))
        file.setFileTime(QDateTime::fromMSecsSinceEpoch(later), QFileDevice::FileModificationTime);
}

/**
 * A child of the device that QSettings reads from or writes to, and destroys after it has noted the file's
 * size and time, or right before that and with the file locked.
 */
class DeviceEnd final : public QObject
{
public:
    DeviceEnd(QFileDevice &file, bool bWritten)
        : QObject(&file)
        , m_path(file.fileName())
        , m_state(Platform::fileState(file.handle()))
        , m_bWritten(bWritten)
    {}
    ~DeviceEnd() override
    {
        const struFileState now = Platform::fileState(m_path);
        if (m_bWritten ? m_state.isSameFile(now) : m_state == now)
            remember(m_path, now);
        else if (!m_bWritten)
            readAnother(now);
    }
    Q_DISABLE_COPY(DeviceEnd)

private:
    void readAnother(const struFileState &now) const
    {
        forget(m_path);
        if (now.isPresent())
            changeTime(m_path, now);
    }

    QString m_path;
    struFileState m_state;
    bool m_bWritten;
};

} // namespace

void noteRead(QFileDevice &file)
{
    new DeviceEnd(file, false);
}

void noteWritten(QFileDevice &file)
{
    new DeviceEnd(file, true);
}

bool mayReplace(const QString &path)
{
    const struFileState now = Platform::fileState(path);
    if (!isUnseen(remembered(path), now))
        return true;
    forget(path);
    changeTime(path, now);
    return false;
}

void discloseChange(const QString &path)
{
    const struFileState known = remembered(path);
    if (!known.isPresent())
        return;
    const struFileState now = Platform::fileState(path);
    // With another size QSettings sees it by itself.
    if (isUnseen(known, now) && known.size == now.size)
        changeTime(path, now);
}

} // namespace PYXRuntime::SeenStates
