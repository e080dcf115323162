// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "pyxruntime_export.h"
#include "PYXVersion.h"

#include <QtCore/QObject>
#include <QtCore/QString>

class QDir;

namespace PYXRuntime {

/**
 * Tells users inside the maker's own network that a folder of integration builds has a newer version of the
 * running program than the one they run.
 *
 * The build directories are those of the folder whose name begins with a prefix and contains a version, as
 * PYXVersion finds it. A version that the user has chosen to ignore is not announced again.
 *
 * Anywhere else, see shouldRun(), every operation does nothing and returns false. The GUI thread only;
 * shutting down the library destroys the instance, and with it what is queued.
 */
class PYXRUNTIME_EXPORT NewIntegrationVersionChecker final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(NewIntegrationVersionChecker)
public:
    ~NewIntegrationVersionChecker() override;

    /**
     * Whether the environment variables USERDOMAIN and USERDNSDOMAIN are, letter by letter, what the build
     * was configured with (PYX_INTERNAL_USERDOMAIN, PYX_INTERNAL_USERDNSDOMAIN). Found out once per process.
     */
    static bool shouldRun();

    /** What the product version of the running program says as a text. */
    static bool getCurrentExeProductVersion(PYXVersion &version);

    /**
     * @param prefix may hold the wildcards of file names.
     * @return false, with @p newest invalid, where no version above 0 is found.
     */
    static bool getNewestBuildVersion(const QDir &folder, const QString &prefix, PYXVersion &newest);
    static bool getNewestBuildVersion(const QString &folder, const QString &prefix, PYXVersion &newest);

    /** @return whether both versions are known; @p isNewer is false else. */
    static bool checkForNewerBuildVersion(const QDir &folder, const QString &prefix, bool &isNewer,
                                          PYXVersion &current, PYXVersion &newest);
    static bool checkForNewerBuildVersion(const QString &folder, const QString &prefix, bool &isNewer,
                                          PYXVersion &current, PYXVersion &newest);

    /**
     * Announces the newest build if it is newer and not ignored. A program with major version 0, as
     * developers run it, announces nothing. Returns after the user has closed the message.
     * @return whether both versions are known.
     */
    static bool checkForAndAnnounceNewerBuildVersion(const QDir &folder, const QString &prefix);
    static bool checkForAndAnnounceNewerBuildVersion(const QString &folder, const QString &prefix);

    /**
     * The same after @p delayMs milliseconds. What is queued before it is time replaces folder and prefix.
     * @return whether it was queued.
     */
    static bool queueCheckForAndAnnounceNewerBuildVersion(int delayMs, const QString &folder,
                                                          const QString &prefix);

    /** Shows the message, with lastNewestBuildDirPath() as the place. Does nothing in a program without GUI.
     */
    static void announceNewerBuildVersion(const PYXVersion &current, const PYXVersion &newest);

    /** The absolute path of the last searched folder. */
    static QString lastIntegrationDirPath();
    /** The name of the directory that the last search has found; empty if none. */
    static QString lastNewestBuildDir();
    /** Both joined; empty if none was found. */
    static QString lastNewestBuildDirPath();

    static void destroyInstance();

private Q_SLOTS:
    void _sl_checkForAndAnnounceNewerBuildVersion();

private:
    explicit NewIntegrationVersionChecker(QObject *parent = nullptr);
    static NewIntegrationVersionChecker *getInstance();
};

} // namespace PYXRuntime
