// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "PYXIAppInternals.h"
#include "pyxruntime_export.h"

#include <QtCore/QPointer>
#include <QtCore/QStringList>

#include <memory>

class QWidget;

namespace PYXRuntime {

class PYXAppInternalsImpl_private;

/**
 * Keeps the modes and flags, takes them from the command line and from key chords, and tells of changes.
 *
 * It is no QObject, so that any class of an application can derive from it beside one; PYXAppInternalsSimple
 * is such a class. The arguments +e or ++expert, -e or --expert, +d or ++debug and -d or --debug, in capitals
 * as well, switch the modes on and off.
 *
 * Signals, which come synchronously out of the call that changes a set, and only where it changes:
 * @code
 * si_appModesChanged(quint64 a_oldAppModes, quint64 a_newAppModes)
 * si_internalFlagsChanged(quint64 a_oldInternalFlags, quint64 a_newInternalFlags)
 * si_specialModeFlagsChanged(quint64 a_oldSpecialModeFlags, quint64 a_newSpecialModeFlags)
 * @endcode
 * A listener may destroy the object. Main thread only; needs the application object. No operation fails.
 */
class PYXRUNTIME_EXPORT PYXAppInternalsImpl : public PYXIAppInternals
{
    Q_DISABLE_COPY(PYXAppInternalsImpl)
public:
    /**
     * Reads the arguments of the process. Ten seconds later the modes that are on are traced.
     * @param owner the object that implements the interface for the broker, usually the one under
     * construction
     */
    explicit PYXAppInternalsImpl(QObject *owner);
    /** Cleans up where that was forgotten. */
    ~PYXAppInternalsImpl() override;

    /** Registers the owner with the broker, under the name 0: from now on everybody knows the modes. */
    void initialize_PYXAppInternalsImpl();
    /** Unregisters it. Before the owner is destroyed. */
    void cleanup_PYXAppInternalsImpl();

    const QStringList &cmdLineArgs() const override { return m_cmdLineArgs; }
    const QStringList &cmdLineArgs_withoutStandard() const override { return m_cmdLineArgs_withoutStandard; }
    quint64 appModes() const override { return m_appModes; }
    quint64 internalFlags() const override { return m_internalFlags; }
    quint64 specialModeFlags() const override { return m_specialModeFlags; }

    /** Sets these bits beside those that are set. */
    void setAppModes(quint64 bits) { overrideAppModes(m_appModes | bits); }
    void setInternalFlags(quint64 bits) { overrideInternalFlags(m_internalFlags | bits); }
    void setSpecialModeFlags(quint64 bits) { overrideSpecialModeFlags(m_specialModeFlags | bits); }
    /** Clears these bits only. */
    void unsetAppModes(quint64 bits) { overrideAppModes(m_appModes & ~bits); }
    void unsetInternalFlags(quint64 bits) { overrideInternalFlags(m_internalFlags & ~bits); }
    void unsetSpecialModeFlags(quint64 bits) { overrideSpecialModeFlags(m_specialModeFlags & ~bits); }
    /** Replaces all bits. */
    void overrideAppModes(quint64 value);
    void overrideInternalFlags(quint64 value);
    void overrideSpecialModeFlags(quint64 value);

    /** @param method given by SLOT() or SIGNAL(). @return whether the connection is valid. */
    bool connectSignal_appModesChanged(QObject *receiver, const char *method,
                                       Qt::ConnectionType type = Qt::AutoConnection);
    bool connectSignal_internalFlagsChanged(QObject *receiver, const char *method,
                                            Qt::ConnectionType type = Qt::AutoConnection);
    bool connectSignal_specialModeFlagsChanged(QObject *receiver, const char *method,
                                               Qt::ConnectionType type = Qt::AutoConnection);
    /** Nothing happens without a receiver. */
    void disconnectSignal_appModesChanged(QObject *receiver, const char *method);
    void disconnectSignal_internalFlagsChanged(QObject *receiver, const char *method);
    void disconnectSignal_specialModeFlagsChanged(QObject *receiver, const char *method);
    /** All three. */
    void disconnectSignals(QObject *receiver);

    /**
     * Lets a window toggle the modes by Ctrl+Shift+A, Ctrl+Shift+M and then Ctrl+Shift+D (debug) or
     * Ctrl+Shift+E (expert), each with a pop-up. Nothing happens where the widget has them; they go with the
     * widget or with this object.
     */
    void installShortcuts_AppModes(QWidget *widget);
    void uninstallShortcuts_AppModes(QWidget *widget);

    /** Traces the modes that are on. */
    void logAppMode() const;

protected:
    /**
     * Takes the arguments of a second instance of the application as the new ones, and switches modes as they
     * say: a mode they do not name stays as it is.
     */
    void _handleCmdLineArgsFromRunningApp(const QStringList &arguments);

private:
    friend class PYXAppInternalsImpl_private;
    void _takeArguments(QStringList arguments);

    const std::unique_ptr<PYXAppInternalsImpl_private> m_private;
    QStringList m_cmdLineArgs;
    QStringList m_cmdLineArgs_withoutStandard;
    quint64 m_appModes = 0;
    quint64 m_internalFlags = 0;
    quint64 m_specialModeFlags = 0;
    QPointer<QObject> m_owner;
    bool m_bRegistered = false;
};

} // namespace PYXRuntime
