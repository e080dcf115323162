// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "PYXBrokerInterface.h"
#include "pyxruntime_export.h"

#include <QtCore/QDeadlineTimer>
#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtCore/QMutex>
#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtCore/QUuid>

#include <memory>

namespace PYXRuntime {

class BrokerPrivate;

/**
 * The registry of the process through which modules find implementations of interfaces without linking
 * to each other.
 *
 * An implementation registers a QObject under an interface identifier and a number ("name"); a consumer
 * asks for the object on top of that slot. The newest registration hides the earlier ones until it is
 * unregistered. The broker owns no object and notices when one is destroyed.
 * @code
 * PYXBroker::getInstance()->registerObject(PYXBrokerInterface<Demodulator>::id(), 0, this);
 * Demodulator *demodulator = PYXBroker::getInstance()->topObject<Demodulator>();
 * @endcode
 * Any thread may register, unregister and query; signals are emitted in that thread, outside the locks.
 * Whoever uses an object of another thread must know that it lives. The broker lives until the process
 * ends.
 */
class PYXRUNTIME_EXPORT PYXBroker : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(PYXBroker)
public:
    /** Identifier to name to registrations, the newest first. */
    using ObjectTable = QHash<QUuid, QHash<uint, QList<QPointer<QObject>> *> *>;

    /** One registration, as registrations() tells it. */
    struct struRegistration
    {
        QUuid identifier;
        QString declaredName;
        uint name = 0;
        QString className;  ///< empty for a dead object
        QString objectName; ///< empty for a dead object
        bool bAlive = false;
    };

    ~PYXBroker() override;

    static PYXBroker *getInstance();
    static bool hasInstance();

    /** Puts the object on top of its slot. Neither duplicates nor null are refused. */
    void registerObject(const QUuid &id, uint name, QObject *obj);
    /**
     * Removes every registration of the object in the slot; null removes the registrations of destroyed
     * objects. The object is not looked into: it may be gone already.
     */
    void unregisterObject(const QUuid &id, uint name, QObject *obj);
    /**
     * The newest registration's object. Where that has been destroyed, the answer is null once, and the
     * slot's dead registrations are removed; the next call gives the then newest.
     */
    QObject *topObject(const QUuid &id, uint name) const;
    /** The same, seen as the interface; null too where the object does not implement it. */
    template <typename Interface>
    Interface *topObject(uint name = 0) const
    {
        return topObject<Interface>(PYXBrokerInterface<Interface>::id(), name);
    }
    template <typename Interface>
    Interface *topObject(const QUuid &id, uint name) const
    {
        return pyxInterfaceCast<Interface>(topObject(id, name));
    }
    /**
     * Waits until the slot has a live object. In the thread of the application object, events are
     * processed meanwhile (user input is held back); any other thread is blocked.
     * @param milliseconds longest time to wait; negative: without limit
     * @return the object on top, or null if there was none in time or before the application quits
     */
    QObject *waitForObject(const QUuid &id, uint name, int milliseconds) const;

    /** The slot's live objects, the newest first. */
    QList<QObject *> registeredObjects(const QUuid &id, uint name) const;
    /** The names under which something is registered for the identifier, in no order. */
    QList<uint> registeredNames(const QUuid &id) const;
    /** A deep copy of all registrations; the caller releases it with freeHashMemory(). */
    ObjectTable allObjects() const;
    /** Deletes what allObjects() has made and empties the table. */
    void freeHashMemory(ObjectTable &table) const;
    /**
     * All registrations, live and dead, ordered by declared name, identifier, name and age (newest
     * first). Asks the objects for their class: call it where no registered object is being destroyed,
     * usually in the GUI thread.
     */
    QList<struRegistration> registrations() const;

    /** Gives an identifier a readable name, or another one. */
    void declareInterface(const QUuid &id, const QString &name);
    /** @return the translated "<undeclared interface>" where none is declared. */
    QString declaredInterface(const QUuid &id) const;
    QHash<QUuid, QString> knownInterfaces() const;

    /**
     * The advisory lock for sequences of operations: only callers that use transactions wait for each
     * other. One thread may nest transactions; each is finished in the thread that has begun it.
     */
    void beginTransaction();
    /** Begins a transaction that lasts as long as the locker; one that @p locker held before ends first. */
    void beginTransaction(std::unique_ptr<QMutexLocker> &locker);
    /** @param timeout in ms; negative: without limit. @return false if it did not become free in time. */
    bool tryBeginTransaction(int timeout);
    void finishTransaction();

    static void staticBeginTransaction();
    static bool staticTryBeginTransaction(int timeout);
    static void staticFinishTransaction();

    /** Connects to a signal of the broker, given by SIGNAL() and SLOT() or SIGNAL(). */
    static bool connectBrokerSignal(const char *signal, QObject *receiver, const char *method,
                                    Qt::ConnectionType type = Qt::AutoConnection);
    static bool disconnectBrokerSignal(const char *signal, QObject *receiver, const char *method);

Q_SIGNALS:
    void si_registered(const QUuid &a_id, uint a_name, QObject *a_obj);
    /** Also emitted when nothing is removed in the end, for every identifier that has registrations. */
    void si_aboutToUnregister(const QUuid &a_id, uint a_name, QObject *a_obj);
    void si_unregistered(const QUuid &a_id, uint a_name, QObject *a_obj);

private:
    PYXBroker();
    QObject *_waitBlocking(const QUuid &id, uint name, QDeadlineTimer deadline) const;
    QObject *_waitWithEvents(const QUuid &id, uint name, QDeadlineTimer deadline) const;

    const std::unique_ptr<BrokerPrivate> d;
};

} // namespace PYXRuntime
