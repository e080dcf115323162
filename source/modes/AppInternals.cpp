// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "AppInternals.h"

#include "PYXBroker.h"
#include "PYXIAppInternals.h"

namespace PYXRuntime::appInternals {
namespace {

PYXIAppInternals *topInternals()
{
    return PYXBroker::getInstance()->topObject<PYXIAppInternals>();
}

} // namespace

bool appIsInDebugMode()
{
    const PYXIAppInternals *const internals = topInternals();
    return internals != nullptr && internals->appIsInDebugMode();
}

bool appIsInExpertMode()
{
    const PYXIAppInternals *const internals = topInternals();
    return internals != nullptr && internals->appIsInExpertMode();
}

quint64 appModes()
{
    const PYXIAppInternals *const internals = topInternals();
    return internals != nullptr ? internals->appModes() : 0;
}

} // namespace PYXRuntime::appInternals
