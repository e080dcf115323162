// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QDeadlineTimer>
#include <QtCore/QLockFile>
#include <QtCore/QString>

namespace PYXRuntime {

/** The lock that the first instance of an application holds; freed by whatever ends its process. */
class InstanceLock final
{
    Q_DISABLE_COPY(InstanceLock)
public:
    /** @param path of the lock file, without its suffix */
    explicit InstanceLock(const QString &path);
    /** Unlocks. */
    ~InstanceLock() = default;

    /** To be tried again and again: a lock that somebody has left is not always known as such at once. */
    bool tryLock();
    /** Whether it makes no sense to try again. */
    bool cannotBeLocked() const;

private:
    void _removeAbandoned();

    const QString m_path;
    QLockFile m_file;
    QDeadlineTimer m_patience;
};

} // namespace PYXRuntime
