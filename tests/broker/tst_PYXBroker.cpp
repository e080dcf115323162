// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXBroker.h"
#include "PYXBrokerRegistration.h"

#include <QtTest/QtTest>

#include <array>
#include <future>
#include <thread>

using namespace PYXRuntime;

class IGreeter
{
public:
    virtual ~IGreeter() = default;
    virtual QString greeting() const = 0;
};
Q_DECLARE_INTERFACE(IGreeter, "com.varnholt.Tests.IGreeter/1.0")
PYX_DECLARE_BROKER_INTERFACE(IGreeter, QUuid("{6C1B4A5E-6D0F-4C0C-9C65-0A4D7B9E2F11}"))

class Greeter : public QObject, public IGreeter
{
    Q_OBJECT
    Q_INTERFACES(IGreeter)
public:
    QString greeting() const override { return "hello"; }
};

/** Implements the interface without telling Qt. */
class SilentGreeter : public QObject, public IGreeter
{
public:
    QString greeting() const override { return "..."; }
};

class tst_PYXBroker : public QObject
{
    Q_OBJECT
private slots:
    // What a test leaves registered is in no other test's way.
    void init() { m_id = QUuid::createUuid(); }
    void newestRegistrationHidesEarlierOnes();
    void deadTopIsSweptAndAnswersNullOnce();
    void unregisteringRemovesEveryOccurrence();
    void signalsOfUnregistering();
    void interfacesHaveNames();
    void typedLookUpAndGuard();
    void copiesOfAllRegistrations();
    void waitingWithEvents();
    void waitingInAThread();
    void transactionsExcludeOtherThreads();
    void anyThreadMayUseTheBroker();

private:
    using Objects = QList<QObject *>;
    using Names = QList<uint>;

    PYXBroker *const m_broker = PYXBroker::getInstance();
    QUuid m_id;
};

void tst_PYXBroker::newestRegistrationHidesEarlierOnes()
{
    // Slots are remembered by the name's last bits and by parts of the identifier: 64 and the twin collide.
    QUuid twin = m_id;
    twin.data2 ^= 1;
    QObject a, b, c;
    QCOMPARE(m_broker->topObject(m_id, 0), nullptr);
    m_broker->registerObject(m_id, 0, &a);
    m_broker->registerObject(m_id, 0, &b);
    m_broker->registerObject(m_id, 64, &a);
    m_broker->registerObject(twin, 0, &c);
    QCOMPARE(m_broker->topObject(m_id, 0), &b);
    QCOMPARE(m_broker->topObject(m_id, 64), &a);
    QCOMPARE(m_broker->topObject(m_id, 0), &b);
    QCOMPARE(m_broker->topObject(twin, 0), &c);
    QCOMPARE(m_broker->registeredObjects(m_id, 0), (Objects{&b, &a}));
    Names names = m_broker->registeredNames(m_id);
    std::sort(names.begin(), names.end());
    QCOMPARE(names, (Names{0, 64}));
    m_broker->unregisterObject(m_id, 0, &b);
    QCOMPARE(m_broker->topObject(m_id, 0), &a);
    m_broker->unregisterObject(m_id, 0, &a);
    QCOMPARE(m_broker->registeredNames(m_id), Names{64});
    QCOMPARE(m_broker->registeredObjects(m_id, 0), Objects());
    QCOMPARE(m_broker->topObject(m_id, 0), nullptr);
}

void tst_PYXBroker::deadTopIsSweptAndAnswersNullOnce()
{
    QObject a;
    {
        QObject deep, top;
        m_broker->registerObject(m_id, 0, &deep);
        m_broker->registerObject(m_id, 0, &a);
        m_broker->registerObject(m_id, 0, &top);
        m_broker->registerObject(m_id, 3, &top);
    }
    QCOMPARE(m_broker->registeredObjects(m_id, 0), Objects{&a});
    QCOMPARE(m_broker->topObject(m_id, 0), nullptr);
    QCOMPARE(m_broker->topObject(m_id, 0), &a);
    // A slot goes with its last registration, dead ones included.
    QCOMPARE(m_broker->registeredNames(m_id).size(), 2);
    QCOMPARE(m_broker->topObject(m_id, 3), nullptr);
    m_broker->unregisterObject(m_id, 0, &a);
    QCOMPARE(m_broker->registeredNames(m_id), Names());
}

void tst_PYXBroker::unregisteringRemovesEveryOccurrence()
{
    QObject a, b;
    auto mortal = std::make_unique<QObject>();
    for (QObject *object : Objects{&b, &a, mortal.get(), &a, nullptr})
        m_broker->registerObject(m_id, 0, object);
    m_broker->unregisterObject(m_id, 0, &a);
    QCOMPARE(m_broker->registeredObjects(m_id, 0), (Objects{mortal.get(), &b}));
    // An object that is just going may be unregistered, which its death has done already.
    connect(mortal.get(), &QObject::destroyed, this,
            [this](QObject *gone) { m_broker->unregisterObject(m_id, 0, gone); });
    mortal.reset();
    QCOMPARE(m_broker->registeredObjects(m_id, 0), Objects{&b});
    m_broker->unregisterObject(m_id, 0, nullptr); // the dead ones
    QCOMPARE(m_broker->topObject(m_id, 0), &b);
}

void tst_PYXBroker::signalsOfUnregistering()
{
    QSignalSpy registered(m_broker, &PYXBroker::si_registered);
    QSignalSpy aboutTo(m_broker, &PYXBroker::si_aboutToUnregister);
    QSignalSpy unregistered(m_broker, &PYXBroker::si_unregistered);
    QObject a, stranger, context;
    const auto emitted = [&] { return QList<int>{registered.size(), aboutTo.size(), unregistered.size()}; };

    m_broker->unregisterObject(m_id, 0, &a);
    QCOMPARE(emitted(), (QList<int>{0, 0, 0}));
    m_broker->registerObject(m_id, 0, &a);
    QCOMPARE(emitted(), (QList<int>{1, 0, 0}));
    m_broker->unregisterObject(m_id, 1, &a); // known identifier, unknown name
    QCOMPARE(emitted(), (QList<int>{1, 1, 0}));
    m_broker->unregisterObject(m_id, 0, &stranger); // known name, unknown object
    QCOMPARE(emitted(), (QList<int>{1, 2, 1}));
    // Its slot goes while its unregistering is announced: the outer call finds nothing left.
    connect(m_broker, &PYXBroker::si_aboutToUnregister, &context, [&](const QUuid &id, uint name, QObject *) {
        m_broker->disconnect(&context);
        m_broker->unregisterObject(id, name, &a);
    });
    m_broker->unregisterObject(m_id, 0, &a);
    QCOMPARE(emitted(), (QList<int>{1, 4, 2}));
    QCOMPARE(unregistered.last(), (QVariantList{m_id, 0U, QVariant::fromValue<QObject *>(&a)}));

    const char *const signal = SIGNAL(si_registered(QUuid, uint, QObject *));
    QVERIFY(PYXBroker::connectBrokerSignal(signal, &context, SLOT(deleteLater())));
    QVERIFY(PYXBroker::disconnectBrokerSignal(signal, &context, SLOT(deleteLater())));
    QVERIFY(!PYXBroker::disconnectBrokerSignal(signal, &context, SLOT(deleteLater())));
}

void tst_PYXBroker::interfacesHaveNames()
{
    const std::pair<const char *, const char *> interfaces[] = {
        {"{00000000-0000-0000-0000-000000000000}", "QObject"},
        {"{4CF3FCA3-26E7-44a9-8C81-D91832DCF07D}", "PYXRuntime::PYXIApplicationInfo"},
        {"{84AAAD84-7DFA-416c-92AD-D7194317C86E}", "PYXRuntime::PYXIAppInternals"},
        {"{53F44755-AF06-4d6b-8124-638012E3D166}", "PYXRuntime::PYXIConfigurator"},
        {"{0DF98A0F-076B-4135-9629-0203704073E4}", "PYXRuntime::PYXIFileList"},
        {"{C620B5DB-C733-43fb-B5B2-4DB533CDAC15}", "PYXRuntime::PYXIHelpConnector"},
        {"{7139A7EE-1AAD-4e54-9444-CB805F833F26}", "PYXRuntime::PYXIMenuExtension"},
        {"{E830293E-C4C9-4ce2-8889-FF70A150F296}", "PYXRuntime::PYXITransConnector"},
    };
    for (const auto &[identifier, name] : interfaces)
        QCOMPARE(m_broker->declaredInterface(QUuid(identifier)), QString(name));
    QCOMPARE(m_broker->declaredInterface(m_id), QString("<undeclared interface>"));
    m_broker->declareInterface(m_id, "First");
    QChar literal[] = {'P', 'l', 'u', 'g'}; // goes when its plug-in is unloaded
    m_broker->declareInterface(m_id, QString::fromRawData(literal, 4));
    literal[0] = QChar('?');
    QCOMPARE(m_broker->declaredInterface(m_id), QString("Plug"));
}

void tst_PYXBroker::typedLookUpAndGuard()
{
    QCOMPARE(m_broker->topObject<IGreeter>(), nullptr);
    Greeter greeter;
    SilentGreeter silent;
    const QUuid id = PYXBrokerInterface<IGreeter>::id();
    const PYXBrokerRegistration first(id, 0, &greeter);
    QCOMPARE(m_broker->topObject<IGreeter>()->greeting(), QString("hello"));
    const PYXBrokerRegistration second(id, 0, &silent);
    QCOMPARE(m_broker->topObject<IGreeter>()->greeting(), QString("..."));
    const PYXBrokerRegistration third(id, 0, this);
    QCOMPARE(m_broker->topObject<IGreeter>(), nullptr);

    QObject a;
    auto mortal = std::make_unique<QObject>();
    {
        PYXBrokerRegistration outer;
        QVERIFY(!outer.isRegistered());
        {
            PYXBrokerRegistration inner(m_id, 0, &a);
            outer = std::move(inner);
        }
        QCOMPARE(m_broker->topObject(m_id, 0), &a);
        PYXBrokerRegistration ofMortal(m_id, 0, mortal.get());
        mortal.reset();
        ofMortal.reset(); // sweeps the dead registration
        QCOMPARE(m_broker->topObject(m_id, 0), &a);
    }
    QVERIFY(m_broker->registeredNames(m_id).isEmpty());
}

void tst_PYXBroker::copiesOfAllRegistrations()
{
    Greeter greeter;
    greeter.setObjectName("the greeter");
    m_broker->declareInterface(m_id, "Tests::Dump");
    m_broker->registerObject(m_id, 1, std::make_unique<QObject>().get()); // dies at once
    m_broker->registerObject(m_id, 1, &greeter);
    QStringList lines;
    for (const PYXBroker::struRegistration &entry : m_broker->registrations()) {
        if (entry.identifier == m_id)
            lines += QString("%1 %2 '%3' '%4' %5")
                         .arg(entry.declaredName, QString::number(entry.name), entry.className,
                              entry.objectName, entry.bAlive ? "alive" : "dead");
    }
    QCOMPARE(lines, (QStringList{"Tests::Dump 1 'Greeter' 'the greeter' alive", "Tests::Dump 1 '' '' dead"}));
    PYXBroker::ObjectTable table = m_broker->allObjects();
    m_broker->unregisterObject(m_id, 1, &greeter);
    QVERIFY(table.value(m_id) != nullptr && table.value(m_id)->value(1) != nullptr);
    QCOMPARE(*table.value(m_id)->value(1), (QList<QPointer<QObject>>{&greeter, nullptr}));
    m_broker->freeHashMemory(table);
    QVERIFY(table.isEmpty());
}

void tst_PYXBroker::waitingWithEvents()
{
    QObject a, unrelated;
    QCOMPARE(m_broker->waitForObject(m_id, 0, 0), nullptr);
    QCOMPARE(m_broker->waitForObject(m_id, 0, 5), nullptr);
    std::thread other;
    QTimer::singleShot(0, this, [&] {
        m_broker->registerObject(m_id, 1, &unrelated);
        other = std::thread([&] { m_broker->registerObject(m_id, 0, &a); });
    });
    QCOMPARE(m_broker->waitForObject(m_id, 0, -7), &a);
    other.join();
    // The end of the application ends the wait.
    QElapsedTimer elapsed;
    elapsed.start();
    QTimer::singleShot(0, this, [&] {
        QTimer::singleShot(0, QCoreApplication::instance(), &QCoreApplication::quit);
        QCOMPARE(m_broker->waitForObject(m_id, 2, 30'000), nullptr);
    });
    QCoreApplication::exec();
    QVERIFY(elapsed.elapsed() < 15'000);
}

void tst_PYXBroker::waitingInAThread()
{
    QObject a;
    QObject *late = &a;
    QObject *found = nullptr;
    std::promise<void> ready;
    std::thread waiting([&] {
        late = m_broker->waitForObject(m_id, 0, 5);
        ready.set_value();
        found = m_broker->waitForObject(m_id, 1, 10'000);
    });
    m_broker->registerObject(m_id, 2, &a);
    ready.get_future().wait(); // so that the thread most likely waits when the object comes
    m_broker->registerObject(m_id, 1, &a);
    waiting.join();
    QCOMPARE(late, nullptr);
    QCOMPARE(found, &a);
}

void tst_PYXBroker::transactionsExcludeOtherThreads()
{
    const auto othersMayBegin = [&] {
        bool bBegun = false;
        std::thread([&] {
            bBegun = m_broker->tryBeginTransaction(1);
            if (bBegun)
                m_broker->finishTransaction();
        }).join();
        return bBegun;
    };
    std::unique_ptr<QMutexLocker> locker;
    m_broker->beginTransaction(locker);
    m_broker->beginTransaction(locker); // the old transaction ends, the new one goes on
    QVERIFY(!othersMayBegin());
    QVERIFY(PYXBroker::staticTryBeginTransaction(0));
    locker.reset();
    QVERIFY(!othersMayBegin()); // the nested one is left
    PYXBroker::staticFinishTransaction();
    QVERIFY(othersMayBegin());
}

void tst_PYXBroker::anyThreadMayUseTheBroker()
{
    QObject permanent;
    m_broker->registerObject(m_id, 0, &permanent);
    std::atomic<int> misses(0);
    const auto use = [&](uint name) {
        for (int turn = 0; turn < 500; ++turn) {
            QObject own;
            m_broker->registerObject(m_id, name, &own);
            if (m_broker->topObject(m_id, name) != &own || m_broker->topObject(m_id, 0) != &permanent)
                ++misses;
            m_broker->declareInterface(m_id, QString::number(turn));
            if (turn % 2 == 0)
                m_broker->unregisterObject(m_id, name, &own);
            else
                own.setObjectName(m_broker->declaredInterface(m_id)); // dies while registered
            if (turn % 50 == 0) {
                PYXBroker::ObjectTable copy = m_broker->allObjects();
                m_broker->freeHashMemory(copy);
            }
        }
        m_broker->unregisterObject(m_id, name, nullptr);
    };
    std::array<std::thread, 4> threads;
    for (uint i = 0; i < threads.size(); ++i)
        threads[i] = std::thread(use, i + 1);
    for (std::thread &thread : threads)
        thread.join();
    QCOMPARE(misses.load(), 0);
    QCOMPARE(m_broker->registeredNames(m_id), Names{0});
}

QTEST_GUILESS_MAIN(tst_PYXBroker)
#include "tst_PYXBroker.moc"
