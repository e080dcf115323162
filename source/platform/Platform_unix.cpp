// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "Platform.h"

#include <cstdio>
#include <ctime>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace PYXRuntime::Platform {
namespace {

constexpr qint64 NanosecondsPerSecond = 1'000'000'000;
constexpr qint64 NanosecondsPerMillisecond = 1'000'000;
// No processor of this family counts below 0.6 GHz.
constexpr quint64 NanosecondsPerCycleAtMost = 2;
constexpr quint64 FileTimeTicksPerSecond = 10'000'000;
// Seconds from 1601-01-01 to 1970-01-01 (RFC 1305 counts 369 years with 89 leap days).
constexpr quint64 SecondsFrom1601To1970 = (369ULL * 365 + 89) * 86400;

void writeLine(std::FILE *stream, const QByteArray &bytes)
{
    // One call, so that lines of several threads do not mix.
    const QByteArray line = bytes + '\n';
    std::fwrite(line.constData(), 1, static_cast<std::size_t>(line.size()), stream);
}

const char *escapeSequence(eConsoleColour colour)
{
    switch (colour) {
    case ekConsole_Green:
        return "\033[92m";
    case ekConsole_Cyan:
        return "\033[96m";
    case ekConsole_Red:
        return "\033[91m";
    case ekConsole_Yellow:
        return "\033[93m";
    case ekConsole_White:
        break;
    }
    // A terminal's normal colour is its user's choice: white letters would vanish on white ground.
    return "\033[0m";
}

qint64 nanosecondsOf(clockid_t clock, bool *ok)
{
    timespec now = {};
    const bool success = clock_gettime(clock, &now) == 0;
    if (ok != nullptr)
        *ok = success;
    return success ? qint64(now.tv_sec) * NanosecondsPerSecond + qint64(now.tv_nsec) : 0;
}

} // namespace

bool isDebuggerAttached()
{
    // Read with plain calls: this runs for every line, also where Qt's files are not to be had yet.
    const int file = open("/proc/self/status", O_RDONLY | O_CLOEXEC);
    if (file < 0)
        return false;
    char buffer[4096];
    const ssize_t length = read(file, buffer, sizeof buffer - 1);
    close(file);
    const QByteArray status = QByteArray::fromRawData(buffer, int(qMax<ssize_t>(length, 0)));
    // No static object: traces are written until the process ends, after destructors have run.
    constexpr char Tag[] = "\nTracerPid:\t";
    constexpr int TagLength = int(sizeof Tag) - 1;
    const int at = status.indexOf(Tag);
    return at >= 0 && at + TagLength < status.size() && status.at(at + TagLength) != '0';
}

void writeDebuggerLine(const QString &text)
{
    writeStandardErrorLine(text);
}

void writeStandardErrorLine(const QString &text)
{
    writeLine(stderr, text.toUtf8());
    std::fflush(stderr);
}

void writeStandardOutputLine(const QByteArray &bytes)
{
    writeLine(stdout, bytes);
}

void setConsoleColour(eConsoleColour colour)
{
    static const bool isTerminal = isatty(STDERR_FILENO) == 1;
    if (!isTerminal)
        return;
    std::fflush(stdout);
    std::fputs(escapeSequence(colour), stderr);
    std::fflush(stderr);
}

qint64 performanceCounter(bool *ok)
{
    return nanosecondsOf(CLOCK_MONOTONIC, ok);
}

qint64 performanceFrequency(bool *ok)
{
    if (ok != nullptr)
        *ok = true;
    return NanosecondsPerSecond;
}

quint32 uptimeMilliseconds()
{
    return static_cast<quint32>(nanosecondsOf(CLOCK_BOOTTIME, nullptr) / 1'000'000);
}

quint64 tickMilliseconds()
{
    return static_cast<quint64>(nanosecondsOf(CLOCK_MONOTONIC_COARSE, nullptr) / 1'000'000);
}

quint64 fileTimeNow()
{
    return fileTimeOfUnixEpoch() + quint64(nanosecondsOf(CLOCK_REALTIME, nullptr)) / 100;
}

quint64 fileTimeOfUnixEpoch()
{
    return SecondsFrom1601To1970 * FileTimeTicksPerSecond;
}

struUtcTime utcTime()
{
    timespec now = {};
    clock_gettime(CLOCK_REALTIME, &now);
    const qint64 left = NanosecondsPerMillisecond - now.tv_nsec % NanosecondsPerMillisecond;
    return {qint64(now.tv_sec) * 1000 + now.tv_nsec / NanosecondsPerMillisecond,
            quint64(left) / NanosecondsPerCycleAtMost};
}

quint64 cycleCounter()
{
#ifdef __x86_64__
    return __builtin_ia32_rdtsc();
#else
    return 0;
#endif
}

QString libraryFileName(const QString &baseName)
{
    return baseName;
}

bool canReplaceOpenFiles()
{
    return true;
}

bool mayBecomeReplaceable(const QString &)
{
    return false;
}

bool isFileRemoved(int fileHandle)
{
    struct stat status = {};
    return fstat(fileHandle, &status) == 0 && status.st_nlink == 0;
}

bool doLinesEndWithCarriageReturn()
{
    return false;
}

void registerXmlFileType(const QString &) {}

QVector<quint16> resourceLanguages()
{
    return {};
}

void returnFreedMemory()
{
#ifdef __GLIBC__
    // Its heap gives back by itself only what lies at its end.
    malloc_trim(0);
#endif
}

} // namespace PYXRuntime::Platform
