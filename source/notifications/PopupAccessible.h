// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

class QWidget;

namespace PYXRuntime {

/** Makes assistive technology see pop-ups as alerts. To be called before one is announced. */
void installPopupAccessibility();

/** Tells assistive technology that the pop-up has come up; its accessible name is what is read. */
void announcePopup(QWidget *widget);

} // namespace PYXRuntime
