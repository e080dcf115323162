// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QObject>
#include <QtCore/QUuid>

namespace PYXRuntime {

/**
 * Ties an interface class to its broker identifier, so that PYXBroker::topObject<T>() finds it.
 * Specialised by PYX_DECLARE_BROKER_INTERFACE.
 */
template <typename Interface>
struct PYXBrokerInterface;

/** An object seen as an interface: by the Qt interface id first, by a dynamic cast else. Null for null.
 * Any thread in which the object is known to live. */
template <typename Interface>
Interface *pyxInterfaceCast(QObject *object)
{
    if (auto *const found = qobject_cast<Interface *>(object))
        return found;
    return dynamic_cast<Interface *>(object);
}

} // namespace PYXRuntime

/**
 * Stands beside Q_DECLARE_INTERFACE, outside of any namespace: Interface is the qualified class,
 * identifier an expression that gives its QUuid.
 */
#define PYX_DECLARE_BROKER_INTERFACE(Interface, identifier)                                                  \
    template <>                                                                                              \
    struct PYXRuntime::PYXBrokerInterface<Interface>                                                         \
    {                                                                                                        \
        static QUuid id() { return identifier; }                                                             \
    };
