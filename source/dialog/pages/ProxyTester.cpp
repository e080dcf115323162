// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "ProxyTester.h"

#include "PYXNetworkProxyFactory.h"

#include <QtNetwork/QNetworkReply>

namespace PYXRuntime {
namespace {

constexpr int Timeout = 15000; // ms
constexpr int ProxyAuthentication = 407;
constexpr int BadGateway = 502;
constexpr int GatewayTimeout = 504;

// Any answer of the site does, also that it has no such page; these come from the proxy.
bool isFromProxy(int status)
{
    return status == ProxyAuthentication || (status >= BadGateway && status <= GatewayTimeout);
}

bool isWebAddress(const QUrl &url)
{
    return url.isValid() && !url.host().isEmpty() &&
           (url.scheme() == QLatin1String("http") || url.scheme() == QLatin1String("https"));
}

} // namespace

ProxyTester::ProxyTester(const ProxyConfiguration &configuration, QObject *parent)
    : QObject(parent)
{
    auto factory = std::make_unique<PYXNetworkProxyFactory>();
    factory->setCurrentProxyConfiguration(configuration);
    m_network.setProxyFactory(factory.release()); // which it deletes
}

ProxyTester::~ProxyTester()
{
    const auto replies = m_network.findChildren<QNetworkReply *>();
    for (QNetworkReply *const reply : replies)
        reply->disconnect(this);
}

void ProxyTester::test(int index, const QString &site)
{
    const QUrl url = QUrl::fromUserInput(site);
    if (!isWebAddress(url)) {
        Q_EMIT si_finished(index, false, tr("This is no web address."));
        return;
    }
    QNetworkRequest request(url);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::NoLessSafeRedirectPolicy);
    request.setAttribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);
    request.setTransferTimeout(Timeout);
    QElapsedTimer clock;
    clock.start();
    QNetworkReply *const reply = m_network.head(request);
    connect(reply, &QNetworkReply::finished, this,
            [this, index, reply, clock] { _finish(index, reply, clock.elapsed()); });
}

void ProxyTester::_finish(int index, QNetworkReply *reply, qint64 milliseconds)
{
    reply->deleteLater();
    const int status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    if (status != 0 && !isFromProxy(status)) {
        Q_EMIT si_finished(
            index, true,
            tr("Reached in %1 ms (status %2)").arg(QString::number(milliseconds), QString::number(status)));
        return;
    }
    QString reason = reply->errorString();
    if (status == ProxyAuthentication || reply->error() == QNetworkReply::ProxyAuthenticationRequiredError)
        reason = tr("The proxy does not accept the user name and password.");
    else if (reply->error() == QNetworkReply::OperationCanceledError)
        reason = tr("No answer within %1 seconds").arg(Timeout / 1000);
    Q_EMIT si_finished(index, false, reason);
}

} // namespace PYXRuntime
