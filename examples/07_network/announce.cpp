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

namespace {

const QByteArray Prefix("STATION ");

class StationParser : public IBroadcastParser
{
public:
    void parseBroadcastDatagram(const QByteArray &datagram, const QHostAddress &sender, quint16) override
    {
        if (!datagram.startsWith(Prefix)) // anyone may send anything
            return;
        QTextStream(stdout) << "heard " << datagram.mid(Prefix.size()) << " from " << sender.toString()
                            << '\n';
        if (QApplication::arguments().contains("--quit"))
            QApplication::quit();
    }
};

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QApplication::setOrganizationName("Example");
    QApplication::setApplicationName("07 Announce");
    initialize_PYXRuntime();
    const bool isQuitting = QApplication::arguments().contains("--quit");

    StationParser parser; // outlives the receiver
    BroadcastReceiver receiver;
    receiver.start(isQuitting ? 0 : 45454,
                   &parser); // 0: a free port; other programs may listen on the same one

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
