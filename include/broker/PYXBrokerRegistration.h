// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "PYXBroker.h"

namespace PYXRuntime {

/**
 * A registration with the broker that ends with this object. Movable; any thread, one at a time.
 * @code
 * class Demodulator : public QObject { ... PYXBrokerRegistration m_registration{id, 0, this}; };
 * @endcode
 */
class PYXRUNTIME_EXPORT PYXBrokerRegistration final
{
public:
    /** Registers nothing. */
    PYXBrokerRegistration() = default;
    PYXBrokerRegistration(const QUuid &id, uint name, QObject *object);
    PYXBrokerRegistration(PYXBrokerRegistration &&other) noexcept;
    PYXBrokerRegistration &operator=(PYXBrokerRegistration &&other) noexcept;
    PYXBrokerRegistration(const PYXBrokerRegistration &) = delete;
    PYXBrokerRegistration &operator=(const PYXBrokerRegistration &) = delete;
    /** Unregisters the object, and with it every other registration of it in the same slot. */
    ~PYXBrokerRegistration();

    /** Ends the registration early. */
    void reset();
    /** Whether something is registered, also where the object has been destroyed meanwhile. */
    bool isRegistered() const { return m_bRegistered; }

private:
    QUuid m_id;
    uint m_name = 0;
    QPointer<QObject> m_object;
    bool m_bRegistered = false;
};

} // namespace PYXRuntime
