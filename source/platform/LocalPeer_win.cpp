// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "LocalPeer.h"

#include <QtCore/QByteArray>
#include <QtCore/QStandardPaths>

#include <windows.h>

namespace PYXRuntime::Platform {
namespace {

/** The TOKEN_USER of a process; empty where it is not told. Closes the process. */
QByteArray takeUserOf(HANDLE process)
{
    QByteArray user;
    HANDLE token = nullptr;
    if (OpenProcessToken(process, TOKEN_QUERY, &token)) {
        DWORD size = 0;
        GetTokenInformation(token, TokenUser, nullptr, 0, &size);
        user.resize(int(size));
        if (size == 0 || !GetTokenInformation(token, TokenUser, user.data(), size, &size))
            user.clear();
        CloseHandle(token);
    }
    CloseHandle(process);
    return user;
}

PSID identifierOf(const QByteArray &user)
{
    return reinterpret_cast<const TOKEN_USER *>(user.constData())->User.Sid;
}

/** The number of the process at the other end; 0 where it is not told. */
ULONG processOf(qintptr pipe, eLocalPeer peer)
{
    const HANDLE handle = reinterpret_cast<HANDLE>(pipe);
    ULONG process = 0;
    const BOOL isKnown = peer == ekLocalPeer_Client ? GetNamedPipeClientProcessId(handle, &process)
                                                    : GetNamedPipeServerProcessId(handle, &process);
    return isKnown ? process : 0;
}

} // namespace

QString privateSessionDirectory()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
}

QString localSocketName(const QString &, const QString &name)
{
    // Pipes have a name space of their own; with what Qt puts in front, names of up to 256 characters.
    constexpr int LongestName = 240;
    return name.size() <= LongestName ? name : QString();
}

bool isLocalPeerOfThisUser(qintptr socket, eLocalPeer peer)
{
    const ULONG number = processOf(socket, peer);
    const HANDLE process =
        number != 0 ? OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, number) : nullptr;
    if (process == nullptr)
        return false;
    const QByteArray other = takeUserOf(process);
    const QByteArray own = takeUserOf(GetCurrentProcess()); // a handle that closing leaves alone
    return !other.isEmpty() && !own.isEmpty() && EqualSid(identifierOf(other), identifierOf(own));
}

void letLocalPeerComeToFront(qintptr socket)
{
    if (const ULONG process = processOf(socket, ekLocalPeer_Server))
        AllowSetForegroundWindow(process);
}

} // namespace PYXRuntime::Platform
