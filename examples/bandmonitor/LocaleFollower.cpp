// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#include "LocaleFollower.h"

#include <PYXBroker.h>
#include <PYXITransConnector.h>

#include <QtCore/QLocale>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

using PYXRuntime::PYXITransConnector;

namespace BandMonitor {
namespace {

PYXITransConnector *connector()
{
    return PYXRuntime::PYXBroker::getInstance()->topObject<PYXITransConnector>();
}

} // namespace

LocaleFollower::LocaleFollower()
{
    if (connector() == nullptr)
        return;
    connect(connector(), &PYXITransConnector::si_localeChanged, this, &LocaleFollower::_follow);
    _follow();
}

void LocaleFollower::_follow()
{
    const QLocale system = QLocale::system();
    const QLocale spoken(connector()->getLocaleName());
    const QLocale locale = system.language() == spoken.language() ? system : spoken;
    QLocale::setDefault(locale);
    // New widgets have it from there, the others do not ask again.
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *const window : windows)
        window->setLocale(locale);
}

} // namespace BandMonitor
