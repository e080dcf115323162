// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "DataMutex.h"
#include "PYXNotification.h"

#include <QtCore/QHash>

#include <mutex>

namespace PYXRuntime {

/**
 * The messages that are not shown, by the hash of their two keys joined.
 *
 * The persistent ones are read from the user's application settings at the first question, and written when
 * they change. There each has a group below "::PYXRuntime::/SuppressedMessages", named after a digest of its
 * keys, since Qt's hash need not be the same in another version. Groups that make no sense are left alone.
 * Any thread.
 */
class SuppressedMessages final
{
public:
    using struMessage = PYXNotification::struSuppressedMessage;
    using StandardButton = PYXNotification::StandardButton;

    SuppressedMessages() = default;
    Q_DISABLE_COPY(SuppressedMessages)

    /** That of the process. */
    static SuppressedMessages &instance();

    bool contains(const QString &firstKey, const QString &secondKey);
    StandardButton returnButton(const QString &firstKey, const QString &secondKey);
    QList<struMessage> all();

    void suppress(struMessage message);
    void remove(const QString &firstKey, const QString &secondKey);
    void removeIfReturning(const QString &firstKey, const QString &secondKey, StandardButton button);
    void clear();

private:
    static uint _hashKey(const QString &firstKey, const QString &secondKey);
    bool _isLoaded();
    void _loadOnce();
    template <typename Predicate>
    void _removeIf(const QString &firstKey, const QString &secondKey, Predicate matches);

    /**
     * Of whoever changes messages, so that settings and table agree. Recursive, and never locked under the
     * other one, since settings trace what fails, and a tracer may want to show a message.
     */
    std::recursive_mutex m_storeMutex;
    bool m_bLoading = false;
    DataMutex m_mutex;
    QHash<uint, struMessage> m_messages;
    bool m_bLoaded = false;
};

} // namespace PYXRuntime
