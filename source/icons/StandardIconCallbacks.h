// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "IStandardIconsCallback.h"

#include <QtCore/QList>
#include <QtCore/QPair>
#include <QtCore/QPointer>

namespace PYXRuntime {

/** The callbacks by range of ids. */
class StandardIconCallbacks final
{
public:
    /** What a callback gives for an id: an icon, or a base path, or neither. */
    struct struAnswer
    {
        QIcon icon;
        QString path;
    };

    bool isEmpty() const { return m_entries.isEmpty(); }
    bool add(uint firstId, uint lastId, IStandardIconsCallback *callback);
    bool remove(uint firstId, uint lastId, const IStandardIconsCallback *callback);
    bool removeAll(const IStandardIconsCallback *callback);
    /** Asks them, the one added last first, until one has an answer; passes over whoever is being asked. */
    struAnswer ask(uint id);

private:
    struct struEntry
    {
        uint firstId;
        uint lastId;
        IStandardIconsCallback *callback;
        QPointer<QObject> object;
        bool bObject; ///< whether its end is noticed

        bool isAlive() const { return !bObject || !object.isNull(); }
        bool isSame(const struEntry &other) const
        {
            return firstId == other.firstId && lastId == other.lastId && callback == other.callback;
        }
    };

    bool _isAdded(const struEntry &entry) const;
    struAnswer _ask(const struEntry &entry, uint id);
    void _purge();

    QList<struEntry> m_entries;
    QList<QPair<const IStandardIconsCallback *, uint>> m_beingAsked;
};

} // namespace PYXRuntime
