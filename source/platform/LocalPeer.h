// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QString>

/** Connections between programs of one machine. Any thread. */
namespace PYXRuntime::Platform {

/** Which end of a connection the other program is. */
enum eLocalPeer { ekLocalPeer_Client, ekLocalPeer_Server };

/**
 * A directory that only this user can enter, for what lasts as long as the session. Separated by "/"; empty
 * where there is none.
 */
QString privateSessionDirectory();

/**
 * The name of a socket that belongs to @p name in the directory, for QLocalServer; empty if it would be
 * longer than the system allows.
 */
QString localSocketName(const QString &directory, const QString &name);

/** Whether the program at the other end of a QLocalSocket, given by its descriptor, is this user's. */
bool isLocalPeerOfThisUser(qintptr socket, eLocalPeer peer);

/** Lets the program at the other end, a server, bring its window to the front, which the system may else
 * refuse. */
void letLocalPeerComeToFront(qintptr socket);

} // namespace PYXRuntime::Platform
