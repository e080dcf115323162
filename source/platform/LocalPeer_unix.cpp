// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "LocalPeer.h"

#include <QtCore/QFile>
#include <QtCore/QStandardPaths>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace PYXRuntime::Platform {

QString privateSessionDirectory()
{
    // Qt makes sure that it belongs to the user and is closed to others.
    return QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
}

QString localSocketName(const QString &directory, const QString &name)
{
    const QString path = directory + QLatin1Char('/') + name;
    return std::size_t(QFile::encodeName(path).size()) < sizeof(sockaddr_un::sun_path) ? path : QString();
}

bool isLocalPeerOfThisUser(qintptr socket, eLocalPeer)
{
#ifdef SO_PEERCRED
    ucred credentials = {};
    socklen_t size = sizeof credentials;
    return getsockopt(int(socket), SOL_SOCKET, SO_PEERCRED, &credentials, &size) == 0 &&
           size == sizeof credentials && credentials.uid == geteuid();
#else
    uid_t user = 0;
    gid_t group = 0;
    return getpeereid(int(socket), &user, &group) == 0 && user == geteuid();
#endif
}

void letLocalPeerComeToFront(qintptr) {}

} // namespace PYXRuntime::Platform
