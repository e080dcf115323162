// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXBroker.h"
#include "PYXBrokerRegistration.h"
#include "PYXInterfaceIdentifiers.h"

#include <QtTest/QtTest>

#include <future>
#include <thread>
#include <vector>

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
    Q_OBJECT
public:
    QString greeting() const override { return "..."; }
};

class tst_PYXBroker : public QObject
{
    Q_OBJECT
private slots:
    void init() { m_id = QUuid::createUuid(); }
    void newestRegistrationHidesEarlierOnes();
    void slotsOfOneCachePlaceAreToldApart();
    void deadTopIsSweptAndAnswersNullOnce();
    void unregisteringRemovesEveryOccurrence();
    void unregisteringNullRemovesTheDead();
    void unregisteringWhatIsGone();
    void signalsOfUnregistering();
    void slotsMayCallBack();
    void copyOfAllObjects();
    void libraryInterfacesAreDeclared_data();
    void libraryInterfacesAreDeclared();
    void declaringInterfaces();
    void typedLookUp();
    void registrationGuard();
    void dumpOfRegistrations();
    void waitingWithEvents();
    void waitingEndsWhenTheApplicationQuits();
    void waitingInAThread();
    void transactionsNest();
    void transactionsExcludeOtherThreads();
    void anyThreadMayUseTheBroker();

private:
    PYXBroker *broker() const { return PYXBroker::getInstance(); }

    QUuid m_id;
};

void tst_PYXBroker::newestRegistrationHidesEarlierOnes()
{
    QObject a, b;
    QCOMPARE(broker()->topObject(m_id, 0), nullptr);
    broker()->registerObject(m_id, 0, &a);
    broker()->registerObject(m_id, 0, &b);
    broker()->registerObject(m_id, 7, &a);
    QCOMPARE(broker()->topObject(m_id, 0), &b);
    QCOMPARE(broker()->registeredObjects(m_id, 0), (QList<QObject *>{&b, &a}));
    QList<uint> names = broker()->registeredNames(m_id);
    std::sort(names.begin(), names.end());
    QCOMPARE(names, (QList<uint>{0, 7}));
    broker()->unregisterObject(m_id, 0, &b);
    QCOMPARE(broker()->topObject(m_id, 0), &a);
    broker()->unregisterObject(m_id, 0, &a);
    broker()->unregisterObject(m_id, 7, &a);
    QVERIFY(broker()->registeredNames(m_id).isEmpty());
    QVERIFY(broker()->registeredObjects(m_id, 0).isEmpty());
}

void tst_PYXBroker::slotsOfOneCachePlaceAreToldApart()
{
    // The remembered slot depends on the name's last bits and on parts of the identifier.
    QUuid twin = m_id;
    twin.data2 ^= 1;
    QObject a, b, c;
    broker()->registerObject(m_id, 0, &a);
    broker()->registerObject(m_id, 64, &b);
    broker()->registerObject(twin, 0, &c);
    QCOMPARE(broker()->topObject(m_id, 0), &a);
    QCOMPARE(broker()->topObject(m_id, 64), &b);
    QCOMPARE(broker()->topObject(m_id, 0), &a);
    QCOMPARE(broker()->topObject(twin, 0), &c);
    broker()->unregisterObject(twin, 0, &c);
    QCOMPARE(broker()->topObject(twin, 0), nullptr);
    broker()->unregisterObject(m_id, 64, &b);
    broker()->unregisterObject(m_id, 0, &a);
    QCOMPARE(broker()->topObject(m_id, 0), nullptr);
}

void tst_PYXBroker::deadTopIsSweptAndAnswersNullOnce()
{
    QObject a;
    auto b = std::make_unique<QObject>();
    auto deep = std::make_unique<QObject>();
    broker()->registerObject(m_id, 0, deep.get());
    broker()->registerObject(m_id, 0, &a);
    broker()->registerObject(m_id, 0, b.get());
    b.reset();
    deep.reset();
    QCOMPARE(broker()->registeredObjects(m_id, 0), QList<QObject *>{&a});
    QCOMPARE(broker()->topObject(m_id, 0), nullptr);
    QCOMPARE(broker()->topObject(m_id, 0), &a);
    broker()->unregisterObject(m_id, 0, &a);

    // With nothing left behind the dead one, the slot goes.
    auto only = std::make_unique<QObject>();
    broker()->registerObject(m_id, 3, only.get());
    only.reset();
    QCOMPARE(broker()->registeredNames(m_id), QList<uint>{3});
    QCOMPARE(broker()->topObject(m_id, 3), nullptr);
    QVERIFY(broker()->registeredNames(m_id).isEmpty());
}

void tst_PYXBroker::unregisteringRemovesEveryOccurrence()
{
    QObject a;
    broker()->registerObject(m_id, 0, &a);
    broker()->registerObject(m_id, 0, &a);
    QCOMPARE(broker()->registeredObjects(m_id, 0).size(), 2);
    broker()->unregisterObject(m_id, 0, &a);
    QVERIFY(broker()->registeredNames(m_id).isEmpty());
}

void tst_PYXBroker::unregisteringNullRemovesTheDead()
{
    QObject a;
    auto dead = std::make_unique<QObject>();
    broker()->registerObject(m_id, 0, &a);
    broker()->registerObject(m_id, 0, dead.get());
    broker()->registerObject(m_id, 0, nullptr);
    dead.reset();
    broker()->unregisterObject(m_id, 0, nullptr);
    QCOMPARE(broker()->topObject(m_id, 0), &a);
    broker()->unregisterObject(m_id, 0, &a);
}

void tst_PYXBroker::unregisteringWhatIsGone()
{
    QObject a;
    auto mortal = std::make_unique<QObject>();
    broker()->registerObject(m_id, 0, mortal.get());
    broker()->registerObject(m_id, 0, &a);
    broker()->unregisterObject(m_id, 0, mortal.get());
    connect(mortal.get(), &QObject::destroyed, this,
            [this](QObject *gone) { broker()->unregisterObject(m_id, 0, gone); });
    mortal.reset();
    QCOMPARE(broker()->registeredObjects(m_id, 0), QList<QObject *>{&a});
    broker()->unregisterObject(m_id, 0, &a);
}

void tst_PYXBroker::signalsOfUnregistering()
{
    QSignalSpy registered(broker(), &PYXBroker::si_registered);
    QSignalSpy aboutTo(broker(), &PYXBroker::si_aboutToUnregister);
    QSignalSpy unregistered(broker(), &PYXBroker::si_unregistered);
    QObject a, stranger;
    const auto emitted = [&] { return QList<int>{registered.size(), aboutTo.size(), unregistered.size()}; };

    broker()->unregisterObject(m_id, 0, &a);
    QCOMPARE(emitted(), (QList<int>{0, 0, 0}));
    broker()->registerObject(m_id, 0, &a);
    QCOMPARE(emitted(), (QList<int>{1, 0, 0}));
    broker()->unregisterObject(m_id, 1, &a); // known identifier, unknown name
    QCOMPARE(emitted(), (QList<int>{1, 1, 0}));
    broker()->unregisterObject(m_id, 0, &stranger); // known name, unknown object
    QCOMPARE(emitted(), (QList<int>{1, 2, 1}));
    broker()->unregisterObject(m_id, 0, &a);
    QCOMPARE(emitted(), (QList<int>{1, 3, 2}));
    broker()->unregisterObject(m_id, 0, &a); // the identifier went with its last registration
    QCOMPARE(emitted(), (QList<int>{1, 3, 2}));
    QCOMPARE(unregistered.last().at(0).toUuid(), m_id);
    QCOMPARE(unregistered.last().at(1).toUInt(), 0U);
    QCOMPARE(unregistered.last().at(2).value<QObject *>(), &a);
}

void tst_PYXBroker::slotsMayCallBack()
{
    QObject a, context;
    // The slot goes while its unregistering is announced.
    connect(broker(), &PYXBroker::si_aboutToUnregister, &context, [&](const QUuid &id, uint name, QObject *) {
        context.disconnect();
        broker()->disconnect(&context);
        broker()->unregisterObject(id, name, &a);
    });
    QSignalSpy unregistered(broker(), &PYXBroker::si_unregistered);
    broker()->registerObject(m_id, 0, &a);
    broker()->unregisterObject(m_id, 0, &a);
    QCOMPARE(unregistered.size(), 1);

    QVERIFY(PYXBroker::connectBrokerSignal(SIGNAL(si_registered(QUuid, uint, QObject *)), &context,
                                           SLOT(deleteLater())));
    QVERIFY(PYXBroker::disconnectBrokerSignal(SIGNAL(si_registered(QUuid, uint, QObject *)), &context,
                                              SLOT(deleteLater())));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("No such slot"));
    QVERIFY(!PYXBroker::connectBrokerSignal(SIGNAL(si_registered(QUuid, uint, QObject *)), &context,
                                            SLOT(noSuchSlot())));
}

void tst_PYXBroker::copyOfAllObjects()
{
    QObject a;
    broker()->registerObject(m_id, 5, &a);
    PYXBroker::ObjectTable table = broker()->allObjects();
    broker()->unregisterObject(m_id, 5, &a);
    QVERIFY(table.value(m_id) != nullptr && table.value(m_id)->value(5) != nullptr);
    QCOMPARE(*table.value(m_id)->value(5), QList<QPointer<QObject>>{&a});
    broker()->freeHashMemory(table);
    QVERIFY(table.isEmpty());
}

void tst_PYXBroker::libraryInterfacesAreDeclared_data()
{
    QTest::addColumn<QString>("identifier");
    QTest::addColumn<QUuid>("constant");
    const auto row = [](const char *name, const char *identifier, const QUuid &constant) {
        QTest::newRow(name) << QString(identifier) << constant;
    };
    using namespace InterfaceIdentifiers;
    row("QObject", "{00000000-0000-0000-0000-000000000000}", object());
    row("PYXRuntime::PYXIApplicationInfo", "{4CF3FCA3-26E7-44a9-8C81-D91832DCF07D}", applicationInfo());
    row("PYXRuntime::PYXIAppInternals", "{84AAAD84-7DFA-416c-92AD-D7194317C86E}", appInternals());
    row("PYXRuntime::PYXIConfigurator", "{53F44755-AF06-4d6b-8124-638012E3D166}", configurator());
    row("PYXRuntime::PYXIFileList", "{0DF98A0F-076B-4135-9629-0203704073E4}", fileList());
    row("PYXRuntime::PYXIHelpConnector", "{C620B5DB-C733-43fb-B5B2-4DB533CDAC15}", helpConnector());
    row("PYXRuntime::PYXIMenuExtension", "{7139A7EE-1AAD-4e54-9444-CB805F833F26}", menuExtension());
    row("PYXRuntime::PYXITransConnector", "{E830293E-C4C9-4ce2-8889-FF70A150F296}", transConnector());
}

void tst_PYXBroker::libraryInterfacesAreDeclared()
{
    QFETCH(QString, identifier);
    QFETCH(QUuid, constant);
    QCOMPARE(constant, QUuid(identifier));
    QCOMPARE(broker()->declaredInterface(QUuid(identifier)), QString(QTest::currentDataTag()));
}

void tst_PYXBroker::declaringInterfaces()
{
    QCOMPARE(broker()->declaredInterface(m_id), QString("<undeclared interface>"));
    broker()->declareInterface(m_id, "First");
    broker()->declareInterface(m_id, "Second");
    QCOMPARE(broker()->declaredInterface(m_id), QString("Second"));
    QCOMPARE(broker()->knownInterfaces().value(m_id), QString("Second"));
}

void tst_PYXBroker::typedLookUp()
{
    QCOMPARE(broker()->topObject<IGreeter>(), nullptr);
    Greeter greeter;
    SilentGreeter silent;
    QObject other;
    const QUuid id = PYXBrokerInterface<IGreeter>::id();
    const PYXBrokerRegistration first(id, 0, &greeter);
    QCOMPARE(broker()->topObject<IGreeter>()->greeting(), QString("hello"));
    const PYXBrokerRegistration second(id, 0, &silent);
    QCOMPARE(broker()->topObject<IGreeter>()->greeting(), QString("..."));
    const PYXBrokerRegistration third(id, 0, &other);
    QCOMPARE(broker()->topObject<IGreeter>(), nullptr);
}

void tst_PYXBroker::registrationGuard()
{
    QObject a;
    auto mortal = std::make_unique<QObject>();
    {
        PYXBrokerRegistration outer;
        QVERIFY(!outer.isRegistered());
        {
            PYXBrokerRegistration inner(m_id, 0, &a);
            outer = std::move(inner);
        }
        QCOMPARE(broker()->topObject(m_id, 0), &a);
        PYXBrokerRegistration ofMortal(m_id, 0, mortal.get());
        mortal.reset();
        ofMortal.reset(); // sweeps the dead registration
        QCOMPARE(broker()->topObject(m_id, 0), &a);
    }
    QVERIFY(broker()->registeredNames(m_id).isEmpty());
}

void tst_PYXBroker::dumpOfRegistrations()
{
    Greeter greeter;
    greeter.setObjectName("the greeter");
    auto dead = std::make_unique<QObject>();
    broker()->declareInterface(m_id, "Tests::Dump");
    broker()->registerObject(m_id, 1, dead.get());
    broker()->registerObject(m_id, 1, &greeter);
    dead.reset();
    QStringList lines;
    const auto registrations = broker()->registrations();
    for (const PYXBroker::struRegistration &entry : registrations) {
        if (entry.identifier == m_id)
            lines += QString("%1 %2 '%3' '%4' %5")
                         .arg(entry.declaredName)
                         .arg(entry.name)
                         .arg(entry.className, entry.objectName)
                         .arg(int(entry.bAlive));
    }
    QCOMPARE(lines, (QStringList{"Tests::Dump 1 'Greeter' 'the greeter' 1", "Tests::Dump 1 '' '' 0"}));
    broker()->unregisterObject(m_id, 1, &greeter);
    broker()->unregisterObject(m_id, 1, nullptr);
}

void tst_PYXBroker::waitingWithEvents()
{
    QObject a, unrelated;
    QCOMPARE(broker()->waitForObject(m_id, 0, 0), nullptr);
    QCOMPARE(broker()->waitForObject(m_id, 0, 5), nullptr);
    std::thread other;
    QTimer::singleShot(0, this, [&] {
        broker()->registerObject(m_id, 1, &unrelated);
        other = std::thread([&] { broker()->registerObject(m_id, 0, &a); });
    });
    QCOMPARE(broker()->waitForObject(m_id, 0, -7), &a);
    other.join();
    broker()->unregisterObject(m_id, 0, &a);
    broker()->unregisterObject(m_id, 1, &unrelated);
}

void tst_PYXBroker::waitingEndsWhenTheApplicationQuits()
{
    QElapsedTimer elapsed;
    elapsed.start();
    QTimer::singleShot(0, this, [&] {
        QTimer::singleShot(0, QCoreApplication::instance(), &QCoreApplication::quit);
        QCOMPARE(broker()->waitForObject(m_id, 0, 30'000), nullptr);
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
        late = broker()->waitForObject(m_id, 0, 5);
        ready.set_value();
        found = broker()->waitForObject(m_id, 1, 10'000);
    });
    broker()->registerObject(m_id, 2, &a);
    ready.get_future().wait(); // so that the thread most likely waits when the object comes
    broker()->registerObject(m_id, 1, &a);
    waiting.join();
    QCOMPARE(late, nullptr);
    QCOMPARE(found, &a);
    broker()->unregisterObject(m_id, 1, &a);
    broker()->unregisterObject(m_id, 2, &a);
}

void tst_PYXBroker::transactionsNest()
{
    PYXBroker::staticBeginTransaction();
    QVERIFY(PYXBroker::staticTryBeginTransaction(0));
    PYXBroker::staticFinishTransaction();
    PYXBroker::staticFinishTransaction();
}

void tst_PYXBroker::transactionsExcludeOtherThreads()
{
    const auto othersMayBegin = [&] {
        bool bBegun = false;
        std::thread([&] {
            bBegun = broker()->tryBeginTransaction(1);
            if (bBegun)
                broker()->finishTransaction();
        }).join();
        return bBegun;
    };
    std::unique_ptr<QMutexLocker> locker;
    broker()->beginTransaction(locker);
    QVERIFY(!othersMayBegin());
    broker()->beginTransaction(locker); // the old transaction ends, the new one goes on
    QVERIFY(!othersMayBegin());
    locker.reset();
    QVERIFY(othersMayBegin());
}

void tst_PYXBroker::anyThreadMayUseTheBroker()
{
    QObject permanent;
    broker()->registerObject(m_id, 0, &permanent);
    std::atomic<int> misses(0);
    std::vector<std::thread> threads;
    for (uint thread = 1; thread <= 4; ++thread) {
        threads.emplace_back([&, thread] {
            for (int turn = 0; turn < 500; ++turn) {
                QObject own;
                broker()->registerObject(m_id, thread, &own);
                if (broker()->topObject(m_id, thread) != &own || broker()->topObject(m_id, 0) != &permanent)
                    ++misses;
                broker()->declareInterface(m_id, QString::number(turn));
                if (turn % 2 == 0)
                    broker()->unregisterObject(m_id, thread, &own);
                else
                    own.setObjectName(broker()->declaredInterface(m_id)); // dies while registered
                if (turn % 50 == 0) {
                    PYXBroker::ObjectTable copy = broker()->allObjects();
                    broker()->freeHashMemory(copy);
                }
            }
            broker()->unregisterObject(m_id, thread, nullptr);
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    QCOMPARE(misses.load(), 0);
    QCOMPARE(broker()->registeredNames(m_id), QList<uint>{0});
    broker()->unregisterObject(m_id, 0, &permanent);
}

QTEST_GUILESS_MAIN(tst_PYXBroker)
#include "tst_PYXBroker.moc"
