// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXBroker.h"

#include "BrokerTable.h"
#include "DataMutex.h"
#include "PYXInterfaceIdentifiers.h"
#include "PYXStringHelpers.h"
#include "SingletonHolder.h"
#include "StandardApplicationInfo.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QEventLoop>
#include <QtCore/QThread>
#include <QtCore/QTimer>

#include <algorithm>
#include <limits>
#include <mutex>
#include <tuple>

namespace PYXRuntime {
namespace {

using Holder = SingletonHolder<PYXBroker>;
using Locker = std::lock_guard<DataMutex>;

constexpr uint StandardName = 0;

/** A registered object; its QPointer copy keeps nothing alive. */
PYXBroker::struRegistration describe(const QPointer<QObject> &object)
{
    PYXBroker::struRegistration registration;
    if (object) {
        registration.bAlive = true;
        registration.className = QLatin1String(object->metaObject()->className());
        registration.objectName = object->objectName();
    }
    return registration;
}

} // namespace

class BrokerPrivate final
{
public:
    /** The slot's newest living object, also where dead registrations lie on top of it. */
    QObject *newestLiving(const QUuid &id, uint name)
    {
        const QList<QObject *> objects = table.living(id, name);
        return objects.isEmpty() ? nullptr : objects.first();
    }

    DataMutex objectsLock;
    BrokerTable table;
    QWaitCondition registered;
    DataMutex interfacesLock;
    QHash<QUuid, QString> interfaces;
    QMutex transactionLock{QMutex::Recursive};
    QPointer<QObject> standardApplicationInfo;
};

PYXBroker::PYXBroker()
    : d(std::make_unique<BrokerPrivate>())
{
    d->standardApplicationInfo = createStandardApplicationInfo(this);
    d->standardApplicationInfo->setObjectName(QStringLiteral("PYXBroker:stdApplicationInfo"));
    registerObject(InterfaceIdentifiers::applicationInfo(), StandardName, d->standardApplicationInfo);
}

PYXBroker::~PYXBroker()
{
    if (d->standardApplicationInfo.isNull())
        return;
    unregisterObject(InterfaceIdentifiers::applicationInfo(), StandardName, d->standardApplicationInfo);
    delete d->standardApplicationInfo;
}

PYXBroker *PYXBroker::getInstance()
{
    return Holder::instance([] { return new PYXBroker; });
}

bool PYXBroker::hasInstance()
{
    return Holder::existing() != nullptr;
}

void PYXBroker::registerObject(const QUuid &id, uint name, QObject *obj)
{
    {
        const Locker locker(d->objectsLock);
        d->table.add(id, name, obj);
    }
    d->registered.wakeAll();
    Q_EMIT si_registered(id, name, obj);
}

void PYXBroker::unregisterObject(const QUuid &id, uint name, QObject *obj)
{
    {
        const Locker locker(d->objectsLock);
        if (!d->table.contains(id))
            return;
    }
    Q_EMIT si_aboutToUnregister(id, name, obj);
    bool bRemoved = false;
    {
        const Locker locker(d->objectsLock);
        bRemoved = d->table.remove(id, name, obj);
    }
    if (bRemoved)
        Q_EMIT si_unregistered(id, name, obj);
}

QObject *PYXBroker::topObject(const QUuid &id, uint name) const
{
    const Locker locker(d->objectsLock);
    return d->table.top(id, name);
}

QList<QObject *> PYXBroker::registeredObjects(const QUuid &id, uint name) const
{
    const Locker locker(d->objectsLock);
    return d->table.living(id, name);
}

QList<uint> PYXBroker::registeredNames(const QUuid &id) const
{
    const Locker locker(d->objectsLock);
    return d->table.names(id);
}

PYXBroker::ObjectTable PYXBroker::allObjects() const
{
    const Locker locker(d->objectsLock);
    return d->table.copy();
}

void PYXBroker::freeHashMemory(ObjectTable &table) const
{
    BrokerTable::release(table);
}

QList<PYXBroker::struRegistration> PYXBroker::registrations() const
{
    ObjectTable table = allObjects();
    QList<struRegistration> result;
    for (auto names = table.cbegin(); names != table.cend(); ++names) {
        const QString declaredName = declaredInterface(names.key());
        for (auto slot = names.value()->cbegin(); slot != names.value()->cend(); ++slot) {
            for (const QPointer<QObject> &object : qAsConst(*slot.value())) {
                struRegistration registration = describe(object);
                registration.identifier = names.key();
                registration.declaredName = declaredName;
                registration.name = slot.key();
                result.append(registration);
            }
        }
    }
    freeHashMemory(table);
    std::stable_sort(result.begin(), result.end(), [](const struRegistration &a, const struRegistration &b) {
        return std::tie(a.declaredName, a.identifier, a.name) <
               std::tie(b.declaredName, b.identifier, b.name);
    });
    return result;
}

QObject *PYXBroker::waitForObject(const QUuid &id, uint name, int milliseconds) const
{
    const bool bHasEvents = QCoreApplication::instance() != nullptr &&
                            QCoreApplication::instance()->thread() == QThread::currentThread();
    const QDeadlineTimer deadline =
        milliseconds < 0 ? QDeadlineTimer(QDeadlineTimer::Forever) : QDeadlineTimer(milliseconds);
    return bHasEvents ? _waitWithEvents(id, name, deadline) : _waitBlocking(id, name, deadline);
}

QObject *PYXBroker::_waitBlocking(const QUuid &id, uint name, QDeadlineTimer deadline) const
{
    const Locker locker(d->objectsLock);
    QObject *object = d->newestLiving(id, name);
    while (object == nullptr && d->objectsLock.wait(d->registered, deadline))
        object = d->newestLiving(id, name);
    return object;
}

QObject *PYXBroker::_waitWithEvents(const QUuid &id, uint name, QDeadlineTimer deadline) const
{
    const auto newestLiving = [&] {
        const Locker locker(d->objectsLock);
        return d->newestLiving(id, name);
    };
    QEventLoop loop;
    // Connected before the first look, so that no registration falls in between.
    connect(this, &PYXBroker::si_registered, &loop, &QEventLoop::quit);
    QTimer timer;
    timer.setTimerType(Qt::PreciseTimer);
    connect(&timer, &QTimer::timeout, &loop, &QEventLoop::quit);
    QObject *object = newestLiving();
    while (object == nullptr && !deadline.hasExpired()) {
        // Set again each time: every registration of anything ends one round.
        if (!deadline.isForever())
            timer.start(int(std::min<qint64>(deadline.remainingTime() + 1, std::numeric_limits<int>::max())));
        const bool bQuitting = loop.exec(QEventLoop::ExcludeUserInputEvents) < 0;
        object = newestLiving();
        if (bQuitting) // no event loop of this thread runs any more
            break;
    }
    return object;
}

void PYXBroker::declareInterface(const QUuid &id, const QString &name)
{
    const Locker locker(d->interfacesLock);
    // A literal of a plug-in is gone when it is unloaded.
    d->interfaces.insert(id, PYXStringHelpers::trueCopy(name));
}

QString PYXBroker::declaredInterface(const QUuid &id) const
{
    {
        const Locker locker(d->interfacesLock);
        const auto name = d->interfaces.constFind(id);
        if (name != d->interfaces.cend())
            return *name;
    }
    // A translator is foreign code: not called with the lock held.
    return tr("<undeclared interface>");
}

QHash<QUuid, QString> PYXBroker::knownInterfaces() const
{
    const Locker locker(d->interfacesLock);
    return d->interfaces;
}

void PYXBroker::beginTransaction()
{
    d->transactionLock.lock();
}

void PYXBroker::beginTransaction(std::unique_ptr<QMutexLocker> &locker)
{
    locker = std::make_unique<QMutexLocker>(&d->transactionLock);
}

bool PYXBroker::tryBeginTransaction(int timeout)
{
    return d->transactionLock.tryLock(timeout);
}

void PYXBroker::finishTransaction()
{
    d->transactionLock.unlock();
}

void PYXBroker::staticBeginTransaction()
{
    getInstance()->beginTransaction();
}

bool PYXBroker::staticTryBeginTransaction(int timeout)
{
    return getInstance()->tryBeginTransaction(timeout);
}

void PYXBroker::staticFinishTransaction()
{
    getInstance()->finishTransaction();
}

bool PYXBroker::connectBrokerSignal(const char *signal, QObject *receiver, const char *method,
                                    Qt::ConnectionType type)
{
    return bool(connect(getInstance(), signal, receiver, method, type));
}

bool PYXBroker::disconnectBrokerSignal(const char *signal, QObject *receiver, const char *method)
{
    return disconnect(getInstance(), signal, receiver, method);
}

} // namespace PYXRuntime
