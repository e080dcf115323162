// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXMessageOutput.h"

#include "Platform.h"

namespace Platform = PYXRuntime::Platform;

void pyx_message_output(const QString &text)
{
    if (Platform::isDebuggerAttached())
        Platform::writeDebuggerLine(text);
    else
        Platform::writeStandardErrorLine(text);
}

void pyx_message_output(const char *text)
{
    pyx_message_output(QString::fromUtf8(text));
}

void pyx_message_output(const wchar_t *text)
{
    pyx_message_output(text != nullptr ? QString::fromWCharArray(text) : QString());
}

void pyx_message_debug_output(const QString &text)
{
    Platform::writeDebuggerLine(text);
}

void pyx_message_debug_output(const char *text)
{
    pyx_message_debug_output(QString::fromUtf8(text));
}

void pyx_message_debug_output(const wchar_t *text)
{
    pyx_message_debug_output(text != nullptr ? QString::fromWCharArray(text) : QString());
}

void pyx_message_stderr_output(const QString &text)
{
    Platform::writeStandardErrorLine(text);
}

void pyx_message_stderr_output(const char *text)
{
    pyx_message_stderr_output(QString::fromUtf8(text));
}

void pyx_message_stderr_output(const wchar_t *text)
{
    pyx_message_stderr_output(text != nullptr ? QString::fromWCharArray(text) : QString());
}
