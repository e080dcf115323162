// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "RecordingFetcher.h"

#include "DataRows.h"
#include "FileContents.h"

#include <QtNetwork/QTcpServer>
#include <QtNetwork/QTcpSocket>
#include <QtTest/QtTest>

using namespace BandMonitor;

namespace {

const QByteArray Content(3'000'000, 'x');

/** Answers every request by its path. */
class Server final : public QTcpServer
{
public:
    Server()
    {
        listen(QHostAddress::LocalHost);
        connect(this, &QTcpServer::newConnection, this, [this] {
            QTcpSocket *const socket = nextPendingConnection();
            connect(socket, &QTcpSocket::readyRead, socket, [socket] {
                const QByteArray request = socket->readAll();
                if (request.startsWith("GET /private") && !request.contains("Authorization: Basic dTpw"))
                    socket->write("HTTP/1.1 401 No\r\nWWW-Authenticate: Basic realm=\"r\"\r\n"
                                  "Content-Length: 0\r\n\r\n");
                else if (request.startsWith("GET /good") || request.startsWith("GET /private"))
                    socket->write(head("200 OK") + Content);
                else if (request.startsWith("GET /cut"))
                    socket->write(head("200 OK") + Content.left(1000));
                else if (request.startsWith("GET /led-to-"))
                    socket->write("HTTP/1.1 302 Found\r\nContent-Length: 0\r\nLocation: http://127.0.0.1:" +
                                  request.mid(12, request.indexOf(' ', 12) - 12) + "/private.wav\r\n\r\n");
                else if (!request.startsWith("GET /silent"))
                    socket->write("HTTP/1.1 404 Not Found\r\nContent-Length: 0\r\n\r\n");
                if (request.startsWith("GET /cut"))
                    socket->disconnectFromHost();
            });
        });
    }

    QUrl url(const QString &path) const
    {
        return QString("http://127.0.0.1:%1/%2").arg(serverPort()).arg(path);
    }

private:
    static QByteArray head(const QByteArray &status)
    {
        return "HTTP/1.1 " + status + "\r\nContent-Length: " + QByteArray::number(Content.size()) +
               "\r\n\r\n";
    }
};

} // namespace

class tst_RecordingFetcher : public QObject
{
    Q_OBJECT
private slots:
    void init() { m_directory.reset(new QTemporaryDir); }
    void fetches();
    void fails();
    void canBeGivenUp();

private:
    QStringList files() const
    {
        return QDir(m_directory->path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

    Server m_server;
    QScopedPointer<QTemporaryDir> m_directory;
};

void tst_RecordingFetcher::fetches()
{
    RecordingFetcher fetcher(m_directory->filePath("new"));
    QSignalSpy fetched(&fetcher, &RecordingFetcher::si_fetched);
    QSignalSpy progress(&fetcher, &RecordingFetcher::si_progress);
    fetcher.fetch(m_server.url("good/..%5Codd%3Aname.wav"));
    QVERIFY(fetched.wait());
    const QString file = fetched.at(0).at(0).toString();
    QVERIFY2(file.endsWith("-.._odd_name.wav"), qPrintable(file));
    QVERIFY(get(file) == Content);
    QCOMPARE(progress.last(), QVariantList({qint64(Content.size()), qint64(Content.size())}));

    QUrl withPassword = m_server.url("private.wav");
    withPassword.setUserInfo("u:p");
    fetcher.fetch(withPassword);
    QVERIFY(fetched.wait());
    QVERIFY(fetched.at(1) != fetched.at(0));

    // The password is for the server that the user has named.
    const Server other;
    QSignalSpy failed(&fetcher, &RecordingFetcher::si_failed);
    withPassword.setPath(QString("/led-to-%1").arg(other.serverPort()));
    fetcher.fetch(withPassword);
    QVERIFY(failed.wait());
    QVERIFY(failed.at(0).at(0).toString().contains("authentication"));
    withPassword.setPath(QString("/led-to-%1").arg(m_server.serverPort()));
    fetcher.fetch(withPassword);
    QVERIFY(fetched.wait());
}

void tst_RecordingFetcher::fails()
{
    put(m_directory->filePath("wall"), {});
    const QString below = m_directory->filePath("wall/below");
    const Rows<QString, QString, QString> rows = {
        {"not there", m_directory->path(), "missing.wav", "Not Found"},
        {"cut off", m_directory->path(), "cut.wav", "closed"},
        {"wrong password", m_directory->path(), "private.wav", "authentication"},
        {"no directory", below, "good.wav", ""}};
    forRows(rows, [this](const QString &directory, const QString &path, const QString &reason) {
        RecordingFetcher fetcher(directory);
        QSignalSpy failed(&fetcher, &RecordingFetcher::si_failed);
        QSignalSpy fetched(&fetcher, &RecordingFetcher::si_fetched);
        QUrl url = m_server.url(path);
        url.setUserInfo("u:wrong");
        fetcher.fetch(url);
        QVERIFY(failed.wait());
        const QString text = failed.at(0).at(0).toString();
        QVERIFY2(text.contains(reason) && !text.contains("wrong"), qPrintable(text));
        QCOMPARE(fetched.size(), 0);
        QCOMPARE(files(), QStringList("wall"));
    });
}

void tst_RecordingFetcher::canBeGivenUp()
{
    RecordingFetcher fetcher(m_directory->path());
    QSignalSpy failed(&fetcher, &RecordingFetcher::si_failed);
    QSignalSpy fetched(&fetcher, &RecordingFetcher::si_fetched);
    fetcher.fetch(m_server.url("silent.wav"));
    fetcher.cancel();
    QCOMPARE(files().size(), 0);
    fetcher.fetch(m_server.url("cut.wav"));
    fetcher.fetch(m_server.url("good.wav"));
    QVERIFY(fetched.wait());
    QCOMPARE(failed.size(), 0);
    QCOMPARE(files().size(), 1);
}

QTEST_GUILESS_MAIN(tst_RecordingFetcher)
#include "tst_RecordingFetcher.moc"
