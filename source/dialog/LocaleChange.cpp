// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "LocaleChange.h"

#include "PYXBroker.h"
#include "PYXInterfaceIdentifiers.h"

namespace PYXRuntime {
namespace {

// By name: any object can stand in for the library's own connector.
QObject *translationConnector()
{
    QObject *const connector = PYXBroker::getInstance()->topObject(InterfaceIdentifiers::transConnector(), 0);
    const bool bTells =
        connector != nullptr && connector->metaObject()->indexOfSignal("si_localeChanged()") >= 0;
    return bTells ? connector : nullptr;
}

} // namespace

void connectToLocaleChange(const QObject *receiver, const char *slot)
{
    if (const QObject *const connector = translationConnector())
        QObject::connect(connector, SIGNAL(si_localeChanged()), receiver, slot, Qt::UniqueConnection);
}

} // namespace PYXRuntime
