// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXAppInternalsImpl_private.h"

#include "PYXAppInternalsImpl.h"
#include "PYXPopupNotification.h"
#include "PYXTraceWrapper.h"

#include <QtCore/QTimer>
#include <QtWidgets/QShortcut>
#include <QtWidgets/QWidget>

namespace PYXRuntime {
namespace {

constexpr const char *TraceFile = "source\\PYXAppInternalsImpl";
constexpr const char *DebugChord = "Ctrl+Shift+A,Ctrl+Shift+M,Ctrl+Shift+D";
constexpr const char *ExpertChord = "Ctrl+Shift+A,Ctrl+Shift+M,Ctrl+Shift+E";
constexpr int LogDelayMs = 10'000;

} // namespace

PYXAppInternalsImpl_private::PYXAppInternalsImpl_private(PYXAppInternalsImpl *internals)
    : m_internals(internals)
{
    // Goes with this object: the one of QTimer::singleShot() would stay until its time has come.
    auto *const timer = new QTimer(this);
    timer->setSingleShot(true);
    connect(timer, &QTimer::timeout, this, &PYXAppInternalsImpl_private::_sl_logAppMode);
    timer->start(LogDelayMs);
}

PYXAppInternalsImpl_private::~PYXAppInternalsImpl_private()
{
    for (const struShortcuts &shortcuts : qAsConst(m_shortcuts))
        _remove(shortcuts);
}

void PYXAppInternalsImpl_private::installShortcuts(QWidget *widget)
{
    if (widget == nullptr || m_shortcuts.contains(widget))
        return;
    m_shortcuts.insert(
        widget, {_newShortcut(widget, DebugChord, &PYXAppInternalsImpl_private::_sl_scDebug_activated),
                 _newShortcut(widget, ExpertChord, &PYXAppInternalsImpl_private::_sl_scExpert_activated)});
    connect(widget, &QObject::destroyed, this, [this](QObject *destroyed) { m_shortcuts.remove(destroyed); });
}

void PYXAppInternalsImpl_private::uninstallShortcuts(QWidget *widget)
{
    if (widget == nullptr || !m_shortcuts.contains(widget))
        return;
    disconnect(widget, &QObject::destroyed, this, nullptr);
    _remove(m_shortcuts.take(widget));
}

void PYXAppInternalsImpl_private::checkInterfaceSoon()
{
    QMetaObject::invokeMethod(this, &PYXAppInternalsImpl_private::_sl_checkInterface, Qt::QueuedConnection);
}

void PYXAppInternalsImpl_private::_sl_checkInterface()
{
    QObject *const owner = m_internals->m_owner;
    if (owner == nullptr || pyxInterfaceCast<PYXIAppInternals>(owner) != nullptr)
        return;
    PYXTraceWrapper::staticTraceWarn(
        QLatin1String(
            "nobody will find the application modes: the registered object lacks PYXIAppInternals: ") +
            QLatin1String(owner->metaObject()->className()),
        TraceFile, __LINE__);
}

void PYXAppInternalsImpl_private::_sl_logAppMode()
{
    m_internals->logAppMode();
}

void PYXAppInternalsImpl_private::_sl_scDebug_activated()
{
    _toggle(PYXIAppInternals::ekAppMode_Debug, tr("++debug mode activated"), tr("++debug mode deactivated"));
}

void PYXAppInternalsImpl_private::_sl_scExpert_activated()
{
    _toggle(PYXIAppInternals::ekAppMode_Expert, tr("++expert mode activated"),
            tr("++expert mode deactivated"));
}

QShortcut *PYXAppInternalsImpl_private::_newShortcut(QWidget *widget, const char *chord,
                                                     void (PYXAppInternalsImpl_private::*slot)())
{
    auto *const shortcut =
        new QShortcut(QKeySequence::fromString(QLatin1String(chord), QKeySequence::PortableText), widget);
    shortcut->setContext(Qt::WindowShortcut);
    connect(shortcut, &QShortcut::activated, this, slot);
    // Where two widgets of one window have them, which happens when a floating one comes back.
    connect(shortcut, &QShortcut::activatedAmbiguously, this, slot);
    return shortcut;
}

void PYXAppInternalsImpl_private::_toggle(quint64 mode, const QString &activated, const QString &deactivated)
{
    const bool isOn = (m_internals->appModes() & mode) != 0;
    PYXPopupNotification::queueNotification(isOn ? deactivated : activated);
    // Last: a listener may destroy all of this.
    if (isOn)
        m_internals->unsetAppModes(mode);
    else
        m_internals->setAppModes(mode);
}

void PYXAppInternalsImpl_private::_remove(const struShortcuts &shortcuts)
{
    delete shortcuts.debug;
    delete shortcuts.expert;
}

} // namespace PYXRuntime
