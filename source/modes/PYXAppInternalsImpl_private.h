// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QHash>
#include <QtCore/QObject>
#include <QtCore/QPointer>

class QShortcut;
class QWidget;

namespace PYXRuntime {

class PYXAppInternalsImpl;

/** What of the application modes needs a QObject: signals, slots and the shortcuts, which it deletes. */
class PYXAppInternalsImpl_private final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(PYXAppInternalsImpl_private)
public:
    /** Lives no longer than @p internals. */
    explicit PYXAppInternalsImpl_private(PYXAppInternalsImpl *internals);
    ~PYXAppInternalsImpl_private() override;

    void installShortcuts(QWidget *widget);
    void uninstallShortcuts(QWidget *widget);
    /** From the event loop: before that, the owner may still be under construction. */
    void checkInterfaceSoon();

Q_SIGNALS:
    void si_appModesChanged(quint64 a_oldAppModes, quint64 a_newAppModes);
    void si_internalFlagsChanged(quint64 a_oldInternalFlags, quint64 a_newInternalFlags);
    void si_specialModeFlagsChanged(quint64 a_oldSpecialModeFlags, quint64 a_newSpecialModeFlags);

private Q_SLOTS:
    void _sl_checkInterface();
    void _sl_logAppMode();
    void _sl_scDebug_activated();
    void _sl_scExpert_activated();

private:
    /** Children of their widget, which may be gone. */
    struct struShortcuts
    {
        QPointer<QShortcut> debug;
        QPointer<QShortcut> expert;
    };

    QShortcut *_newShortcut(QWidget *widget, const char *chord, void (PYXAppInternalsImpl_private::*slot)());
    void _toggle(quint64 mode, const QString &activated, const QString &deactivated);
    static void _remove(const struShortcuts &shortcuts);

    PYXAppInternalsImpl *const m_internals;
    /** By widgets that are only compared. */
    QHash<const QObject *, struShortcuts> m_shortcuts;
};

} // namespace PYXRuntime
