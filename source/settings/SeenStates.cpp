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

/**
 * More than any program has open: one that exports to ever new files is not to keep something of each for
 * ever. A file that is forgotten is as safe as QSettings makes it.
 */
constexpr int MostFiles = 1024;

struct struSeenFile
{
    struFileState state;
    quint64 turn = 0; ///< the highest was seen last
};

struct struSeen
{
    DataMutex mutex;
    QHash<QString, struSeenFile> files;
    quint64 turn = 0;
};

struSeen &seen()
{
    static auto *const data = new struSeen;
    return *data;
}

void remember(const QString &path, const struFileState &state)
{
    const Locker locker(seen().mutex);
    auto &files = seen().files;
    if (files.size() >= MostFiles && !files.contains(path))
        files.erase(std::min_element(files.begin(), files.end(),
                                     [](const auto &a, const auto &b) { return a.turn < b.turn; }));
    files.insert(path, {state, ++seen().turn});
}

void forget(const QString &path)
{
    const Locker locker(seen().mutex);
    seen().files.remove(path);
}

struFileState remembered(const QString &path)
{
    const Locker locker(seen().mutex);
    return seen().files.value(path).state;
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
