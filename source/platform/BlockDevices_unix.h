// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QString>

namespace PYXRuntime::Platform {

/**
 * Whether a block device, or one that it is made of, has a medium that can be taken out.
 * @param device its name, such as "sdb1" or "dm-0".
 * @param sysDirectory where the system tells of its devices, "/sys".
 */
bool isRemovableBlockDevice(const QString &device, const QString &sysDirectory);

} // namespace PYXRuntime::Platform
