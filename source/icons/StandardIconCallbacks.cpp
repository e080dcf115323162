// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "StandardIconCallbacks.h"

#include <algorithm>

namespace PYXRuntime {

bool StandardIconCallbacks::add(uint firstId, uint lastId, IStandardIconsCallback *callback)
{
    if (callback == nullptr || firstId > lastId)
        return false;
    _purge(); // one that is gone may have lain at the same address
    auto *const object = dynamic_cast<QObject *>(callback);
    const struEntry entry{firstId, lastId, callback, object, object != nullptr};
    if (_isAdded(entry))
        return false;
    m_entries += entry;
    return true;
}

bool StandardIconCallbacks::remove(uint firstId, uint lastId, const IStandardIconsCallback *callback)
{
    _purge();
    const auto removed = std::remove_if(m_entries.begin(), m_entries.end(), [=](const struEntry &entry) {
        return entry.callback == callback && entry.firstId == firstId && entry.lastId == lastId;
    });
    const bool bFound = removed != m_entries.end();
    m_entries.erase(removed, m_entries.end());
    return bFound;
}

bool StandardIconCallbacks::removeAll(const IStandardIconsCallback *callback)
{
    _purge();
    const auto removed = std::remove_if(m_entries.begin(), m_entries.end(),
                                        [=](const struEntry &entry) { return entry.callback == callback; });
    const bool bFound = removed != m_entries.end();
    m_entries.erase(removed, m_entries.end());
    return bFound;
}

StandardIconCallbacks::struAnswer StandardIconCallbacks::ask(uint id)
{
    const QList<struEntry> entries = m_entries; // whoever is asked may change them
    for (auto entry = entries.crbegin(); entry != entries.crend(); ++entry) {
        if (id < entry->firstId || id > entry->lastId || m_beingAsked.contains({entry->callback, id}))
            continue;
        struAnswer answer = _ask(*entry, id);
        if (!answer.icon.isNull() || !answer.path.isEmpty())
            return answer;
    }
    return {};
}

bool StandardIconCallbacks::_isAdded(const struEntry &entry) const
{
    return std::any_of(m_entries.cbegin(), m_entries.cend(),
                       [&entry](const struEntry &added) { return added.isSame(entry) && added.isAlive(); });
}

StandardIconCallbacks::struAnswer StandardIconCallbacks::_ask(const struEntry &entry, uint id)
{
    struAnswer answer;
    if (!_isAdded(entry))
        return answer;
    m_beingAsked += {entry.callback, id};
    answer.icon = entry.callback->standardIcon(id);
    if (answer.icon.isNull() && _isAdded(entry))
        answer.path = entry.callback->standardIconPath(id);
    m_beingAsked.removeOne({entry.callback, id});
    return answer;
}

void StandardIconCallbacks::_purge()
{
    const auto gone = std::remove_if(m_entries.begin(), m_entries.end(),
                                     [](const struEntry &entry) { return !entry.isAlive(); });
    m_entries.erase(gone, m_entries.end());
}

} // namespace PYXRuntime
