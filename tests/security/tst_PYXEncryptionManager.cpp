// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "NullEncryptionProvider.h"
#include "PYXEncryptionManager.h"
#include "RecordingTracer.h"
#include "SimpleEncryptionProvider.h"

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
    void beginsWithSimple();
    void registers();
    void sets();
    void forgetsDestroyedProviders();
    void replacesTheSetProvider();
    void registeredProvidersHideBuiltinOnes();
    void outlivesItsBuiltinProviders();
    void tracesWhoIsLeft();

private:
    PYXEncryptionManager *m_manager = nullptr;
    std::unique_ptr<QSignalSpy> m_defaultChanges, m_setChanges, m_registrationChanges;
};

void tst_PYXEncryptionManager::init()
{
    m_manager = PYXEncryptionManager::getInstance();
    m_defaultChanges =
        std::make_unique<QSignalSpy>(m_manager, &PYXEncryptionManager::si_defaultEncryptionProviderChanged);
    m_setChanges =
        std::make_unique<QSignalSpy>(m_manager, &PYXEncryptionManager::si_encryptionProviderChanged);
    m_registrationChanges = std::make_unique<QSignalSpy>(
        m_manager, &PYXEncryptionManager::si_registeredEncryptionProvidersChanged);
}

void tst_PYXEncryptionManager::beginsWithSimple()
{
    QCOMPARE(m_manager->encryptionProvider(), nullptr);
    QCOMPARE(m_manager->effectiveEncryptionProvider(), m_manager->simpleEncryptionProvider());
    QCOMPARE(PYXEncryptionManager::staticEncryptionProviderId(), "Simple");
    QCOMPARE(m_manager->encryptionProviderName(), "Simple Encryption Provider");
    QCOMPARE(PYXEncryptionManager::staticEncrypt(QString("abc")),
             SimpleEncryptionProvider::staticEncrypt(QString("abc")));

    m_manager->setSimpleEncryptionProviderAsDefault();
    QCOMPARE(m_defaultChanges->size(), 0);
    PYXEncryptionManager::staticSetNullEncryptionProviderAsDefault();
    m_manager->setNullEncryptionProviderAsDefault();
    QCOMPARE(m_defaultChanges->size(), 1);
    QCOMPARE(m_manager->encryptionProviderName(), "Null Encryption Provider");
    const QByteArray plain = QByteArray("abc");
    QByteArray stored = m_manager->encrypt(plain);
    QCOMPARE(stored, plain);
    QVERIFY(stored.constData() != plain.constData());
    QCOMPARE(m_manager->decryptToQString("a\xC3\xA4"), QString::fromUtf8("aä"));
    QCOMPARE(m_manager->builtinEncryptionProviderIds(), QStringList({"Null", "Simple"}));
}

void tst_PYXEncryptionManager::registers()
{
    PlainProvider zeta("Zeta");
    DeclaredProvider alpha("alpha");
    QObject stranger;
    for (QObject *const none :
         {static_cast<QObject *>(nullptr), &stranger, static_cast<QObject *>(m_manager)}) {
        QVERIFY(!m_manager->registerAndSetEncryptionProvider(none));
        QVERIFY(!m_manager->setEncryptionProvider(none));
        m_manager->unregisterEncryptionProvider(none);
    }
    QVERIFY(PYXEncryptionManager::staticRegisterEncryptionProvider(&zeta));
    QVERIFY(m_manager->registerEncryptionProvider(&zeta));
    QCOMPARE(m_registrationChanges->size(), 1);
    QVERIFY(m_manager->registerEncryptionProvider(&alpha));
    QCOMPARE(m_manager->registeredEncryptionProviders(), QList<QObject *>({&zeta, &alpha}));
    QCOMPARE(m_manager->registeredEncryptionProviderIds(), QStringList({"Zeta", "alpha"}));
    QCOMPARE(m_manager->knownEncryptionProviderIds(), QStringList({"Null", "Simple", "Zeta", "alpha"}));
    m_manager->unregisterEncryptionProvider(&zeta);
    m_manager->unregisterEncryptionProvider(&zeta);
    QCOMPARE(m_registrationChanges->size(), 3);
    QCOMPARE(m_manager->registeredEncryptionProviders(), QList<QObject *>({&alpha}));
    m_manager->unregisterEncryptionProvider(&alpha);
}

void tst_PYXEncryptionManager::sets()
{
    DeclaredProvider provider("Own");
    bool bSet = true;
    const QStringList traces = tracesOf([&] { bSet = m_manager->setEncryptionProvider(&provider); });
    QVERIFY(!bSet);
    QCOMPARE(traces.join('\n').section('|', 0, 2),
             "Debug|PYXEncryptionManager::setEncryptionProvider: the set encryption provider should already "
             "be registered|source\\PYXEncryptionManager");
    QCOMPARE(m_setChanges->size(), 0);

    QVERIFY(m_manager->registerAndSetEncryptionProvider(&provider));
    QVERIFY(m_manager->setEncryptionProvider(&provider));
    QCOMPARE(m_setChanges->size(), 2);
    QCOMPARE(m_manager->effectiveEncryptionProvider(), &provider);
    QCOMPARE(m_manager->encrypt(QString("abc")), "text abc");
    QCOMPARE(m_manager->encrypt(QByteArray("abc")), "bytes abc");
    QCOMPARE(m_manager->decrypt("bytes abc"), "abc");
    QCOMPARE(m_manager->decryptToQString("text abc"), "abc");

    m_manager->unregisterEncryptionProvider(&provider);
    QCOMPARE(m_manager->encryptionProvider(), &provider);
    m_manager->unsetEncryptionProvider();
    m_manager->unsetEncryptionProvider();
    QCOMPARE(m_setChanges->size(), 3);
    QCOMPARE(m_manager->effectiveEncryptionProvider(), m_manager->simpleEncryptionProvider());
}

void tst_PYXEncryptionManager::forgetsDestroyedProviders()
{
    auto set = std::make_unique<DeclaredProvider>("Set");
    auto registered = std::make_unique<DeclaredProvider>("Registered");
    m_manager->registerEncryptionProvider(registered.get());
    m_manager->registerAndSetEncryptionProvider(set.get());
    m_manager->setEncryptionProvider(set.get());
    QString idDuringSignal;
    connect(m_manager, &PYXEncryptionManager::si_encryptionProviderChanged, this,
            [&] { idDuringSignal = m_manager->encryptionProviderId(); });
    set.reset();
    QCOMPARE(idDuringSignal, "Simple");
    QCOMPARE(m_setChanges->size(), 3); // connected once, although it was set twice
    registered.reset();
    QCOMPARE(m_registrationChanges->size(), 2);
    QCOMPARE(m_manager->knownEncryptionProviders(), m_manager->builtinEncryptionProviders());
}

void tst_PYXEncryptionManager::replacesTheSetProvider()
{
    DeclaredProvider second("Second");
    {
        DeclaredProvider first("First");
        m_manager->registerAndSetEncryptionProvider(&first);
        m_manager->registerAndSetEncryptionProvider(&second);
    }
    QCOMPARE(m_setChanges->size(), 2); // the first one's end is no news any more
    QCOMPARE(m_manager->registeredEncryptionProviders(), QList<QObject *>({&second}));
    // Whoever is only set leaves without a word, too.
    auto third = std::make_unique<DeclaredProvider>("Third");
    m_manager->registerAndSetEncryptionProvider(third.get());
    m_manager->unregisterEncryptionProvider(third.get());
    third.reset();
    QCOMPARE(m_setChanges->size(), 3);
    QCOMPARE(m_manager->encryptionProviderId(), "Simple");
    m_manager->unregisterEncryptionProvider(&second);
}

void tst_PYXEncryptionManager::registeredProvidersHideBuiltinOnes()
{
    DeclaredProvider own("Simple");
    m_manager->registerEncryptionProvider(&own);
    QCOMPARE(m_manager->getEncryptionProviderForId("Simple"), &own);
    QCOMPARE(m_manager->knownEncryptionProviderIds(), QStringList({"Null", "Simple", "Simple"}));
    QCOMPARE(m_manager->getEncryptionProviderForId("Null"), m_manager->nullEncryptionProvider());
    QVERIFY(!PYXEncryptionManager::staticHasEncryptionProviderForId("simple"));
    m_manager->unregisterEncryptionProvider(&own);
    QCOMPARE(m_manager->getEncryptionProviderForId("Simple"), m_manager->simpleEncryptionProvider());
}

void tst_PYXEncryptionManager::outlivesItsBuiltinProviders()
{
    QVERIFY(m_manager->registerAndSetEncryptionProvider(m_manager->builtinEncryptionProviders().first()));
    delete m_manager->builtinEncryptionProviders().takeFirst();
    QCOMPARE(m_setChanges->size(), 2);
    QCOMPARE(m_manager->encryptionProviderId(), "Null");
    delete m_manager->builtinEncryptionProviders().takeFirst();
    QCOMPARE(m_manager->knownEncryptionProviders(), QList<QObject *>());
    QCOMPARE(m_manager->encrypt(QString("abc")), QByteArray());
    QCOMPARE(m_manager->encryptionProviderName(), QString());
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
