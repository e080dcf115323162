// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "PYXBrokerInterface.h"
#include "PYXInterfaceIdentifiers.h"
#include "pyxruntime_export.h"

#include <QtCore/QObject>
#include <QtCore/QString>

namespace PYXRuntime {
class PYXIHelpConnector;
} // namespace PYXRuntime

// Before the class, so that every implementation answers to the interface id without further ado.
Q_DECLARE_INTERFACE(PYXRuntime::PYXIHelpConnector, "com.varnholt.PYXRuntime.PYXIHelpConnector/1.0")
PYX_DECLARE_BROKER_INTERFACE(PYXRuntime::PYXIHelpConnector, PYXRuntime::InterfaceIdentifiers::helpConnector())

namespace PYXRuntime {

/**
 * Opens the help at the page that belongs to what the user looks at. Pages are found by a context, a text
 * such as "PYXSettingsDialog::SHW_General_Paths::ContextHelp".
 *
 * The library's implementation, PYXHelpConnectorImpl, registers itself with the broker under the name 0 when
 * the application makes it.
 * @code
 * if (auto *help = PYXBroker::getInstance()->topObject<PYXIHelpConnector>())
 *     connect(action, &QAction::triggered, help, &PYXIHelpConnector::sl_onHelpRequested);
 * @endcode
 * Main thread only. The order of the operations is part of the contract.
 */
class PYXRUNTIME_EXPORT PYXIHelpConnector : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(PYXIHelpConnector)
    Q_INTERFACES(PYXRuntime::PYXIHelpConnector)
public:
    ~PYXIHelpConnector() override = default;

    /** Whether the context has a page of its own. */
    virtual bool hasHelp(const QString &context) const = 0;
    /**
     * Opens the page of the context, or the start page where it has none.
     * @return false, with a trace, where there is neither or it could not be opened.
     */
    virtual bool showHelp(const QString &context) = 0;

public Q_SLOTS:
    /** Opens the page for the sender: an action or a widget. */
    virtual void sl_onHelpRequested() = 0;

protected:
    explicit PYXIHelpConnector(QObject *parent = nullptr)
        : QObject(parent)
    {}
};

} // namespace PYXRuntime
