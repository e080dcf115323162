// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "pyxruntime_export.h"

#include <QtCore/QByteArray>
#include <QtCore/QHash>
#include <QtCore/QObject>
#include <QtCore/QString>

#include <array>
#include <atomic>
#include <shared_mutex>

namespace PYXRuntime {

/**
 * Developer diagnostics in named runtime scopes, each with a switch for debug and one for warning messages.
 *
 * A module registers its scope when it is loaded and keeps the token:
 * @code
 * const uint s_scope = PYXRuntimeCenter::registerRuntimeScope("Demodulator", "locks and levels");
 * ...
 * PYX_DEBUG(s_scope, QString("locked to %1 Hz").arg(frequency));
 * @endcode
 * Enabled messages go to the debugger channel and, where the matching global switch is on, to the trace,
 * with the scope's name as file and 0 as line.
 *
 * The file "config/pyxRuntimeScopes.cfg" (or "pyxRuntimeScopes.cfg") in the application's directory sets
 * the switches when the event loop starts: "name:option:option", where the name "*" means all scopes.
 * Options are +d -d +w -w, and for "*" also +td -td +tw -tw (copy debug, warnings to the trace).
 *
 * Messages may be written and switches read and set in any thread; scopes are registered while modules
 * load, and the center is destroyed when no other thread uses it.
 */
class PYXRUNTIME_EXPORT PYXRuntimeCenter : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(PYXRuntimeCenter)
public:
    /** What is known of a scope. */
    struct RuntimeScope
    {
        QString name;
        QByteArray latin1Name; ///< the name as the file argument of a trace
        QString purpose;
        bool debugEnabled = false;
        bool warningEnabled = true;
    };

    ~PYXRuntimeCenter() override;

    /**
     * Registers a scope, or gives a registered one a new purpose: it keeps its switches.
     * @param purpose may be marked QT_TRANSLATE_NOOP("PYXRuntime::RuntimeScopes", ...); the settings page of
     * the scopes translates it
     * @return the token, the same for this name in every process of one kind of machine.
     */
    static uint registerRuntimeScope(const QString &name, const QString &purpose);
    /** @return 0 if no scope has this name. */
    static uint runtimeScopeToken(const QString &name);
    /** @return an empty text if no scope has this token. */
    static QString runtimeScopeName(uint token);

    /** Writes the text if the scope's switch is on. An unregistered scope has debug off, warnings on. */
    static void pyxDebug(uint token, const QString &text)
    {
        if (_mayWriteDebug(token))
            _writeDebug(token, text);
    }
    static void pyxWarning(uint token, const QString &text);

    static bool isEnabled_pyxDebug(uint token) { return _mayWriteDebug(token) && _isDebugEnabled(token); }
    static bool isEnabled_pyxDebug(const QString &name);
    static bool isEnabled_pyxWarning(uint token);
    static bool isEnabled_pyxWarning(const QString &name);
    static void setEnabled_pyxDebug(uint token, bool enabled);
    static void setEnabled_pyxDebug(const QString &name, bool enabled);
    static void setEnabled_pyxWarning(uint token, bool enabled);
    static void setEnabled_pyxWarning(const QString &name, bool enabled);
    /** The one-argument forms switch all scopes, and those that are registered later. */
    static void setEnabled_pyxDebug(bool enabled);
    static void setEnabled_pyxWarning(bool enabled);

    /** Copies written messages to the trace. Default: warnings only. */
    static bool isEnabled_pyxDebugToTrace();
    static bool isEnabled_pyxWarningToTrace();
    static void setEnabled_pyxDebugToTrace(bool enabled);
    static void setEnabled_pyxWarningToTrace(bool enabled);

    /**
     * Reads the configuration file now instead of when the event loop starts; once per process.
     * Does nothing before QCoreApplication exists. Main thread.
     */
    static void handleConfigFiles();

    static bool hasInstance();
    /** Forgets all scopes and switches; the next use starts afresh. */
    static void destroyInstance();

    bool event(QEvent *event) override;

private Q_SLOTS:
    void _sl_qapp_aboutToQuit();

private:
    PYXRuntimeCenter();
    friend class SHW_Debug_RuntimeScopes; // shows and switches all scopes
    static PYXRuntimeCenter *getInstance();
    static QHash<uint, RuntimeScope> runtimeScopes();

    static bool _mayWriteDebug(uint token)
    {
        return s_debugGate[token % s_debugGate.size()].load(std::memory_order_relaxed) != 0;
    }
    static bool _isDebugEnabled(uint token);
    static void _writeDebug(uint token, const QString &text);
    static bool _readConfigFile(const QString &path);
    static void _applyConfigLine(const QString &line);
    static bool _applyGlobalOption(const QString &option);
    static bool _applyScopeOption(uint token, const QString &option);
    RuntimeScope _scope(uint token) const;
    static void _switchDebug(uint token, RuntimeScope &scope, bool enabled);

    /**
     * How many scopes whose token falls into the slot have debug on: lets a disabled message end without
     * a call or a look-up.
     */
    static std::array<std::atomic<int>, 1024> s_debugGate;

    bool m_bDebugDefault = false;
    bool m_bWarningDefault = true;
    std::atomic<bool> m_bDebugToTrace{false};
    std::atomic<bool> m_bWarningToTrace{true};
    QHash<QString, uint> m_tokens;
    QHash<uint, RuntimeScope> m_scopes;
    mutable std::shared_mutex m_lock;
};

} // namespace PYXRuntime

/** Writes to a scope; the text is only made where the scope's debug switch is on. */
#define PYX_DEBUG(token, text)                                                                               \
    do {                                                                                                     \
        if (::PYXRuntime::PYXRuntimeCenter::isEnabled_pyxDebug(token))                                       \
            ::PYXRuntime::PYXRuntimeCenter::pyxDebug(token, text);                                           \
    } while (false)

/** Writes to a scope; the text is only made where the scope's warning switch is on. */
#define PYX_WARNING(token, text)                                                                             \
    do {                                                                                                     \
        if (::PYXRuntime::PYXRuntimeCenter::isEnabled_pyxWarning(token))                                     \
            ::PYXRuntime::PYXRuntimeCenter::pyxWarning(token, text);                                         \
    } while (false)
