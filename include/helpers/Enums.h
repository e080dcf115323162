// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "pyxruntime_export.h"

#include <QtCore/QObject>

namespace PYXRuntime {

/**
 * The enumerations whose names are stored: a renamed enumerator would no longer be read. EnumHelpers
 * converts them. The object makes them known to QMetaType; initialising the library creates it.
 */
class PYXRUNTIME_EXPORT Enums final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(Enums)
public:
    enum eProxyType : int {
        ekProxy_NoProxy = 0,
        ekProxy_UseSystemSettings = 1,
        ekProxy_ManualConfiguration = 2,
        ekProxy_Default = ekProxy_NoProxy
    };
    Q_ENUM(eProxyType)

    enum eProxyVariant : int {
        ekProxyVariant_HTTP = 0,
        ekProxyVariant_SOCKS5 = 1,
        ekProxyVariant_Default = ekProxyVariant_HTTP
    };
    Q_ENUM(eProxyVariant)

    ~Enums() override;

    static Enums *getInstance();
    static bool hasInstance();
    static void makeSureInitialized();
    static void destroyInstance();

private:
    explicit Enums(QObject *parent = nullptr);
};

} // namespace PYXRuntime
