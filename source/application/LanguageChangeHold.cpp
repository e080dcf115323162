// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "LanguageChangeHold.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QEvent>

namespace PYXRuntime {

LanguageChangeHold::LanguageChangeHold()
{
    if (QCoreApplication::instance() != nullptr)
        QCoreApplication::instance()->installEventFilter(this);
}

LanguageChangeHold::~LanguageChangeHold() = default;

void LanguageChangeHold::release()
{
    m_bHolding = false;
    if (!m_bHeldBack)
        return;
    m_bHeldBack = false;
    QEvent event(QEvent::LanguageChange);
    QCoreApplication::sendEvent(QCoreApplication::instance(), &event);
}

bool LanguageChangeHold::eventFilter(QObject *watched, QEvent *event)
{
    if (!m_bHolding || event->type() != QEvent::LanguageChange || watched != QCoreApplication::instance())
        return false;
    m_bHeldBack = true;
    return true;
}

} // namespace PYXRuntime
