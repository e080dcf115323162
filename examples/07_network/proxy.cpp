// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
//
// One proxy for all connections of the process, now and in the next runs.
#include <PYXProxyManager.h>
#include <PYXRuntime.h>
#include <PYXSettings.h>

#include <QApplication>
#include <QNetworkProxyFactory>
#include <QTextStream>

using namespace PYXRuntime;

/** Follows the changes, whoever makes them. The argument is to be declared exactly like this. */
class ProxyListener : public QObject
{
    Q_OBJECT
public:
    ProxyListener()
    {
        PYXProxyManager::registerChangeListener(
            this, SLOT(sl_proxyChanged(const ::PYXRuntime::ProxyConfiguration &)));
    }

public Q_SLOTS:
    void sl_proxyChanged(const ::PYXRuntime::ProxyConfiguration &a_configuration)
    {
        QTextStream(stdout) << "through " << a_configuration.proxyHost() << ':' << a_configuration.proxyPort()
                            << "\npassword announced: "
                            << (a_configuration.proxyPassword().isEmpty() ? "no" : "yes") << '\n';
    }
};

static void useProxy(const QString &user, const QString &password)
{
    ProxyConfiguration configuration("proxy.example", 3128, user, password);
    configuration.setProxyVariant(Enums::ekProxyVariant_SOCKS5); // HTTP else
    PYXProxyManager::applyProxyConfiguration(configuration);     // in force from now on, for this run

    PYXSettings settings(PYXSettings::eUserApplicationSettings); // and for the next ones
    configuration.save(&settings, PYXProxyManager::settingsKey(), true);
}

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QApplication::setOrganizationName("Example");
    QApplication::setApplicationName("07 Proxy");
    initialize_PYXRuntime(); // puts in force what is stored

    const ProxyListener listener;
    useProxy("me", "secret");

    // Qt's network classes ask by themselves.
    const auto proxies = QNetworkProxyFactory::proxyForQuery(QNetworkProxyQuery(QUrl("http://www.example")));
    const PYXSettings settings(PYXSettings::eUserApplicationSettings);
    const bool isStored = settings.contains(PYXProxyManager::settingsKey());
    QTextStream(stdout) << "stored: " << (isStored ? "yes" : "no") << '\n';

    uninitialize_PYXRuntime();
    return isStored && proxies.first().hostName() == "proxy.example" ? 0 : 1;
}

#include "proxy.moc"
