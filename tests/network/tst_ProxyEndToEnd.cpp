// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later

// Requests over loopback, through real proxies where they are installed: tinyproxy and microsocks.

#include "PYXProxyManager.h"
#include "SettingsHome.h"

#include <QtCore/QProcess>
#include <QtNetwork/QHostInfo>
#include <QtNetwork/QNetworkAccessManager>
#include <QtNetwork/QNetworkReply>
#include <QtNetwork/QTcpServer>
#include <QtNetwork/QTcpSocket>
#include <QtTest/QtTest>

using namespace PYXRuntime;

namespace {

/** What a request ends in, from tinyproxy (it says 401) and from microsocks. */
const char *const WrongPassword[] = {"AuthenticationRequiredError", "ProxyAuthenticationRequiredError"};

/** Answers every request and keeps it. */
class HttpServer : public QTcpServer
{
public:
    HttpServer()
    {
        connect(this, &QTcpServer::newConnection, this, [this] {
            QTcpSocket *const socket = nextPendingConnection();
            connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
            connect(socket, &QTcpSocket::readyRead, socket, [this, socket] { answer(socket); });
        });
        listen(QHostAddress::Any);
    }
    QUrl url(const QString &host) const { return QString("http://%1:%2/file").arg(host).arg(serverPort()); }

    QByteArray request;

private:
    void answer(QTcpSocket *socket)
    {
        request += socket->readAll();
        if (!request.contains("\r\n\r\n"))
            return;
        socket->write("HTTP/1.1 200 OK\r\nContent-Length: 5\r\nConnection: close\r\n\r\nhello");
        socket->disconnectFromHost();
    }
};

quint16 freePort()
{
    QTcpServer server;
    server.listen(QHostAddress::LocalHost);
    return server.serverPort();
}

/** A name under which this host reaches itself. Qt never takes a proxy to "localhost". */
QString ownName()
{
    for (const QString &name : {QHostInfo::localHostName(), QString("ip6-localhost")}) {
        QTcpServer server;
        server.listen(QHostAddress::Any);
        QTcpSocket socket;
        socket.setProxy(QNetworkProxy::NoProxy);
        socket.connectToHost(name, server.serverPort());
        if (QHostAddress(name).isNull() && socket.waitForConnected(5000))
            return name;
    }
    return {};
}

/** Waits until a program listens. @return why it does not; nothing if it does. */
QString started(QProcess &process, const QString &program, const QStringList &arguments, quint16 port)
{
    const QString path = QStandardPaths::findExecutable(program);
    if (path.isEmpty())
        return program + " is not installed";
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(path, arguments);
    const auto isReady = [port] {
        QTcpSocket socket;
        socket.setProxy(QNetworkProxy::NoProxy);
        socket.connectToHost(QHostAddress::LocalHost, port);
        return socket.waitForConnected(1000);
    };
    if (process.waitForStarted() && QTest::qWaitFor(isReady, 10000))
        return {};
    return program + " does not start: " + process.readAll();
}

/** What the server sends, or the error. */
QString fetched(const QUrl &url)
{
    QNetworkAccessManager manager;
    const std::unique_ptr<QNetworkReply> reply(manager.get(QNetworkRequest(url)));
    if (!QTest::qWaitFor([&reply] { return reply->isFinished(); }, 20000))
        return "no answer";
    return reply->error() == QNetworkReply::NoError ? QString(reply->readAll())
                                                    : QVariant::fromValue(reply->error()).toString();
}

} // namespace

class tst_ProxyEndToEnd : public QObject
{
    Q_OBJECT
private slots:
    void throughProxy_data();
    void throughProxy();
};

void tst_ProxyEndToEnd::throughProxy_data()
{
    QTest::addColumn<bool>("socks");
    QTest::addColumn<QString>("password"); // null: none is wanted; else the proxy wants "secret"
    QTest::addColumn<QString>("answer");
    for (const bool bSocks : {false, true}) {
        const char *const name = bSocks ? "SOCKS" : "HTTP";
        QTest::addRow("%s", name) << bSocks << QString() << "hello";
        QTest::addRow("%s, password", name) << bSocks << "secret" << QString("hello");
        QTest::addRow("%s, wrong password", name) << bSocks << "wrong" << QString(WrongPassword[bSocks]);
    }
}

void tst_ProxyEndToEnd::throughProxy()
{
    QFETCH(bool, socks);
    QFETCH(QString, password);
    QFETCH(QString, answer);
    static const QString name = ownName();
    if (name.isEmpty())
        QSKIP("no name leads to this host");
    const SettingsHome home;
    const quint16 port = freePort();
    QFile file(home.path("tinyproxy.conf"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("Listen 127.0.0.1\nTimeout 30\nViaProxyName \"under-test\"\nPort " + QByteArray::number(port));
    file.write(password.isNull() ? "\n" : "\nBasicAuth user secret\n");
    file.close();
    QStringList socksArguments = {"-i", "127.0.0.1", "-p", QString::number(port)};
    if (!password.isNull())
        socksArguments += {"-u", "user", "-P", "secret"};
    QProcess process;
    const auto atEnd = qScopeGuard([&process] {
        process.kill();
        process.waitForFinished();
    });
    const QString missing = socks ? started(process, "microsocks", socksArguments, port)
                                  : started(process, "tinyproxy", {"-d", "-c", file.fileName()}, port);
    if (!missing.isEmpty())
        QSKIP(qPrintable(missing));

    ProxyConfiguration configuration("127.0.0.1", port);
    configuration.setProxyVariant(socks ? Enums::ekProxyVariant_SOCKS5 : Enums::ekProxyVariant_HTTP);
    if (!password.isNull())
        configuration.setProxyAuthenticationRequired("user", password);
    PYXProxyManager::applyProxyConfiguration(configuration);
    HttpServer server;
    QByteArray log;
    // tinyproxy adds a header to the request, microsocks says where it connects to.
    const auto cameThrough = [&] {
        const QString connected = QString("connected to %1:%2").arg(name).arg(server.serverPort());
        log += process.readAll();
        return socks ? log.contains(connected.toUtf8()) : server.request.contains("under-test");
    };
    QCOMPARE(fetched(server.url("127.0.0.1")), "hello");
    QVERIFY(server.request.startsWith("GET /file ") && !cameThrough());
    QVERIFY(!log.contains("connected to"));
    server.request.clear();
    QCOMPARE(fetched(server.url(name)), answer);
    QTRY_COMPARE(cameThrough(), answer == "hello");
    QCOMPARE(server.request.isEmpty(), answer != "hello");
    QVERIFY(!server.request.contains("Proxy-Authorization"));
}

QTEST_GUILESS_MAIN(tst_ProxyEndToEnd)
#include "tst_ProxyEndToEnd.moc"
