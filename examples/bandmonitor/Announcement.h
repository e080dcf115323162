// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QUuid>

#include <optional>

namespace BandMonitor {

/** What a running Band Monitor tells the others on its networks. */
struct struAnnouncement
{
    static constexpr quint16 Port = 45871;
    static constexpr int DefaultInterval = 5000; // in ms

    QUuid id; ///< of this run of the program
    QString name;
    int interval = DefaultInterval; ///< from one announcement to the next, in ms

    /** Of this run, under the name of this host. */
    static struAnnouncement own();

    QByteArray toDatagram() const;
    /** Nothing for what is no announcement: datagrams may come from anyone. */
    static std::optional<struAnnouncement> fromDatagram(const QByteArray &datagram);
};

} // namespace BandMonitor
