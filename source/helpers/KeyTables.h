// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "DataMutex.h"
#include "Enums.h"

#include <QtCore/QMap>

namespace PYXRuntime {

/** Names and values of enumerators by type. Any thread. */
class KeyTables final
{
    Q_DISABLE_COPY(KeyTables)
public:
    KeyTables() = default;

    void insert(const QString &type, const Enums::Keys &keys);
    void insert(const QMetaEnum &type);
    QStringList types() const;
    Enums::Keys keys(const QString &type) const;

private:
    mutable DataMutex m_mutex;
    QMap<QString, Enums::Keys> m_tables;
};

} // namespace PYXRuntime
