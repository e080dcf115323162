// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "FileContents.h"
#include "NullEncryptionProvider.h"
#include "PYXEncryptionManager.h"
#include "PYXNetworkProxyFactory.h"
#include "PYXProxyManager.h"
#include "PYXRuntime.h"
#include "PYXRuntimeCenter.h"
#include "PYXSettings.h"
#include "PYXSettingsTransfer.h"
#include "RecordingTracer.h"
#include "SettingsHome.h"

#include <QtTest/QtTest>

#include <atomic>
#include <thread>

using namespace PYXRuntime;

namespace {

const QString Password = "correct horse battery staple";

ProxyConfiguration full()
{
    return {"proxy.example", 3128, "user", Password};
}

/** What Qt is told to use for a host. */
QNetworkProxy proxyInForce()
{
    return QNetworkProxyFactory::proxyForQuery(QNetworkProxyQuery("station.example", 80)).value(0);
}

void store(Interfaces::IPYXEncryptionProvider *provider)
{
    PYXSettings settings(PYXSettings::eUserApplicationSettings);
    full().save(&settings, PYXProxyManager::settingsKey(), provider);
}

class VaultProvider : public NullEncryptionProvider
{
public:
    QString encryptionProviderId() const override { return "Vault"; }
    QString decryptToQString(const QByteArray &cipher) override
    {
        if (const auto once = std::exchange(whileAsking, {}))
            once();
        return NullEncryptionProvider::decryptToQString(cipher);
    }
    std::function<void()> whileAsking;
};

} // namespace

class Listener : public QObject
{
    Q_OBJECT
public slots:
    void sl_changed(const ::PYXRuntime::ProxyConfiguration &a_configuration)
    {
        hosts += a_configuration.proxyHost();
        passwords += a_configuration.proxyPassword();
        if (const auto once = std::exchange(action, {}))
            once();
    }
    void sl_changed() { hosts += "?"; }

public:
    QStringList hosts;
    QString passwords;
    std::function<void()> action;
};

class tst_PYXProxyManager : public QObject
{
    Q_OBJECT
private slots:
    void init() { m_home = std::make_unique<SettingsHome>(); }
    void cleanup();
    void appliesWhatIsStored();
    void tellsListeners();
    void bringsItsFactoryBack();
    void tellsAllButThePassword();
    void changesDuringQueries();

private:
    std::unique_ptr<SettingsHome> m_home;
};

void tst_PYXProxyManager::cleanup()
{
    while (initializitationCount_PYXRuntime() > 0)
        uninitialize_PYXRuntime();
    PYXProxyManager::destroyInstance();
    PYXEncryptionManager::destroyInstance();
    QNetworkProxyFactory::setApplicationProxyFactory(nullptr);
}

void tst_PYXProxyManager::appliesWhatIsStored()
{
    for (int round = 0; round < 2; ++round) {
        initialize_PYXRuntime(ekInitialize_NoFonts);
        QVERIFY(PYXProxyManager::hasInstance());
        QCOMPARE(proxyInForce().type(), QNetworkProxy::NoProxy);
        uninitialize_PYXRuntime();
        QVERIFY(!PYXProxyManager::hasInstance());
    }
    auto vault = std::make_unique<VaultProvider>();
    store(vault.get());
    PYXProxyManager::makeSureInitialized();
    QCOMPARE(proxyInForce().hostName() + proxyInForce().password(), "proxy.example"); // Simple cannot read it
    PYXEncryptionManager::staticRegisterAndSetEncryptionProvider(vault.get());
    QCOMPARE(proxyInForce().password(), Password);
    const ProxyConfiguration &current = PYXProxyManager::currentProxyConfigurationWithoutPassword();
    QCOMPARE(current.proxyUsername() + current.proxyPassword(), "user");
    vault->whileAsking = [] {
        PYXProxyManager::applyProxyConfiguration(ProxyConfiguration("newer.example", 1));
    };
    PYXEncryptionManager::staticSetEncryptionProvider(vault.get());
    QCOMPARE(proxyInForce().hostName(), "newer.example");
    vault->whileAsking = [] { PYXProxyManager::destroyInstance(); };
    PYXEncryptionManager::staticSetEncryptionProvider(vault.get());
    QVERIFY(!PYXProxyManager::hasInstance());
    PYXProxyManager::makeSureInitialized();
    // Qt keeps the factory of a manager that goes; the next manager brings another one.
    PYXProxyManager::destroyInstance();
    vault.reset();
    QCOMPARE(proxyInForce().password(), Password);
    PYXProxyManager::applyProxyConfiguration(PYXProxyManager::currentProxyConfigurationWithoutPassword());
    QCOMPARE(proxyInForce().user() + proxyInForce().password(), "user");
}

void tst_PYXProxyManager::tellsListeners()
{
    Listener direct;
    Listener queued;
    const char *const member = SLOT(sl_changed(const ::PYXRuntime::ProxyConfiguration &));
    direct.action = [] { PYXProxyManager::applyProxyConfiguration(ProxyConfiguration("other.example", 1)); };
    PYXProxyManager::registerChangeListener(&direct, member, Qt::DirectConnection);
    PYXProxyManager::registerChangeListener(&direct, SLOT(sl_changed()), Qt::DirectConnection);
    PYXProxyManager::registerChangeListener(&queued, member, Qt::QueuedConnection);
    PYXProxyManager::applyProxyConfiguration(full());
    QCOMPARE(direct.hosts, QStringList({"proxy.example", "other.example", "?", "?"}));
    QCOMPARE(queued.hosts, QStringList());
    QTRY_COMPARE(queued.hosts, QStringList({"other.example", "proxy.example"}));
    QCOMPARE(direct.passwords + queued.passwords, QString());
    QCOMPARE(proxyInForce().hostName(), "other.example");
    direct.action = [] { PYXProxyManager::destroyInstance(); };
    PYXProxyManager::applyProxyConfiguration(full());
    QVERIFY(!PYXProxyManager::hasInstance());
    QCOMPARE(proxyInForce().password(), Password);
}

void tst_PYXProxyManager::bringsItsFactoryBack()
{
    store(nullptr);
    PYXProxyManager::makeSureInitialized();
    // While the library is not initialised, whoever takes the factory away is left alone.
    QStringList traces = tracesOf([] {
        QNetworkProxyFactory::setApplicationProxyFactory(nullptr);
        QCoreApplication::processEvents();
    });
    QCOMPARE(traces.join(' ').section('|', 0, 2),
             "Debug|PYXRuntime::PYXProxyManager::_sl_proxyFactory_destroyed|source\\PYXProxyManager");
    QCOMPARE(proxyInForce().type(), QNetworkProxy::NoProxy);

    initialize_PYXRuntime(ekInitialize_NoFonts);
    PYXProxyManager::applyProxyConfiguration(full());
    QNetworkProxyFactory::setApplicationProxyFactory(nullptr);
    QTRY_COMPARE(proxyInForce().hostName(), "proxy.example");
    // A configuration that came in between is not replaced by the stored one.
    QNetworkProxyFactory::setApplicationProxyFactory(nullptr);
    PYXProxyManager::applyProxyConfiguration(ProxyConfiguration("other.example", 1));
    QCoreApplication::processEvents();
    QCOMPARE(proxyInForce().hostName(), "other.example");
}

/** Neither the settings file, nor an export, nor any trace shows it, in whichever common form. */
void tst_PYXProxyManager::tellsAllButThePassword()
{
    PYXProxyManager::makeSureInitialized();
    PYXRuntimeCenter::setEnabled_pyxDebugToTrace(true);
    QVERIFY(tracesOf([] { PYXProxyManager::applyProxyConfiguration(full()); }).isEmpty());
    PYXRuntimeCenter::setEnabled_pyxDebug(true);
    const QString traces = tracesOf([this] {
                               PYXProxyManager::applyProxyConfiguration(full());
                               store(nullptr);
                               initialize_PYXRuntime(ekInitialize_NoFonts);
                               PYXEncryptionManager::getInstance()->si_encryptionProviderChanged();
                               PYXSettings settings(PYXSettings::eUserApplicationSettings);
                               PYXSettingsTransfer::exportTo(m_home->path("export.PYXXml"), settings);
                           }).join('\n');
    PYXRuntimeCenter::setEnabled_pyxDebug(false);
    PYXRuntimeCenter::setEnabled_pyxDebugToTrace(false);
    int from = 0;
    for (const char *line :
         {"Applying Proxy Configuration", "Proxy Type: ekProxy_ManualConfiguration",
          "Proxy Variant: ekProxyVariant_HTTP", "Proxy Host: proxy.example", "Proxy Port: 3128",
          "Proxy Auth Required: yes", "Proxy User: user", "Proxy Password supplied: yes"}) {
        from = traces.indexOf(QString("|%1|PYXProxy|").arg(line), from);
        QVERIFY2(from >= 0, line);
    }
    QByteArray seen = traces.toUtf8();
    QVERIFY(m_home->files().size() >= 2);
    for (const QString &name : m_home->files())
        seen += get(m_home->path(name));
    QCOMPARE(seen.count("ProxyUsername"), 2); // begin and end: not in the export
    const QByteArray utf16(reinterpret_cast<const char *>(Password.utf16()), 2 * Password.size());
    for (const QByteArray &form : {Password.toUtf8(), utf16, Password.toUtf8().toBase64(),
                                   Password.toUtf8().toHex(), Password.toUtf8().toPercentEncoding()})
        QVERIFY2(!seen.contains(form), form.constData());
}

void tst_PYXProxyManager::changesDuringQueries()
{
    PYXNetworkProxyFactory factory;
    const ProxyConfiguration configurations[] = {full(), ProxyConfiguration("b", 2, "b", "b")};
    std::atomic<bool> bDone(false);
    std::atomic<int> answers(0);
    std::atomic<int> mixed(0);
    const auto query = [&] {
        const QNetworkProxyQuery question("station.example", 80);
        while (!bDone || answers < 100) {
            const QNetworkProxy proxy = factory.queryProxy(question).value(0);
            const bool bFirst = proxy.hostName() == "proxy.example" && proxy.password() == Password;
            const bool bSecond = proxy.hostName() == "b" && proxy.password() == "b";
            if (!bFirst && !bSecond && proxy.type() != QNetworkProxy::NoProxy)
                ++mixed;
            ++answers;
        }
    };
    std::thread first(query);
    std::thread second(query);
    for (int change = 0; change < 500; ++change)
        factory.setCurrentProxyConfiguration(configurations[change % 2]);
    bDone = true;
    first.join();
    second.join();
    QCOMPARE(mixed.load(), 0);
}

QTEST_GUILESS_MAIN(tst_PYXProxyManager)
#include "tst_PYXProxyManager.moc"
