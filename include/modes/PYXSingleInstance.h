// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "pyxruntime_export.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QObject>
#include <QtCore/QStringList>

#include <memory>

namespace PYXRuntime {

class InstanceLock;
class InstanceServer;

/**
 * Lets an application run once per user: the first instance takes the arguments of those that are started
 * later.
 * @code
 * PYXSingleInstance instance; // after the names of application and organisation
 * switch (instance.start()) {
 * case PYXSingleInstance::ekHandedOver: return 0;
 * case PYXSingleInstance::ekFirstDoesNotAnswer: ... // tell the user
 * default: break; // first, or alone for some reason
 * }
 * QObject::connect(&instance, &PYXSingleInstance::si_argumentsReceived, &window, ...);
 * @endcode
 * An instance that crashed is no obstacle. Other users can neither send arguments nor receive them. Of
 * several instances that are started at the same moment, exactly one is the first. Main thread only. start()
 * blocks, everything else comes through the event loop.
 */
class PYXRUNTIME_EXPORT PYXSingleInstance : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(PYXSingleInstance)
public:
    enum eResult {
        ekFirst,              ///< this is the first instance, from now until it stops
        ekHandedOver,         ///< another one is, and has taken the arguments
        ekFirstDoesNotAnswer, ///< another one is, but has not taken the arguments in time, and will not later
        ekRefused,            ///< another one is, and does not understand this one: another version, perhaps
        ekError               ///< nothing is known of others; errorString() tells why
    };
    Q_ENUM(eResult)

    /** Instances belong together that have the same names of application and organisation. */
    explicit PYXSingleInstance(QObject *parent = nullptr);
    /** Instances belong together that give the same text, of any length. */
    explicit PYXSingleInstance(const QString &applicationId, QObject *parent = nullptr);
    /** Stops. */
    ~PYXSingleInstance() override;

    /**
     * Becomes the first instance or hands the arguments, and the working directory, to it. A first instance
     * that is still starting, or busy, is waited for. May be called again, for instance after
     * ekFirstDoesNotAnswer; ekFirst at once where this is the first.
     */
    eResult start(const QStringList &arguments = QCoreApplication::arguments());
    bool isFirst() const { return m_server != nullptr; }
    /** Lets another instance become the first. */
    void stop();

    /** For the user, translated: why the last start() did not end in ekFirst or ekHandedOver; else empty. */
    QString errorString() const { return m_errorString; }

    /**
     * How long start() waits for the first instance, and the first one for a message once a connection is
     * there; 5000 ms. Before start().
     */
    void setTimeout(int milliseconds) { m_timeout = milliseconds; }
    int timeout() const { return m_timeout; }

Q_SIGNALS:
    /**
     * Another instance has been started, and ends now. Relative paths among its arguments, the first of which
     * is the program's name, are relative to its working directory. The slot may run an event loop or delete
     * this.
     */
    void si_argumentsReceived(const QStringList &a_arguments, const QString &a_workingDirectory);

private:
    eResult _startUntilTimeout(const QString &lockPath, const QString &socketName, const QByteArray &message);
    eResult _becomeFirst(std::unique_ptr<InstanceLock> lock, const QString &socketName);
    eResult _fail(eResult result, const QString &text);

    const QString m_applicationId;
    QString m_errorString;
    int m_timeout;
    std::unique_ptr<InstanceLock> m_lock;
    std::unique_ptr<InstanceServer> m_server;
};

} // namespace PYXRuntime
