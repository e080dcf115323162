// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXEncryptionManager.h"
#include "RecordingTracer.h"

#include <QtTest/QtTest>

using namespace PYXRuntime;
using Interfaces::IPYXEncryptionProvider;

namespace {

/** Found by a dynamic cast only; what it does shows in the results. */
class PlainProvider : public QObject, public IPYXEncryptionProvider
{
public:
    explicit PlainProvider(const QString &id)
        : m_id(id)
    {}
    QString encryptionProviderId() const override { return m_id; }
    QString encryptionProviderName() const override { return "Name of " + m_id; }
    QByteArray encrypt(const QString &plain) override { return "text " + plain.toUtf8(); }
    QByteArray encrypt(const QByteArray &plain) override { return "bytes " + plain; }
    QByteArray decrypt(const QByteArray &cipher) override { return cipher.mid(6); }
    QString decryptToQString(const QByteArray &cipher) override { return cipher.mid(5); }

private:
    QString m_id;
};

/** Found by its interface id. */
class DeclaredProvider : public PlainProvider
{
    Q_OBJECT
    Q_INTERFACES(Interfaces::IPYXEncryptionProvider)
public:
    using PlainProvider::PlainProvider;
};

} // namespace

class tst_PYXEncryptionManager : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup() { PYXEncryptionManager::destroyInstance(); }
    void fallsBackOnBuiltinProviders();
    void registersAndSets();
    void forgetsProvidersThatGo();
    void listenersMayDeleteAnything();
    void tracesWhoIsLeft();

private:
    PYXEncryptionManager *m_manager = nullptr;
    int m_defaultChanges, m_setChanges, m_registrationChanges;
};

void tst_PYXEncryptionManager::init()
{
    m_manager = PYXEncryptionManager::getInstance();
    m_defaultChanges = m_setChanges = m_registrationChanges = 0;
    connect(m_manager, &PYXEncryptionManager::si_defaultEncryptionProviderChanged,
            [this] { ++m_defaultChanges; });
    connect(m_manager, &PYXEncryptionManager::si_encryptionProviderChanged, [this] { ++m_setChanges; });
    connect(m_manager, &PYXEncryptionManager::si_registeredEncryptionProvidersChanged,
            [this] { ++m_registrationChanges; });
}

void tst_PYXEncryptionManager::fallsBackOnBuiltinProviders()
{
    QCOMPARE(m_manager->encryptionProvider(), nullptr);
    QCOMPARE(PYXEncryptionManager::staticEncryptionProviderId(), "Simple");
    QCOMPARE(m_manager->encryptionProviderName(), "Simple Encryption Provider");
    m_manager->setSimpleEncryptionProviderAsDefault();
    QCOMPARE(m_defaultChanges, 0);
    PYXEncryptionManager::staticSetNullEncryptionProviderAsDefault();
    m_manager->setNullEncryptionProviderAsDefault();
    QCOMPARE(m_defaultChanges, 1);
    QCOMPARE(m_manager->encryptionProviderName(), "Null Encryption Provider");
    const QByteArray plain = QByteArray("abc");
    const QByteArray stored = m_manager->encrypt(plain);
    QVERIFY(stored == plain && stored.constData() != plain.constData());
    QCOMPARE(m_manager->decryptToQString("a\xC3\xA4"), QString::fromUtf8("aä"));
    QCOMPARE(m_manager->builtinEncryptionProviderIds(), QStringList({"Null", "Simple"}));

    m_manager->setSimpleEncryptionProviderAsDefault();
    QVERIFY(m_manager->registerAndSetEncryptionProvider(m_manager->builtinEncryptionProviders().first()));
    delete m_manager->builtinEncryptionProviders().takeFirst();
    QCOMPARE(m_setChanges, 2);
    QCOMPARE(m_manager->encryptionProviderId(), "Null");
    delete m_manager->builtinEncryptionProviders().takeFirst();
    QCOMPARE(m_manager->knownEncryptionProviders(), QList<QObject *>());
    QCOMPARE(m_manager->encrypt(QString("abc")) + m_manager->encryptionProviderName(), "");
}

void tst_PYXEncryptionManager::registersAndSets()
{
    PlainProvider zeta("Zeta");
    DeclaredProvider simple("Simple");
    QObject stranger;
    for (QObject *const none :
         {static_cast<QObject *>(nullptr), &stranger, static_cast<QObject *>(m_manager)}) {
        QVERIFY(!m_manager->registerAndSetEncryptionProvider(none));
        m_manager->unregisterEncryptionProvider(none);
    }
    const QStringList traces = tracesOf([&] { QVERIFY(!m_manager->setEncryptionProvider(&zeta)); });
    QCOMPARE(traces.join('\n').section('|', 0, 2),
             "Debug|PYXEncryptionManager::setEncryptionProvider: the set encryption provider should already "
             "be registered|source\\PYXEncryptionManager");
    QVERIFY(m_manager->registerEncryptionProvider(&zeta) && m_manager->registerEncryptionProvider(&zeta));
    QVERIFY(m_registrationChanges == 1 && m_setChanges == 0);
    // A registered provider hides a built-in one.
    QVERIFY(m_manager->registerEncryptionProvider(&simple));
    QCOMPARE(m_manager->getEncryptionProviderForId("Simple"), &simple);
    QVERIFY(!PYXEncryptionManager::staticHasEncryptionProviderForId("simple"));
    QCOMPARE(m_manager->registeredEncryptionProviders(), QList<QObject *>({&zeta, &simple}));
    QCOMPARE(m_manager->knownEncryptionProviderIds(), QStringList({"Null", "Simple", "Simple", "Zeta"}));

    QVERIFY(m_manager->setEncryptionProvider(&zeta) && m_manager->setEncryptionProvider(&zeta));
    QCOMPARE(m_setChanges, 2);
    QCOMPARE(m_manager->encrypt(QString("abc")) + m_manager->encrypt(QByteArray("abc")), "text abcbytes abc");
    QCOMPARE(m_manager->decryptToQString("text abc") + m_manager->decrypt("bytes abc"), "abcabc");
    m_manager->unregisterEncryptionProvider(&zeta);
    m_manager->unregisterEncryptionProvider(&zeta);
    QCOMPARE(m_registrationChanges, 3);
    QCOMPARE(m_manager->effectiveEncryptionProvider(), &zeta);
    m_manager->unsetEncryptionProvider();
    m_manager->unsetEncryptionProvider();
    QCOMPARE(m_setChanges, 3);
    QCOMPARE(m_manager->effectiveEncryptionProvider(), m_manager->simpleEncryptionProvider());
}

void tst_PYXEncryptionManager::forgetsProvidersThatGo()
{
    const auto made = [this] {
        auto provider = std::make_unique<DeclaredProvider>("Own");
        m_manager->registerAndSetEncryptionProvider(provider.get());
        return provider;
    };
    auto replaced = made();
    auto set = made();
    replaced.reset(); // no news any more
    QVERIFY(m_setChanges == 2 && m_registrationChanges == 2);
    QCOMPARE(m_manager->registeredEncryptionProviders(), QList<QObject *>({set.get()}));
    m_manager->setEncryptionProvider(set.get());
    QString idDuringSignal;
    connect(m_manager, &PYXEncryptionManager::si_encryptionProviderChanged,
            [&] { idDuringSignal = m_manager->encryptionProviderId(); });
    set.reset();
    QCOMPARE(idDuringSignal, "Simple");
    QCOMPARE(m_setChanges, 4); // connected once, although it was set twice
    auto unregistered = made();
    m_manager->unregisterEncryptionProvider(unregistered.get());
    unregistered.reset();
    QVERIFY(m_setChanges == 5 && m_registrationChanges == 4);
    QCOMPARE(m_manager->encryptionProviderId(), "Simple");
    QCOMPARE(m_manager->knownEncryptionProviders(), m_manager->builtinEncryptionProviders());
}

void tst_PYXEncryptionManager::listenersMayDeleteAnything()
{
    auto *provider = new DeclaredProvider("Own");
    connect(m_manager, &PYXEncryptionManager::si_registeredEncryptionProvidersChanged,
            [&] { delete std::exchange(provider, nullptr); });
    QVERIFY(!m_manager->registerAndSetEncryptionProvider(provider));
    QCOMPARE(m_manager->registeredEncryptionProviders(), QList<QObject *>());
    DeclaredProvider other("Other");
    connect(m_manager, &PYXEncryptionManager::si_registeredEncryptionProvidersChanged,
            [] { PYXEncryptionManager::destroyInstance(); });
    QVERIFY(!m_manager->registerAndSetEncryptionProvider(&other));

    provider = new DeclaredProvider("Own");
    PYXEncryptionManager::staticRegisterEncryptionProvider(&other);
    PYXEncryptionManager::staticRegisterEncryptionProvider(provider);
    const ActingTracer tracer([&] { delete provider; });
    PYXEncryptionManager::destroyInstance();
}

void tst_PYXEncryptionManager::tracesWhoIsLeft()
{
    DeclaredProvider provider("Left %1");
    m_manager->registerAndSetEncryptionProvider(&provider);
    const QStringList traces = tracesOf([] { PYXEncryptionManager::destroyInstance(); });
    QCOMPARE(traces.size(), 2);
    QCOMPARE(traces[0].section('|', 0, 2),
             "Debug|~PYXEncryptionManager: not all registered encryption providers have been "
             "unregistered|source\\PYXEncryptionManager");
    QCOMPARE(traces[1].section('|', 0, 1), "Debug|  encryption Provider Id: Left %1");
    QVERIFY(!PYXEncryptionManager::hasInstance());
    QCOMPARE(PYXEncryptionManager::staticEncryptionProviderId(), "Simple");
}

QTEST_GUILESS_MAIN(tst_PYXEncryptionManager)
#include "tst_PYXEncryptionManager.moc"
