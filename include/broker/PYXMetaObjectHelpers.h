// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "pyxruntime_export.h"

#include <QtCore/QObject>

namespace PYXRuntime {

/**
 * Checks whether a QObject can stand for an interface that is described by a meta-object, for example
 * a class of nothing but signals. Any thread.
 */
class PYXRUNTIME_EXPORT PYXMetaObjectHelpers final
{
public:
    PYXMetaObjectHelpers() = delete;

    /** Whether obj is, or inherits, the interface's class (or one of the same name). False for null. */
    static bool checkInherits(const QMetaObject *obj, const QMetaObject *iface);

    /**
     * Whether obj inherits the interface's class or has every method, signal and slot of it. What is
     * missing is traced as an error; a method with another access is only traced as a warning.
     * False for null.
     */
    static bool checkInterfaceCompatibility(const QMetaObject *obj, const QMetaObject *iface);
    static bool checkInterfaceCompatibility(const QObject *obj, const QMetaObject *iface);
    static bool checkInterfaceCompatibility(const QObject *obj, const QObject *iface);
};

} // namespace PYXRuntime
