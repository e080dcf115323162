// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "PYXAppInternalsImpl.h"

#include <QtCore/QObject>

namespace PYXRuntime {

class PYXSingleInstance;

/**
 * The modes of an application, ready-made:
 * @code
 * PYXAppInternalsSimple internals; // after the application object
 * internals.initialize_PYXAppInternalsImpl();
 * internals.installShortcuts_AppModes(&window);
 * @endcode
 * It unregisters itself when it is destroyed. Main thread only.
 */
class PYXRUNTIME_EXPORT PYXAppInternalsSimple : public QObject, public PYXAppInternalsImpl
{
    Q_OBJECT
    Q_DISABLE_COPY(PYXAppInternalsSimple)
    Q_INTERFACES(PYXRuntime::PYXIAppInternals)
public:
    explicit PYXAppInternalsSimple(QObject *parent = nullptr);
    ~PYXAppInternalsSimple() override;

    /**
     * From now on the arguments of a second instance become those of this one. Slots that are connected to
     * the instance later find them here already.
     */
    void connectSingleInstance(PYXSingleInstance *instance);

private Q_SLOTS:
    void _sl_singleInstance_argumentsReceived(const QStringList &a_arguments);
};

} // namespace PYXRuntime
