// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "PYXBroker.h"

#include <array>

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
    Slot *rememberedSlot(const QUuid &id, uint name);
    void dropIfEmpty(const QUuid &id, uint name);

    /** Where a slot was found last: spares the look-ups of callers that ask for few slots again and again. */
    struct struRemembered
    {
        QUuid id;
        uint name = 0;
        Slot *slot = nullptr;
    };
    static std::size_t rememberedIndex(const QUuid &id, uint name)
    {
        return (id.data1 ^ id.data3 ^ name) % RememberedSlots;
    }
    static constexpr std::size_t RememberedSlots = 64;

    PYXBroker::ObjectTable m_table;
    std::array<struRemembered, RememberedSlots> m_remembered;
};

} // namespace PYXRuntime
