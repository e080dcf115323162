// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "pyxruntime_export.h"

#include <QtCore/QEventLoop>
#include <QtCore/QFlags>
#include <QtCore/QLibrary>
#include <QtCore/QObject>
#include <QtCore/QString>

/** @file
 * Start and stop of the library, waiting, clocks, and loading of sibling libraries.
 */

namespace PYXRuntime {
Q_NAMESPACE_EXPORT(PYXRUNTIME_EXPORT)

/** What the first initialisation does; combine with "|". */
enum ePYXInitializeFlag {
    ekInitialize_Default = 0x0,            ///< everything
    ekInitialize_NoFonts = 0x1,            ///< fonts and application font are left alone
    ekInitialize_NoFontSubstitution = 0x2, ///< fonts are loaded, but substitute no other family
    ekInitialize_CondensedFont = 0x4,      ///< "KTCorpid Cd" substitutes other families, not "KTCorpid"
    ekInitialize_KeepApplicationFont = 0x8 ///< the application font is left alone
};
Q_DECLARE_FLAGS(ePYXInitializeFlags, ePYXInitializeFlag)
Q_FLAG_NS(ePYXInitializeFlags)

/**
 * Initialises the library, or counts a further reference to an initialised one and ignores @p flags.
 * Call it in the main thread when the QApplication exists and has its name; each call is paired with one
 * of uninitialize_PYXRuntime().
 * @return the result of the first initialisation.
 */
PYXRUNTIME_EXPORT bool initialize_PYXRuntime(ePYXInitializeFlags flags = ekInitialize_Default);

/** Drops one reference; the last one cleans up. Main thread, before the QApplication goes. */
PYXRUNTIME_EXPORT void uninitialize_PYXRuntime();

/**
 * Whether references are open, also while the first initialisation is still at work. Any thread, as the
 * count.
 */
PYXRUNTIME_EXPORT bool isInitialized_PYXRuntime();
/** Number of open references; negative where more were dropped than taken. */
PYXRUNTIME_EXPORT int initializitationCount_PYXRuntime();
/** Flags of the last first initialisation; they outlive the shutdown. Main thread, as the result. */
PYXRUNTIME_EXPORT ePYXInitializeFlags initializationFlags_PYXRuntime();
/** True since an initialisation has run to its end; outlives the shutdown. */
PYXRUNTIME_EXPORT bool initializationResult_PYXRuntime();

/**
 * Loads the corporate fonts for a program that does not initialise the library, or initialises it without
 * fonts. Does nothing when they are loaded. Main thread, as its counterpart.
 */
PYXRUNTIME_EXPORT void makeEmbeddedFontsAvailable();
/** Unloads the fonts that makeEmbeddedFontsAvailable() has loaded, no others. */
PYXRUNTIME_EXPORT void makeEmbeddedFontsUnavailable();

/** Block the calling thread; any thread. */
PYXRUNTIME_EXPORT void sleep(unsigned long seconds);
PYXRUNTIME_EXPORT void msleep(unsigned long milliseconds);
PYXRUNTIME_EXPORT void usleep(unsigned long microseconds);

/**
 * Wait while the calling thread's events are processed, or less long where the application quits
 * meanwhile. A time of zero or less returns at once. Any thread; one that can have no events, as all
 * before QCoreApplication exists, is just blocked.
 */
PYXRUNTIME_EXPORT void active_sleep(int seconds,
                                    QEventLoop::ProcessEventsFlags flags = QEventLoop::AllEvents);
PYXRUNTIME_EXPORT void active_msleep(int milliseconds,
                                     QEventLoop::ProcessEventsFlags flags = QEventLoop::AllEvents);

/**
 * The system's high-resolution counter, in ticks of rawPerfFrequency(). Any thread, as all clocks here.
 * @param ok if not null, receives whether there is such a counter
 * @return 0 if there is none
 */
PYXRUNTIME_EXPORT qint64 rawPerfCounter(bool *ok = nullptr);
/** Ticks per second of the high-resolution counter. @return 0, with *ok false, if there is none. */
PYXRUNTIME_EXPORT qint64 rawPerfFrequency(bool *ok = nullptr);

/**
 * The high-resolution counter in microseconds; 0 if there is none.
 * @param rawCounter if not null, receives the counter the result was made from
 * @param frequency if not null, receives the counter's ticks per second
 */
PYXRUNTIME_EXPORT quint64 perfCounterInMyS(qint64 *rawCounter = nullptr, qint64 *frequency = nullptr);
/** The same in milliseconds. */
PYXRUNTIME_EXPORT quint64 perfCounterInMS(qint64 *rawCounter = nullptr, qint64 *frequency = nullptr);

/** Time since the system started, in milliseconds; starts again from 0 every 49.7 days. */
PYXRUNTIME_EXPORT uint uptimeInMS();

/** Wall-clock time in microseconds since 1970-01-01 00:00:00 UTC. */
PYXRUNTIME_EXPORT quint64 currentUTCInMyS();
/** The same in milliseconds. */
PYXRUNTIME_EXPORT quint64 currentUTCInMS();

/** The text with <, >, & and " replaced by HTML entities. Any thread. */
PYXRUNTIME_EXPORT QString htmlEscape(const QString &text);

/**
 * Loads a library of the application family by its base name, e.g. "PYXCharts". Any thread, as the next one.
 * @return null if it cannot be loaded; else an object that the caller owns.
 */
PYXRUNTIME_EXPORT QLibrary *getReferenceOnProjectDLL(const QString &name);
/**
 * Loads a Qt library by its module name, e.g. "Core", also one of a build with its own infix: "Wend" or
 * the value of the environment variable BUILD_QT_INFIX.
 * @return null if none can be loaded; else an object that the caller owns.
 */
PYXRUNTIME_EXPORT QLibrary *getReferenceOnQtDLL(const QString &module);

} // namespace PYXRuntime

Q_DECLARE_OPERATORS_FOR_FLAGS(PYXRuntime::ePYXInitializeFlags)
