// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
//
// Stations announce themselves into the local networks, and hear each other. Start it on several hosts.
#include <BroadcastReceiver.h>
#include <BroadcastSender.h>
#include <IBroadcastParser.h>
#include <PYXHostAddressHelpers.h>
#include <PYXRuntime.h>

#include <QApplication>
#include <QTextStream>
#include <QTimer>

using namespace PYXRuntime;

static const QByteArray Prefix("STATION ");

class StationParser : public QObject, public IBroadcastParser
{
    Q_OBJECT
public:
    void parseBroadcastDatagram(const QByteArray &datagram, const QHostAddress &sender, quint16) override
    {
        if (datagram.startsWith(Prefix)) // anyone may send anything
            Q_EMIT si_heard(QString::fromUtf8(datagram.mid(Prefix.size())), sender);
    }

Q_SIGNALS:
    void si_heard(const QString &a_station, const QHostAddress &a_address);
};

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QApplication::setOrganizationName("Example");
    QApplication::setApplicationName("07 Announce");
    initialize_PYXRuntime();
    const bool isQuitting = QApplication::arguments().contains("--quit");

    StationParser parser;
    QObject::connect(&parser, &StationParser::si_heard,
                     [=](const QString &station, const QHostAddress &address) {
                         QTextStream(stdout) << "heard " << station << " from " << address.toString() << '\n';
                         if (isQuitting)
                             QApplication::quit();
                     });
    const quint16 port = isQuitting ? 0 : 45454; // 0: a free one
    BroadcastReceiver receiver;
    receiver.start(port, &parser); // other programs may listen on the same port

    BroadcastSender sender;
    sender.start(Prefix + "North", receiver.port(), 2000, {}); // now and every 2 s, into every local network

    // Errors of the network are counted, not reported.
    QTimer::singleShot(1000, &sender, [&] {
        if (sender.sentCount() == 0)
            QTextStream(stdout) << "cannot be shown here: no network takes broadcasts\n";
        if (sender.sentCount() == 0 && isQuitting)
            QApplication::exit(1);
    });
    const int result = QApplication::exec();
    uninitialize_PYXRuntime();
    return result;
}

#include "announce.moc"
