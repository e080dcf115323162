// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "PYXBroker.h"

namespace PYXRuntime {

/** The registrations of the broker. Not locked. A slot exists only while it holds a registration. */
class BrokerTable final
{
public:
    using Slot = QList<QPointer<QObject>>;

    BrokerTable() = default;
    Q_DISABLE_COPY(BrokerTable)
    ~BrokerTable();

    void add(const QUuid &id, uint name, QObject *object);
    /** Removes the object's registrations (null: the dead ones). @return whether the slot existed. */
    bool remove(const QUuid &id, uint name, QObject *object);

    bool contains(const QUuid &id) const { return m_table.contains(id); }
    /** The slot's first object; where it is dead, null, and the dead ones are removed. */
    QObject *top(const QUuid &id, uint name);
    QList<QObject *> living(const QUuid &id, uint name) const;
    QList<uint> names(const QUuid &id) const;
    PYXBroker::ObjectTable copy() const;

    static void release(PYXBroker::ObjectTable &table);

private:
    Slot *slot(const QUuid &id, uint name) const;
    void dropIfEmpty(const QUuid &id, uint name);

    PYXBroker::ObjectTable m_table;
};

} // namespace PYXRuntime
