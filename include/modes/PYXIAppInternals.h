// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "PYXBrokerInterface.h"
#include "PYXInterfaceIdentifiers.h"

#include <QtCore/QStringList>

namespace PYXRuntime {

/**
 * The modes in which the application runs, and the arguments it was started with. Flags are sets of bits;
 * those that have no name here belong to the application.
 *
 * The application makes an implementation, mostly a PYXAppInternalsSimple, and registers it with the broker
 * under the name 0. Whoever only wants to know a mode asks the functions in AppInternals.h. Main thread only.
 * The order of the operations is part of the contract.
 */
class PYXIAppInternals
{
public:
    /** The bits of appModes() that the library knows. */
    enum eAppMode : quint64 { ekAppMode_Debug = 0x1, ekAppMode_Expert = 0x2 };

    virtual bool appIsInDebugMode() const { return (appModes() & ekAppMode_Debug) != 0; }
    virtual bool appIsInExpertMode() const { return (appModes() & ekAppMode_Expert) != 0; }
    /** As received, the program's name first. The list itself: copy it to keep it. */
    virtual const QStringList &cmdLineArgs() const = 0;
    /** Those that did not switch a mode. The list itself: copy it to keep it. */
    virtual const QStringList &cmdLineArgs_withoutStandard() const = 0;
    /** The same as cmdLineArgs(). */
    virtual const QStringList &arguments() const { return cmdLineArgs(); }
    virtual quint64 appModes() const = 0;
    virtual quint64 internalFlags() const = 0;
    virtual quint64 specialModeFlags() const = 0;
    virtual ~PYXIAppInternals() = default;
};

} // namespace PYXRuntime

Q_DECLARE_INTERFACE(PYXRuntime::PYXIAppInternals, "com.varnholt.PYXRuntime.PYXIAppInternals/1.1")
PYX_DECLARE_BROKER_INTERFACE(PYXRuntime::PYXIAppInternals, PYXRuntime::InterfaceIdentifiers::appInternals())
