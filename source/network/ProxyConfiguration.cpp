// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "ProxyConfiguration.h"

#include "EnumHelpers.h"
#include "PYXHostAddressHelpers.h"
#include "PYXStringHelpers.h"
#include "WipedValue.h"

#include <QtNetwork/QHostAddress>

namespace PYXRuntime {
namespace {

void wipe(QString &text)
{
    PYXStringHelpers::safeOverwriteAndClear(text);
}

void replace(QString &text, const QString &by)
{
    QString copy = PYXStringHelpers::trueCopy(by);
    wipe(text);
    text = std::move(copy);
}

/** Whether a manual proxy stands between this host and the peer. */
bool needsProxy(const QNetworkProxyQuery &query)
{
    const QString host = query.peerHostName();
    if (host.isEmpty())
        return query.peerPort() != -1;
    QHostAddress address;
    return !address.setAddress(host) || !PYXHostAddressHelpers::belongsToALocalSubnet(address);
}

} // namespace

ProxyConfiguration::ProxyConfiguration(const QString &host, quint16 port)
    : m_type(Enums::ekProxy_ManualConfiguration)
    , m_host(PYXStringHelpers::trueCopy(host))
    , m_port(port)
{}

ProxyConfiguration::ProxyConfiguration(const QString &host, quint16 port, const QString &user,
                                       const QString &password)
    : ProxyConfiguration(host, port)
{
    setProxyAuthenticationRequired(user, password);
}

ProxyConfiguration::ProxyConfiguration(const ProxyConfiguration &other)
    : m_type(other.m_type)
    , m_variant(other.m_variant)
    , m_host(PYXStringHelpers::trueCopy(other.m_host))
    , m_port(other.m_port)
    , m_bAuthenticationRequired(other.m_bAuthenticationRequired)
    , m_username(PYXStringHelpers::trueCopy(other.m_username))
    , m_password(PYXStringHelpers::trueCopy(other.m_password))
    , m_bPasswordObfuscated(other.m_bPasswordObfuscated)
{}

ProxyConfiguration &ProxyConfiguration::operator=(const ProxyConfiguration &other)
{
    if (this == &other)
        return *this;
    clear();
    m_type = other.m_type;
    m_variant = other.m_variant;
    m_host = PYXStringHelpers::trueCopy(other.m_host);
    m_port = other.m_port;
    m_bAuthenticationRequired = other.m_bAuthenticationRequired;
    m_username = PYXStringHelpers::trueCopy(other.m_username);
    m_password = PYXStringHelpers::trueCopy(other.m_password);
    m_bPasswordObfuscated = other.m_bPasswordObfuscated;
    return *this;
}

ProxyConfiguration::~ProxyConfiguration()
{
    wipe(m_host);
    wipe(m_username);
    wipe(m_password);
}

QString ProxyConfiguration::proxyTypeAsString() const
{
    return EnumHelpers::proxyType(m_type);
}

QString ProxyConfiguration::proxyVariantAsString() const
{
    return EnumHelpers::proxyVariant(m_variant);
}

QString ProxyConfiguration::proxyHost() const
{
    return PYXStringHelpers::trueCopy(m_host);
}

QString ProxyConfiguration::proxyUsername() const
{
    return PYXStringHelpers::trueCopy(m_username);
}

QString ProxyConfiguration::proxyPassword() const
{
    return unobfuscatedProxyPassword();
}

QString ProxyConfiguration::unobfuscatedProxyPassword() const
{
    return m_bPasswordObfuscated ? PYXStringHelpers::unobfuscateString(m_password)
                                 : PYXStringHelpers::trueCopy(m_password);
}

void ProxyConfiguration::setProxyHost(const QString &host)
{
    replace(m_host, host);
}

void ProxyConfiguration::setProxyAuthenticationRequired(const QString &user, const QString &password)
{
    m_bAuthenticationRequired = true;
    setProxyUsername(user);
    setProxyPassword(password);
}

void ProxyConfiguration::setProxyUsername(const QString &user)
{
    replace(m_username, user);
}

void ProxyConfiguration::setProxyPassword(const QString &password)
{
    replace(m_password, password);
}

void ProxyConfiguration::clearProxyPassword()
{
    wipe(m_password);
}

void ProxyConfiguration::clear()
{
    m_type = Enums::ekProxy_Default;
    wipe(m_host);
    setProxyDefaultPort();
    m_bAuthenticationRequired = false;
    wipe(m_username);
    wipe(m_password);
    m_bPasswordObfuscated = false;
}

void ProxyConfiguration::obfuscateProxyPassword()
{
    if (m_bPasswordObfuscated)
        return;
    const WipedString obfuscated(PYXStringHelpers::obfuscateString(m_password));
    replace(m_password, obfuscated.value);
    m_bPasswordObfuscated = true;
}

void ProxyConfiguration::unobfuscateProxyPassword()
{
    if (!m_bPasswordObfuscated)
        return;
    const WipedString plain(PYXStringHelpers::unobfuscateString(m_password));
    replace(m_password, plain.value);
    m_bPasswordObfuscated = false;
}

QList<QNetworkProxy> ProxyConfiguration::toQNetworkProxies(const QNetworkProxyQuery &query,
                                                           bool withoutCredentials) const
{
    const bool bWithCredentials = m_bAuthenticationRequired && !withoutCredentials;
    if (m_type == Enums::ekProxy_UseSystemSettings)
        return _systemProxies(query, bWithCredentials);
    if (m_type == Enums::ekProxy_ManualConfiguration && needsProxy(query))
        return {_manualProxy(bWithCredentials)};
    return {QNetworkProxy(QNetworkProxy::NoProxy)};
}

QNetworkProxy ProxyConfiguration::toQNetworkProxy(const QNetworkProxyQuery &query,
                                                  bool withoutCredentials) const
{
    return toQNetworkProxies(query, withoutCredentials).value(0);
}

QList<QNetworkProxy> ProxyConfiguration::_systemProxies(const QNetworkProxyQuery &query,
                                                        bool withCredentials) const
{
    QList<QNetworkProxy> proxies = QNetworkProxyFactory::systemProxyForQuery(query);
    for (QNetworkProxy &proxy : proxies) {
        if (!withCredentials || proxy.type() == QNetworkProxy::NoProxy)
            continue;
        if (proxy.user().isEmpty())
            proxy.setUser(proxyUsername());
        if (proxy.password().isEmpty())
            proxy.setPassword(proxyPassword());
    }
    return proxies;
}

QNetworkProxy ProxyConfiguration::_manualProxy(bool withCredentials) const
{
    QNetworkProxy proxy(m_variant == Enums::ekProxyVariant_SOCKS5 ? QNetworkProxy::Socks5Proxy
                                                                  : QNetworkProxy::HttpProxy,
                        proxyHost(), m_port);
    if (withCredentials) {
        proxy.setUser(proxyUsername());
        proxy.setPassword(proxyPassword());
    }
    return proxy;
}

} // namespace PYXRuntime
