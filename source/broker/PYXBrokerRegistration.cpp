// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXBrokerRegistration.h"

#include <utility>

namespace PYXRuntime {

PYXBrokerRegistration::PYXBrokerRegistration(const QUuid &id, uint name, QObject *object)
    : m_id(id)
    , m_name(name)
    , m_object(object)
    , m_bRegistered(true)
{
    PYXBroker::getInstance()->registerObject(id, name, object);
}

PYXBrokerRegistration::PYXBrokerRegistration(PYXBrokerRegistration &&other) noexcept
    : m_id(other.m_id)
    , m_name(other.m_name)
    , m_object(std::exchange(other.m_object, nullptr))
    , m_bRegistered(std::exchange(other.m_bRegistered, false))
{}

PYXBrokerRegistration &PYXBrokerRegistration::operator=(PYXBrokerRegistration &&other) noexcept
{
    if (this != &other) {
        reset();
        m_id = other.m_id;
        m_name = other.m_name;
        m_object = std::exchange(other.m_object, nullptr);
        m_bRegistered = std::exchange(other.m_bRegistered, false);
    }
    return *this;
}

PYXBrokerRegistration::~PYXBrokerRegistration()
{
    reset();
}

void PYXBrokerRegistration::reset()
{
    // The registration of an object that is gone is unregistered as null, like all dead ones.
    if (std::exchange(m_bRegistered, false))
        PYXBroker::getInstance()->unregisterObject(m_id, m_name, m_object.data());
}

} // namespace PYXRuntime
