// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "DataRows.h"
#include "InstanceMessage.h"
#include "InstanceServer.h"
#include "LocalPeer.h"
#include "RecordingTracer.h"

#include <QtNetwork/QLocalSocket>
#include <QtTest/QtTest>

using namespace PYXRuntime;
using InstanceMessage::struMessage;

namespace {

QByteArray bigEndian(quint32 number)
{
    QByteArray bytes(4, '\0');
    qToBigEndian(number, bytes.data());
    return bytes;
}

QByteArray frame(const QByteArray &content, quint32 version = 1)
{
    return "PYXI" + bigEndian(version) + bigEndian(quint32(content.size())) + content;
}

const QByteArray Good =
    frame(bigEndian(1) + bigEndian(2) + QByteArray("\0a", 2) + bigEndian(4) + QByteArray("\0/\0b", 4));
const QByteArray Taken = "PYXA" + bigEndian(1);
const QByteArray Refused = "PYXA" + bigEndian(2);

} // namespace

class tst_InstanceServer : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup() { m_server.reset(); }
    void answersEveryMessage();
    void takesLongMessagesInPieces();
    void ignoresWhoLeavesEarly();
    void dropsWhoIsSlow();
    void servesMoreThanItHoldsAtATime();
    void refusesOtherUsers();

private:
    void listen(int timeout);

    QTemporaryDir m_directory;
    QString m_name;
    std::unique_ptr<InstanceServer> m_server;
    QList<struMessage> m_messages;
};

void tst_InstanceServer::init()
{
    m_messages.clear();
    m_name = Platform::localSocketName(m_directory.path(),
                                       QString("pyx-test-%1").arg(QCoreApplication::applicationPid()));
    listen(30'000);
}

void tst_InstanceServer::listen(int timeout)
{
    m_server.reset();
    m_server = std::make_unique<InstanceServer>(
        timeout, [this](const struMessage &message) { m_messages += message; });
    QCOMPARE(m_server->listen(m_name), QString());
}

void tst_InstanceServer::answersEveryMessage()
{
    const QByteArray content = Good.mid(12);
    const Rows<QByteArray, QByteArray> rows = {
        {"good", Good, Taken},
        {"good, null texts", frame(bigEndian(1) + bigEndian(~0U) + bigEndian(~0U)), Taken},
        {"foreign protocol", "GET / HTTP/1.1\r\n\r\n", Refused},
        {"other version", frame(content, 2), Refused},
        {"too long", "PYXI" + bigEndian(1) + bigEndian(8 * 1024 * 1024 + 1), Refused},
        {"more than announced", Good + 'x', Refused},
        {"more than content", frame(content + 'x'), Refused},
        {"content cut", frame(content.chopped(1)), Refused},
        {"count of nothing", frame(bigEndian(~0U) + content.mid(4)), Refused},
        {"half a character", frame(bigEndian(1) + bigEndian(1) + "a" + bigEndian(0)), Refused}};
    forRows(rows, [this](const QByteArray &bytes, const QByteArray &answer) {
        m_messages.clear();
        QLocalSocket socket;
        socket.connectToServer(m_name);
        QVERIFY(socket.waitForConnected());
        socket.write(bytes);
        QTRY_COMPARE(socket.bytesAvailable(), 8);
        QCOMPARE(socket.readAll(), answer);
        QTRY_COMPARE(m_messages.size(), answer == Taken ? 1 : 0);
    });
}

void tst_InstanceServer::takesLongMessagesInPieces()
{
    const struMessage message{{QString(2'000'000, QChar(0x20ac)), QString(), "end"}, "/somewhere"};
    const QByteArray bytes = InstanceMessage::encoded(message);
    QLocalSocket socket;
    socket.connectToServer(m_name);
    socket.write(bytes.left(5));
    socket.flush();
    QTest::qWait(0);
    socket.write(bytes.mid(5));
    QTRY_COMPARE(m_messages.size(), 1);
    QCOMPARE(m_messages[0].arguments, message.arguments);
    QCOMPARE(m_messages[0].workingDirectory, message.workingDirectory);
    QVERIFY(InstanceMessage::encoded({{QString(4'200'000, 'x')}, {}}).isEmpty());
}

void tst_InstanceServer::ignoresWhoLeavesEarly()
{
    for (const QByteArray &bytes : {QByteArray(), Good.chopped(1), Good}) {
        QLocalSocket socket;
        socket.connectToServer(m_name);
        QVERIFY(socket.waitForConnected());
        socket.write(bytes);
        socket.flush();
    }
    // The next one shows that it has been looked at.
    QLocalSocket next;
    next.connectToServer(m_name);
    next.write(Good);
    QTRY_COMPARE(next.bytesAvailable(), 8);
    QCOMPARE(m_server->children().size(), 1);
    QCOMPARE(m_messages.size(), 1);
}

void tst_InstanceServer::dropsWhoIsSlow()
{
    listen(50);
    QLocalSocket slow;
    slow.connectToServer(m_name);
    slow.write(Good.left(20));
    QTRY_COMPARE(slow.state(), QLocalSocket::UnconnectedState);
    QVERIFY(m_messages.isEmpty());
}

void tst_InstanceServer::servesMoreThanItHoldsAtATime()
{
    std::vector<std::unique_ptr<QLocalSocket>> sockets;
    for (int i = 0; i < 50; ++i) {
        sockets.push_back(std::make_unique<QLocalSocket>());
        QLocalSocket *const socket = sockets.back().get();
        connect(socket, &QLocalSocket::readyRead, socket, &QLocalSocket::disconnectFromServer);
        socket->connectToServer(m_name);
        // Windows has few pipes ready at a time.
        QCoreApplication::processEvents();
        // The first ones say nothing as yet, and take all the room there is.
        if (i >= 40)
            socket->write(Good);
    }
    QTRY_COMPARE(m_server->children().size(), 32);
    QVERIFY(m_messages.isEmpty());
    for (std::size_t i = 0; i < 40; ++i)
        sockets[i]->write(Good);
    QTRY_COMPARE(m_messages.size(), 50);
    QTRY_VERIFY(m_server->children().isEmpty());
}

void tst_InstanceServer::refusesOtherUsers()
{
    const QString python = QStandardPaths::findExecutable("python3");
    const QByteArray script = "import os, socket, sys\n"
                              "if os.getuid() != 0: sys.exit(77)\n"
                              "path = sys.argv[1]\n"
                              "os.chmod(os.path.dirname(path), 0o755); os.chmod(path, 0o666)\n"
                              "os.setuid(65534)\n"
                              "s = socket.socket(socket.AF_UNIX); s.connect(path)\n"
                              "try:\n"
                              "    s.sendall(bytes.fromhex(sys.argv[2])); print('answer', len(s.recv(8)))\n"
                              "except OSError: print('answer 0')\n";
    if (python.isEmpty() || !QFileInfo::exists(m_name))
        QSKIP("needs Python, and sockets that are files");
    QProcess process;
    const QStringList traces = tracesOf([&] {
        process.start(python, {"-c", script, m_name, Good.toHex()});
        QTRY_COMPARE_WITH_TIMEOUT(process.state(), QProcess::NotRunning, 30'000);
    });
    if (process.exitCode() == 77)
        QSKIP("only root can become another user");
    QCOMPARE(process.readAllStandardError(), QByteArray());
    QCOMPARE(process.readAllStandardOutput().trimmed(), QByteArray("answer 0"));
    QVERIFY(m_messages.isEmpty());
    QCOMPARE(traces.size(), 1);
    QVERIFY(traces[0].startsWith("Warn|the connection of another user's program was refused|"));
}

QTEST_GUILESS_MAIN(tst_InstanceServer)
#include "tst_InstanceServer.moc"
