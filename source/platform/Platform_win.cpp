// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "Platform.h"

#include <QtCore/QDateTime>
#include <QtCore/QSettings>

#include <cstdio>
#include <malloc.h>
#include <windows.h>
// After windows.h, whose types it needs.
#include <mmsystem.h>

namespace PYXRuntime::Platform {
namespace {

quint64 ticksOf(const FILETIME &fileTime)
{
    return (quint64(fileTime.dwHighDateTime) << 32) | fileTime.dwLowDateTime;
}

void writeLine(std::FILE *stream, const QByteArray &bytes)
{
    const QByteArray line = bytes + '\n';
    std::fwrite(line.constData(), 1, static_cast<std::size_t>(line.size()), stream);
}

const wchar_t *wideText(const QString &text)
{
    return reinterpret_cast<const wchar_t *>(text.utf16());
}

} // namespace

bool isDebuggerAttached()
{
    return IsDebuggerPresent() != FALSE;
}

void writeDebuggerLine(const QString &text)
{
    OutputDebugStringW(wideText(text));
    OutputDebugStringW(L"\n");
}

void writeStandardErrorLine(const QString &text)
{
    writeLine(stderr, text.toLocal8Bit());
    std::fflush(stderr);
}

void writeStandardOutputLine(const QByteArray &bytes)
{
    writeLine(stdout, bytes);
}

QByteArray consoleBytes(const QString &text)
{
    // A console has a code page of its own, mostly not that of the system; 0, which stands for the system's,
    // where there is no console.
    const UINT codePage = GetConsoleOutputCP();
    const wchar_t *wide = wideText(text);
    const int length = text.size();
    const int needed = WideCharToMultiByte(codePage, 0, wide, length, nullptr, 0, nullptr, nullptr);
    QByteArray bytes(needed, Qt::Uninitialized);
    WideCharToMultiByte(codePage, 0, wide, length, bytes.data(), needed, nullptr, nullptr);
    return bytes;
}

void setConsoleColour(eConsoleColour colour)
{
    const HANDLE console =
        CreateFileW(L"CONOUT$", GENERIC_WRITE, FILE_SHARE_WRITE, nullptr, OPEN_EXISTING, 0, nullptr);
    if (console == INVALID_HANDLE_VALUE)
        return;
    std::fflush(stdout);
    SetConsoleTextAttribute(console, colour);
    CloseHandle(console);
}

qint64 performanceCounter(bool *ok)
{
    LARGE_INTEGER counter = {};
    const bool success = QueryPerformanceCounter(&counter) != FALSE;
    if (ok != nullptr)
        *ok = success;
    return success ? counter.QuadPart : 0;
}

qint64 performanceFrequency(bool *ok)
{
    LARGE_INTEGER frequency = {};
    const bool success = QueryPerformanceFrequency(&frequency) != FALSE && frequency.QuadPart != 0;
    if (ok != nullptr)
        *ok = success;
    return success ? frequency.QuadPart : 0;
}

quint32 uptimeMilliseconds()
{
    return timeGetTime();
}

quint64 tickMilliseconds()
{
    return GetTickCount64();
}

quint64 fileTimeNow()
{
    FILETIME now = {};
    GetSystemTimeAsFileTime(&now);
    return ticksOf(now);
}

quint64 fileTimeOfUnixEpoch()
{
    SYSTEMTIME epoch = {};
    epoch.wYear = 1970;
    epoch.wMonth = 1;
    epoch.wDay = 1;
    FILETIME fileTime = {};
    SystemTimeToFileTime(&epoch, &fileTime);
    return ticksOf(fileTime);
}

struUtcTime utcTime()
{
    return {QDateTime::currentMSecsSinceEpoch(), 0};
}

quint64 cycleCounter()
{
    return 0; // The clock is as fast.
}

QString libraryFileName(const QString &baseName)
{
    return baseName + QLatin1String(".dll");
}

bool canReplaceOpenFiles()
{
    return false;
}

bool mayBecomeReplaceable(const QString &file)
{
    // Opened so that it is in nobody's way.
    const HANDLE handle =
        CreateFileW(wideText(file), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                    nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle == INVALID_HANDLE_VALUE)
        return GetLastError() == ERROR_SHARING_VIOLATION;
    CloseHandle(handle);
    return true;
}

bool isFileRemoved(int)
{
    // Qt opens files so that they cannot be removed meanwhile.
    return false;
}

bool doLinesEndWithCarriageReturn()
{
    return true;
}

void registerXmlFileType(const QString &suffix)
{
    QSettings classes(QStringLiteral("HKEY_CLASSES_ROOT"), QSettings::NativeFormat);
    classes.beginGroup(QLatin1Char('.') + suffix);
    classes.setValue(QStringLiteral("."), QStringLiteral("xmlfile"));
    classes.setValue(QStringLiteral("Content Type"), QStringLiteral("text/xml"));
    classes.setValue(QStringLiteral("PerceivedType"), QStringLiteral("text"));
    classes.endGroup();
}

QVector<quint16> resourceLanguages()
{
    const LANGID user = GetUserDefaultLangID();
    const LANGID system = GetSystemDefaultLangID();
    return {LANGIDFROMLCID(GetThreadLocale()), user, quint16(PRIMARYLANGID(user)), system,
            quint16(PRIMARYLANGID(system))};
}

void returnFreedMemory()
{
    _heapmin();
}

} // namespace PYXRuntime::Platform
