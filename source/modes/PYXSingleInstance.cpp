// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXSingleInstance.h"

#include "InstanceLock.h"
#include "InstanceMessage.h"
#include "InstanceSender.h"
#include "InstanceServer.h"
#include "LocalPeer.h"
#include "PYXTraceWrapper.h"

#include <QtCore/QCryptographicHash>
#include <QtCore/QDir>
#include <QtCore/QThread>

namespace PYXRuntime {
namespace {

constexpr const char *TraceFile = "source\\PYXSingleInstance";
constexpr int DefaultTimeoutMs = 5000;
constexpr ulong RetryPauseMs = 10;
// Short, since a socket's path has to fit into some hundred bytes.
constexpr int HashDigits = 20;
const QLatin1String NamePrefix("pyx-");

QString idOfThisApplication()
{
    return QCoreApplication::organizationName() + QLatin1Char('\n') + QCoreApplication::applicationName();
}

/** The directory is part of it: it is the user's own, where sockets of all users share their names. */
QString baseName(const QString &directory, const QString &applicationId)
{
    const QByteArray hash = QCryptographicHash::hash((directory + QLatin1Char('\n') + applicationId).toUtf8(),
                                                     QCryptographicHash::Sha256);
    return NamePrefix + QString::fromLatin1(hash.toHex().left(HashDigits));
}

} // namespace

PYXSingleInstance::PYXSingleInstance(QObject *parent)
    : PYXSingleInstance(idOfThisApplication(), parent)
{}

PYXSingleInstance::PYXSingleInstance(const QString &applicationId, QObject *parent)
    : QObject(parent)
    , m_applicationId(applicationId)
    , m_timeout(DefaultTimeoutMs)
{}

PYXSingleInstance::~PYXSingleInstance() = default;

PYXSingleInstance::eResult PYXSingleInstance::start(const QStringList &arguments)
{
    m_errorString.clear();
    if (isFirst())
        return ekFirst;
    const QByteArray message = InstanceMessage::encoded({arguments, QDir::currentPath()});
    if (message.isEmpty())
        return _fail(ekError, tr("There are too many arguments."));
    const QString directory = Platform::privateSessionDirectory();
    if (directory.isEmpty() || !QDir().mkpath(directory))
        return _fail(ekError, tr("There is no directory for what only lasts as long as the session."));
    const QString name = baseName(directory, m_applicationId);
    const QString socketName = Platform::localSocketName(directory, name);
    if (socketName.isEmpty())
        return _fail(ekError, tr("The path \"%1\" is too long for a socket.").arg(directory));
    return _startUntilTimeout(directory + QLatin1Char('/') + name, socketName, message);
}

void PYXSingleInstance::stop()
{
    // In this order: whoever gets the lock next may listen.
    m_server.reset();
    m_lock.reset();
}

PYXSingleInstance::eResult PYXSingleInstance::_startUntilTimeout(const QString &lockPath,
                                                                 const QString &socketName,
                                                                 const QByteArray &message)
{
    const QDeadlineTimer deadline(m_timeout);
    auto lock = std::make_unique<InstanceLock>(lockPath);
    for (;;) {
        const bool isLocked = lock->tryLock();
        if (!isLocked && lock->cannotBeLocked())
            return _fail(ekError, tr("The file \"%1\" cannot be locked.").arg(lockPath));
        // Also with the lock: somebody may have cleaned up the file of an instance that goes on.
        switch (InstanceSender::send(socketName, message, deadline)) {
        case InstanceSender::ekOutcome_Taken:
            return ekHandedOver;
        case InstanceSender::ekOutcome_Refused:
            return _fail(ekRefused, tr("The running instance does not accept the arguments."));
        case InstanceSender::ekOutcome_Stranger:
            return _fail(ekError, tr("Another user's program stands in for this application."));
        case InstanceSender::ekOutcome_Timeout:
            return _fail(ekFirstDoesNotAnswer, tr("The running instance does not answer."));
        case InstanceSender::ekOutcome_Nobody:
            break;
        }
        if (isLocked)
            return _becomeFirst(std::move(lock), socketName);
        if (deadline.hasExpired())
            return _fail(ekFirstDoesNotAnswer, tr("The running instance does not answer."));
        QThread::msleep(RetryPauseMs);
    }
}

PYXSingleInstance::eResult PYXSingleInstance::_becomeFirst(std::unique_ptr<InstanceLock> lock,
                                                           const QString &socketName)
{
    auto server =
        std::make_unique<InstanceServer>(m_timeout, [this](const InstanceMessage::struMessage &message) {
            Q_EMIT si_argumentsReceived(message.arguments, message.workingDirectory);
        });
    const QString error = server->listen(socketName);
    if (!error.isEmpty())
        return _fail(ekError, tr("Other instances cannot be listened to: %1").arg(error));
    m_lock = std::move(lock);
    m_server = std::move(server);
    return ekFirst;
}

PYXSingleInstance::eResult PYXSingleInstance::_fail(eResult result, const QString &text)
{
    m_errorString = text;
    PYXTraceWrapper::staticTraceWarn(text, TraceFile, __LINE__);
    return result;
}

} // namespace PYXRuntime
