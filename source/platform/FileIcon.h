// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QString>
#include <QtGui/QIcon>

namespace PYXRuntime::Platform {

/**
 * The icon that the system shows for a file that exists. The GUI thread only.
 * @param index which of the icons that a program holds, where the system has such programs
 */
QIcon fileIcon(const QString &path, int index);

} // namespace PYXRuntime::Platform
