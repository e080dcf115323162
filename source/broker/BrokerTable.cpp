// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "BrokerTable.h"

#include <algorithm>

namespace PYXRuntime {

BrokerTable::~BrokerTable()
{
    release(m_table);
}

void BrokerTable::release(PYXBroker::ObjectTable &table)
{
    for (const auto *names : qAsConst(table)) {
        if (names != nullptr)
            qDeleteAll(*names);
    }
    qDeleteAll(table);
    table.clear();
}

void BrokerTable::add(const QUuid &id, uint name, QObject *object)
{
    auto *&names = m_table[id];
    if (names == nullptr)
        names = new QHash<uint, Slot *>;
    Slot *&registrations = (*names)[name];
    if (registrations == nullptr)
        registrations = new Slot;
    registrations->prepend(object);
}

bool BrokerTable::remove(const QUuid &id, uint name, QObject *object)
{
    Slot *const registrations = slot(id, name);
    if (registrations == nullptr)
        return false;
    // Compared as plain pointers: a QPointer made of an object that is gone would look into it.
    const auto isObjects = [object](const QPointer<QObject> &entry) { return entry.data() == object; };
    registrations->erase(std::remove_if(registrations->begin(), registrations->end(), isObjects),
                         registrations->end());
    dropIfEmpty(id, name);
    return true;
}

QObject *BrokerTable::top(const QUuid &id, uint name)
{
    Slot *const registrations = rememberedSlot(id, name);
    if (registrations == nullptr)
        return nullptr;
    if (QObject *const object = registrations->constFirst().data())
        return object;
    registrations->removeAll(nullptr);
    dropIfEmpty(id, name);
    return nullptr;
}

QList<QObject *> BrokerTable::living(const QUuid &id, uint name) const
{
    QList<QObject *> objects;
    if (const Slot *const registrations = slot(id, name)) {
        for (const QPointer<QObject> &object : *registrations) {
            if (object)
                objects.append(object.data());
        }
    }
    return objects;
}

QList<uint> BrokerTable::names(const QUuid &id) const
{
    const auto names = m_table.constFind(id);
    return names != m_table.cend() ? names.value()->keys() : QList<uint>();
}

PYXBroker::ObjectTable BrokerTable::copy() const
{
    PYXBroker::ObjectTable table;
    for (auto names = m_table.cbegin(); names != m_table.cend(); ++names) {
        auto *const copied = new QHash<uint, Slot *>;
        for (auto registrations = names.value()->cbegin(); registrations != names.value()->cend();
             ++registrations)
            copied->insert(registrations.key(), new Slot(*registrations.value()));
        table.insert(names.key(), copied);
    }
    return table;
}

BrokerTable::Slot *BrokerTable::slot(const QUuid &id, uint name) const
{
    const auto names = m_table.constFind(id);
    return names != m_table.cend() ? names.value()->value(name, nullptr) : nullptr;
}

BrokerTable::Slot *BrokerTable::rememberedSlot(const QUuid &id, uint name)
{
    struRemembered &remembered = m_remembered[rememberedIndex(id, name)];
    if (remembered.slot == nullptr || remembered.name != name || remembered.id != id)
        remembered = {id, name, slot(id, name)};
    return remembered.slot;
}

void BrokerTable::dropIfEmpty(const QUuid &id, uint name)
{
    auto *const names = m_table.value(id);
    if (!names->value(name)->isEmpty())
        return;
    struRemembered &remembered = m_remembered[rememberedIndex(id, name)];
    if (remembered.slot == names->value(name))
        remembered = {};
    delete names->take(name);
    if (names->isEmpty())
        delete m_table.take(id);
}

} // namespace PYXRuntime
