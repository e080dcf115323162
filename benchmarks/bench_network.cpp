// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "BroadcastReceiver.h"
#include "PYXHostAddressHelpers.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QHash>
#include <QtNetwork/QUdpSocket>

#include <benchmark/benchmark.h>

#include <chrono>
#include <sys/socket.h>

using namespace PYXRuntime;

namespace {

constexpr int DatagramsAtOnce = 128; // what a socket's buffer surely holds
constexpr int DatagramSize = 200;

class Counter : public IBroadcastParser
{
public:
    void parseBroadcastDatagram(const QByteArray &datagram, const QHostAddress &, quint16) override
    {
        received += datagram.size();
    }
    int received = 0;
};

/** Times how long it takes to receive what waits at a port; not the sending. */
void timeReceiving(benchmark::State &state, quint16 port, int &received)
{
    QUdpSocket out;
    const QByteArray datagram(DatagramSize, 'x');
    for (auto _ : state) {
        received = 0;
        for (int i = 0; i < DatagramsAtOnce; ++i)
            out.writeDatagram(datagram, QHostAddress(QHostAddress::LocalHost), port);
        const auto begin = std::chrono::steady_clock::now();
        while (received < DatagramsAtOnce * DatagramSize)
            QCoreApplication::processEvents();
        state.SetIterationTime(
            std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count());
    }
    state.SetItemsProcessed(state.iterations() * DatagramsAtOnce);
}

void receiveWithReceiver(benchmark::State &state)
{
    Counter counter;
    BroadcastReceiver receiver;
    receiver.start(0, &counter);
    timeReceiving(state, receiver.port(), counter.received);
}

/** The loop of Qt's own documentation. */
void receiveBare(benchmark::State &state)
{
    int received = 0;
    QUdpSocket socket;
    socket.bind(QHostAddress(QHostAddress::AnyIPv4), 0);
    QObject::connect(&socket, &QUdpSocket::readyRead, [&] {
        QByteArray datagram;
        QHostAddress sender;
        while (socket.hasPendingDatagrams()) {
            datagram.resize(int(socket.pendingDatagramSize()));
            socket.readDatagram(datagram.data(), datagram.size(), &sender);
            received += datagram.size();
        }
    });
    timeReceiving(state, socket.localPort(), received);
}

void receiveWithoutLoop(benchmark::State &state)
{
    QUdpSocket socket; // only for its number
    socket.bind(QHostAddress(QHostAddress::AnyIPv4), 0);
    QUdpSocket out;
    const QByteArray datagram(DatagramSize, 'x');
    char bytes[DatagramSize];
    for (auto _ : state) {
        for (int i = 0; i < DatagramsAtOnce; ++i)
            out.writeDatagram(datagram, QHostAddress(QHostAddress::LocalHost), socket.localPort());
        const auto begin = std::chrono::steady_clock::now();
        for (int i = 0; i < DatagramsAtOnce; ++i) {
            if (::recv(int(socket.socketDescriptor()), bytes, sizeof bytes, 0) != DatagramSize)
                state.SkipWithError("a datagram is missing");
        }
        state.SetIterationTime(
            std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count());
    }
}

QVector<QHostAddress> peers()
{
    QVector<QHostAddress> addresses;
    for (quint32 i = 0; i < 256; ++i)
        addresses += QHostAddress(0x0a000000 + i);
    return addresses;
}

void askHelpers(benchmark::State &state)
{
    const QVector<QHostAddress> addresses = peers();
    for (auto _ : state) {
        for (const QHostAddress &address : addresses)
            benchmark::DoNotOptimize(PYXHostAddressHelpers::belongsToALocalSubnet(address));
    }
}

void askHash(benchmark::State &state)
{
    const QVector<QHostAddress> addresses = peers();
    QHash<QHostAddress, bool> answers;
    for (const QHostAddress &address : addresses)
        answers.insert(address, false);
    for (auto _ : state) {
        for (const QHostAddress &address : addresses)
            benchmark::DoNotOptimize(answers.value(address));
    }
}

} // namespace

BENCHMARK(receiveWithReceiver)->Name("network/receive 128 datagrams/PYX")->UseManualTime();
BENCHMARK(receiveBare)->Name("network/receive 128 datagrams/QUdpSocket")->UseManualTime();
BENCHMARK(receiveWithoutLoop)->Name("network/receive 128 datagrams/floor")->UseManualTime();
BENCHMARK(askHelpers)->Name("network/256 cached subnet answers/PYX");
BENCHMARK(askHash)->Name("network/256 cached subnet answers/QHash");

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
