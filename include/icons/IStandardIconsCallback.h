// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtGui/QIcon>

namespace PYXRuntime {

/**
 * Gives icons for ids that a module has registered it for with PYXStandardIcons.
 *
 * Asked anew for every request, in the GUI thread, so it should keep what it makes. It may itself ask
 * PYXStandardIcons, also for the id it is asked for: it is passed over then. It may register, unregister or
 * delete callbacks, itself too. The order of the operations is part of the binary contract.
 */
class IStandardIconsCallback
{
public:
    virtual ~IStandardIconsCallback() = default;
    /** The icon for the id; an empty one leaves it to standardIconPath(). */
    virtual QIcon standardIcon(uint id) = 0;
    /** The base path of its image files; an empty one leaves the id to whoever comes next. */
    virtual QString standardIconPath(uint id) = 0;

protected:
    IStandardIconsCallback() = default;
    Q_DISABLE_COPY(IStandardIconsCallback)
};

} // namespace PYXRuntime

Q_DECLARE_INTERFACE(PYXRuntime::IStandardIconsCallback, "com.varnholt.PYXRuntime.IStandardIconsCallback/1.0")
