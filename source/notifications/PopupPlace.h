// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QRect>

class QWidget;

namespace PYXRuntime {

/** Whether the window system lets a program say where its windows are, and how opaque. */
bool canPlaceAndFadeWindows();

/** What a pop-up is centred over, in global coordinates. */
QRect popupReference(const QWidget *parent);

/** The window inside which a pop-up is painted that cannot be a window. Null if there is none. */
QWidget *popupHost(QWidget *parent);

/** The rectangle of that size in the middle of another one. */
QRect centred(QSize size, const QRect &reference);

} // namespace PYXRuntime
