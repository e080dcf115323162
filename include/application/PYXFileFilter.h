// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "pyxruntime_export.h"

#include <QtCore/QString>
#include <QtCore/QStringList>

class QFileDialog;
class QWidget;

namespace PYXRuntime {

/**
 * What the file dialogs for one purpose have in common: their name filters, and the file or directory that
 * was used last, where the next dialog begins.
 *
 * Filters are registered by name once, and used wherever files of that kind are opened or saved:
 * @code
 * PYXFileFilter::registerFilter("Recordings", tr("Recordings"), {"*.wav", "*.flac"});
 * const PYXFileFilter recordings("OpenRecording", {"Recordings"});
 * const QString path = recordings.getOpenFileName(this, tr("Open Recording"));
 * @endcode
 * The place is remembered through the PYXIApplicationInfo that is on top in the broker. GUI thread only.
 */
class PYXRUNTIME_EXPORT PYXFileFilter final
{
public:
    /** Dialogs of one purpose; the first one begins in the user's documents. */
    PYXFileFilter(const QString &purpose, const QStringList &filterNames);
    /**
     * Dialogs that are bound to a special directory: all of them, for whatever files, share one place. The
     * first one begins in that directory.
     */
    PYXFileFilter(uint specialDir, const QStringList &filterNames);

    /**
     * Makes a kind of files known under a name, or changes it.
     * @param title what the user reads
     * @param patterns such as "*.wav"; the first one gives the suffix of a saved file
     */
    static void registerFilter(const QString &name, const QString &title, const QStringList &patterns);
    static void unregisterFilter(const QString &name);
    /** In alphabetical order. */
    static QStringList registeredFilters();

    /**
     * The filters as QFileDialog has them, all files last. A name that is not registered is left out, with
     * a warning in the runtime scope.
     */
    QStringList nameFilters() const;

    /** Empty if nothing is remembered. */
    QString lastFileOrDir() const;
    /** An empty path forgets the place. */
    void setLastFileOrDir(const QString &path) const;
    /**
     * Where a dialog begins: what was used last, or its directory where it is gone, or else where the first
     * dialog began. Exists, unless the user's home directory does not.
     */
    QString startPlace() const;

    /** The dialogs. A choice is remembered; empty if the user chooses nothing. */
    QString getOpenFileName(QWidget *parent, const QString &caption) const;
    QStringList getOpenFileNames(QWidget *parent, const QString &caption) const;
    /**
     * A name without a suffix gets that of the chosen filter before the user is asked about overwriting.
     * @param proposal a file name, instead of that of the file used last
     */
    QString getSaveFileName(QWidget *parent, const QString &caption,
                            const QString &proposal = QString()) const;
    QString getExistingDirectory(QWidget *parent, const QString &caption) const;

    /** Makes a directory the place of all dialogs that are bound to a special directory. */
    static void resetLastFileOrDir(uint specialDir, const QString &directory);

private:
    QStringList _run(QFileDialog &dialog, const QString &proposal = QString()) const;

    QString m_id; ///< under which the place is remembered
    uint m_specialDir;
    QStringList m_filterNames;
};

} // namespace PYXRuntime
