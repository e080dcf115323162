// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXAppInternalsSimple.h"

#include "PYXSingleInstance.h"

namespace PYXRuntime {

PYXAppInternalsSimple::PYXAppInternalsSimple(QObject *parent)
    : QObject(parent)
    , PYXAppInternalsImpl(this)
{}

PYXAppInternalsSimple::~PYXAppInternalsSimple()
{
    // Here, as long as whoever hears of it can still see the interface in the object.
    cleanup_PYXAppInternalsImpl();
}

void PYXAppInternalsSimple::connectSingleInstance(PYXSingleInstance *instance)
{
    connect(instance, &PYXSingleInstance::si_argumentsReceived, this,
            &PYXAppInternalsSimple::_sl_singleInstance_argumentsReceived, Qt::UniqueConnection);
}

void PYXAppInternalsSimple::_sl_singleInstance_argumentsReceived(const QStringList &a_arguments)
{
    _handleCmdLineArgsFromRunningApp(a_arguments);
}

} // namespace PYXRuntime
