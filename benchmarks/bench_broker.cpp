// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXBroker.h"

#include <QtCore/QHash>
#include <QtCore/QMutex>
#include <QtCore/QPointer>

#include <benchmark/benchmark.h>

class IService
{
public:
    virtual ~IService() = default;
    virtual int answer() const = 0;
};
Q_DECLARE_INTERFACE(IService, "com.varnholt.Benchmarks.IService/1.0")
PYX_DECLARE_BROKER_INTERFACE(IService, QUuid(0x5d8f1b62, 0x1c1a, 0x4b52, 0x9e, 0x0f, 0x8c, 0x3a, 0x11, 0x7b,
                                             0x20, 0x4d))

class Service : public QObject, public IService
{
    Q_OBJECT
    Q_INTERFACES(IService)
public:
    int answer() const override { return 42; }
};

namespace {

constexpr int OtherInterfaces = 20;

/** What one would write by hand: one mutex, two look-ups, a guarded pointer. */
class HandMadeRegistry
{
public:
    void add(const QUuid &id, uint name, QObject *object) { m_objects[id][name] = object; }
    QObject *find(const QUuid &id, uint name)
    {
        const QMutexLocker locker(&m_mutex);
        const auto names = m_objects.constFind(id);
        if (names == m_objects.cend())
            return nullptr;
        const auto object = names->constFind(name);
        return object != names->cend() ? object->data() : nullptr;
    }

private:
    QMutex m_mutex;
    QHash<QUuid, QHash<uint, QPointer<QObject>>> m_objects;
};

HandMadeRegistry &handMade()
{
    static HandMadeRegistry registry;
    return registry;
}

/** The same registrations on both sides: the service among others. */
void fill()
{
    static Service service;
    static QObject others[OtherInterfaces];
    const QUuid id = PYXRuntime::PYXBrokerInterface<IService>::id();
    PYXRuntime::PYXBroker::getInstance()->registerObject(id, 0, &service);
    handMade().add(id, 0, &service);
    for (QObject &other : others) {
        const QUuid otherId = QUuid::createUuid();
        PYXRuntime::PYXBroker::getInstance()->registerObject(otherId, 0, &other);
        handMade().add(otherId, 0, &other);
    }
}

void lookUpInBroker(benchmark::State &state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(PYXRuntime::PYXBroker::getInstance()->topObject<IService>());
}

void lookUpByHand(benchmark::State &state)
{
    for (auto _ : state) {
        QObject *const object = handMade().find(PYXRuntime::PYXBrokerInterface<IService>::id(), 0);
        benchmark::DoNotOptimize(qobject_cast<IService *>(object));
    }
}

/** What remains when the object is known. */
void castAlone(benchmark::State &state)
{
    QObject *object = handMade().find(PYXRuntime::PYXBrokerInterface<IService>::id(), 0);
    for (auto _ : state) {
        benchmark::DoNotOptimize(object);
        benchmark::DoNotOptimize(qobject_cast<IService *>(object));
    }
}

} // namespace

BENCHMARK(lookUpInBroker)->Name("broker/topObject/PYX")->Threads(1)->Threads(2)->UseRealTime();
BENCHMARK(lookUpByHand)->Name("broker/topObject/by hand")->Threads(1)->Threads(2)->UseRealTime();
BENCHMARK(castAlone)->Name("broker/topObject/floor")->Threads(1)->Threads(2)->UseRealTime();

int main(int argc, char **argv)
{
    fill();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
#include "bench_broker.moc"
