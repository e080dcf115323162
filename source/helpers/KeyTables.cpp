// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "KeyTables.h"

#include <mutex>

namespace PYXRuntime {

void KeyTables::insert(const QString &type, const Enums::Keys &keys)
{
    const std::lock_guard<DataMutex> locker(m_mutex);
    m_tables.insert(type, keys);
}

void KeyTables::insert(const QMetaEnum &type)
{
    Enums::Keys keys;
    for (int i = 0; i < type.keyCount(); ++i)
        keys.append({QString::fromLatin1(type.key(i)), type.value(i)});
    insert(QString::fromLatin1(type.scope()) + QLatin1String("::") + QString::fromLatin1(type.name()), keys);
}

QStringList KeyTables::types() const
{
    const std::lock_guard<DataMutex> locker(m_mutex);
    return m_tables.keys();
}

Enums::Keys KeyTables::keys(const QString &type) const
{
    const std::lock_guard<DataMutex> locker(m_mutex);
    return m_tables.value(type);
}

} // namespace PYXRuntime
