// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later

// One host's part of a test between hosts. Says what it does on standard output and takes a line on standard
// input as a command: "report" or "flood <address> <port> <size> <count>"; it ends with its input.
//   broadcastprobe receive PORT
//   broadcastprobe send PORT INTERVAL SIZE [OWN ADDRESS...]

#include "BroadcastReceiver.h"
#include "BroadcastSender.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtCore/QSet>
#include <QtCore/QSocketNotifier>
#include <QtCore/QTextStream>
#include <QtNetwork/QUdpSocket>

using namespace PYXRuntime;

namespace {

void say(const QString &line)
{
    QTextStream(stdout) << line << '\n';
}

QByteArray patternOf(int size)
{
    QByteArray bytes(size, '\0');
    for (int i = 0; i < size; ++i)
        bytes[i] = char(i % 251);
    return bytes;
}

/** Says once what kinds of datagrams come from whom. */
class Listener : public IBroadcastParser
{
public:
    void parseBroadcastDatagram(const QByteArray &datagram, const QHostAddress &sender, quint16) override
    {
        const QString heard = QString("heard %1 %2 %3")
                                  .arg(sender.toString(), QString::number(datagram.size()),
                                       datagram == patternOf(datagram.size()) ? "whole" : "damaged");
        if (!m_heard.contains(heard)) {
            m_heard.insert(heard);
            say(heard);
        }
    }

private:
    QSet<QString> m_heard;
};

QString residentKilobytes()
{
    QFile status("/proc/self/status");
    const bool bOpen = status.open(QIODevice::ReadOnly);
    const QByteArray text = bOpen ? status.readAll() : QByteArray();
    return text.mid(text.indexOf("VmRSS:") + 6).simplified().split(' ').value(0);
}

void flood(const QStringList &words)
{
    QUdpSocket socket;
    const QByteArray datagram = patternOf(words.at(3).toInt());
    int sent = 0;
    for (int left = words.at(4).toInt(); left > 0; --left)
        sent += socket.writeDatagram(datagram, QHostAddress(words.at(1)), words.at(2).toUShort()) > 0;
    say(QString("flooded %1").arg(sent));
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    Listener listener;
    BroadcastReceiver receiver;
    BroadcastSender sender;
    const quint16 port = arguments.value(2).toUShort();
    if (arguments.value(1) == "receive") {
        receiver.start(port, &listener);
    } else {
        QList<QHostAddress> own;
        for (int i = 5; i < arguments.size(); ++i)
            own += QHostAddress(arguments.at(i));
        sender.start(patternOf(arguments.value(4).toInt()), port, arguments.value(3).toInt(), own);
    }
    say(receiver.isListening() || sender.isRunning() ? "ready" : "not ready");

    QTextStream input(stdin);
    QSocketNotifier commands(0, QSocketNotifier::Read);
    QObject::connect(&commands, &QSocketNotifier::activated, [&] {
        const QStringList words = input.readLine().split(' ');
        if (words.first() == "flood") {
            flood(words);
        } else if (words.first() == "report") {
            say(QString("report %1 %2 %3 %4 %5")
                    .arg(QString::number(receiver.receivedCount()), QString::number(receiver.receivedBytes()),
                         QString::number(sender.sentCount()),
                         QString::number(sender.failedCount() + receiver.failedCount()),
                         residentKilobytes()));
        } else {
            QCoreApplication::quit();
        }
    });
    return QCoreApplication::exec();
}
