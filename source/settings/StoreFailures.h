// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QSettings>

/** Tells of stores that cannot be written: once, not at every attempt. Any thread. */
namespace PYXRuntime::StoreFailures {

/** To be called after an attempt to save; @p before is the status from before it. */
void noteSaved(const QSettings &settings, QSettings::Status before);

/** Whether it was told of a store, which has not been saved since. */
bool isFailing(const QString &file);

} // namespace PYXRuntime::StoreFailures
