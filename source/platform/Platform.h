// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QVector>

/**
 * Every call to an operating system, behind small functions. Each has two sides: Platform_win.cpp and
 * Platform_unix.cpp. All of them may be called from any thread and before QCoreApplication exists.
 */
namespace PYXRuntime::Platform {

/** Console text attributes, in the numbering of the Windows console. */
enum eConsoleColour : quint16 {
    ekConsole_Green = 10,
    ekConsole_Cyan = 11,
    ekConsole_Red = 12,
    ekConsole_Yellow = 14,
    ekConsole_White = 15
};

bool isDebuggerAttached();

/** Writes the text and then a newline to the debugger channel (on Linux: standard error). */
void writeDebuggerLine(const QString &text);

/** Writes the text and a line end to standard error and flushes it. */
void writeStandardErrorLine(const QString &text);

/** Writes the bytes and a newline to standard output. */
void writeStandardOutputLine(const QByteArray &bytes);

/**
 * Colours what is written to the console from now on; white goes back to the normal colour.
 * Silently does nothing where there is no console.
 */
void setConsoleColour(eConsoleColour colour);

/** The raw high-resolution counter; 0 and *ok false where there is none. */
qint64 performanceCounter(bool *ok);

/** Ticks of the high-resolution counter per second; 0 and *ok false where there is none. */
qint64 performanceFrequency(bool *ok);

/** Time since the system started, in milliseconds, wrapping after 49.7 days. */
quint32 uptimeMilliseconds();

/** A clock in milliseconds that is cheap to read; it may stand still for some 16 ms. */
quint64 tickMilliseconds();

/** Now as a FILETIME: 100-ns units since 1601-01-01 00:00:00 UTC. */
quint64 fileTimeNow();

/** 1970-01-01 00:00:00 UTC as a FILETIME. */
quint64 fileTimeOfUnixEpoch();

/** The time as QDateTime tells it, and how long it is known to stay in the same millisecond. */
struct struUtcTime
{
    qint64 milliseconds; ///< since 1970
    quint64 cycles;      ///< of cycleCounter() that pass in this millisecond at least; 0 where not known
};
struUtcTime utcTime();

/** A count of the processor that is read faster than a clock; 0 where there is none that is steady. */
quint64 cycleCounter();

/** The file name under which a shared library of this base name is looked for. */
QString libraryFileName(const QString &baseName);

/** Whether a file can be replaced while a process has it open. */
bool canReplaceOpenFiles();

/**
 * Whether what has kept a file from being replaced may pass: it is there, and nothing but a process that has
 * it open stands in the way of writing it.
 */
bool mayBecomeReplaceable(const QString &file);

/** Whether the open file has no name any more, so that nobody will ever see what is written to it. */
bool isFileRemoved(int fileHandle);

/** Whether lines of text files end with "\r\n". */
bool doLinesEndWithCarriageReturn();

/** Tells the shell that files with this suffix are XML texts; does nothing where there is no such registry.
 */
void registerXmlFileType(const QString &suffix);

/**
 * The languages, as Windows numbers them, in which the system looks for a resource of a file: those of the
 * calling thread, the user and the system, the best first. None where the system has no such numbers.
 */
QVector<quint16> resourceLanguages();

/** Gives memory that was freed, but is still kept by the heap, back to the system. May take some 10 ms. */
void returnFreedMemory();

} // namespace PYXRuntime::Platform
