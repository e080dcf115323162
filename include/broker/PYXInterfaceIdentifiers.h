// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "pyxruntime_export.h"

#include <QtCore/QUuid>

/** @file
 * The broker identifiers of the library's interfaces. All of them are declared to the broker, with the
 * qualified class name, while the library loads. Any thread.
 */
namespace PYXRuntime::InterfaceIdentifiers {

/** The root of all: any QObject. */
PYXRUNTIME_EXPORT QUuid object();
PYXRUNTIME_EXPORT QUuid applicationInfo();
PYXRUNTIME_EXPORT QUuid appInternals();
PYXRUNTIME_EXPORT QUuid configurator();
PYXRUNTIME_EXPORT QUuid fileList();
PYXRUNTIME_EXPORT QUuid helpConnector();
PYXRUNTIME_EXPORT QUuid menuExtension();
PYXRUNTIME_EXPORT QUuid transConnector();

} // namespace PYXRuntime::InterfaceIdentifiers
