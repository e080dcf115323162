// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "pyxruntime_export.h"

#include <QtCore/QString>

/** @file
 * Last-resort message output: usable in every thread, before and after everything else of the library.
 * A null text is an empty one. Narrow texts are UTF-8.
 */

/** Writes the text and a newline to the debugger if one is attached, else to standard error, flushed. */
PYXRUNTIME_EXPORT void pyx_message_output(const QString &text);
PYXRUNTIME_EXPORT void pyx_message_output(const char *text);
PYXRUNTIME_EXPORT void pyx_message_output(const wchar_t *text);

/** Always writes the text and a newline to the debugger channel (on Linux: standard error). */
PYXRUNTIME_EXPORT void pyx_message_debug_output(const QString &text);
PYXRUNTIME_EXPORT void pyx_message_debug_output(const char *text);
PYXRUNTIME_EXPORT void pyx_message_debug_output(const wchar_t *text);

/** Always writes the text and a newline to standard error, flushed. */
PYXRUNTIME_EXPORT void pyx_message_stderr_output(const QString &text);
PYXRUNTIME_EXPORT void pyx_message_stderr_output(const char *text);
PYXRUNTIME_EXPORT void pyx_message_stderr_output(const wchar_t *text);
