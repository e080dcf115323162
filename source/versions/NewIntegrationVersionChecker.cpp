// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "NewIntegrationVersionChecker.h"

#include "PYXSettings.h"
#include "PYXWinResVersion.h"
#include "SingletonHolder.h"

#include <QtCore/QDir>
#include <QtCore/QPointer>
#include <QtCore/QTimer>
#include <QtCore/QUrl>
#include <QtGui/QDesktopServices>
#include <QtWidgets/QApplication>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>

namespace PYXRuntime {
namespace {

const QLatin1String InstanceName("NewIntegrationVersionChecker(defaultInstance)");
const QLatin1String IgnoredVersionsKey("NewIntegrationVersionChecker/IgnoreVersions");

using Holder = SingletonHolder<NewIntegrationVersionChecker>;

struct struCheckerState
{
    QString queuedFolder;
    QString queuedPrefix;
    QString searchedFolder;
    QString newestDirectory;
};

struCheckerState &state()
{
    static auto *const values = new struCheckerState;
    return *values;
}

// What is not configured is nobody's domain.
bool isEnvironment(const char *variable, const char *configured)
{
    const QString expected = QString::fromUtf8(configured);
    return !expected.isEmpty() && qEnvironmentVariable(variable) == expected;
}

QStringList ignoredVersions()
{
    return PYXSettings(PYXSettings::eUserApplicationSettings).stringListValue(IgnoredVersionsKey);
}

void ignoreVersion(const PYXVersion &version)
{
    PYXSettings settings(PYXSettings::eUserApplicationSettings);
    settings.setValue(IgnoredVersionsKey, settings.stringListValue(IgnoredVersionsKey)
                                              << version.toFullString());
}

} // namespace

NewIntegrationVersionChecker::NewIntegrationVersionChecker(QObject *parent)
    : QObject(parent)
{
    setObjectName(InstanceName);
}

NewIntegrationVersionChecker::~NewIntegrationVersionChecker() = default;

NewIntegrationVersionChecker *NewIntegrationVersionChecker::getInstance()
{
    return Holder::instance([] { return new NewIntegrationVersionChecker; });
}

void NewIntegrationVersionChecker::destroyInstance()
{
    Holder::destroy();
}

bool NewIntegrationVersionChecker::shouldRun()
{
    static const bool bShouldRun = isEnvironment("USERDOMAIN", PYX_INTERNAL_USERDOMAIN) &&
                                   isEnvironment("USERDNSDOMAIN", PYX_INTERNAL_USERDNSDOMAIN);
    return bShouldRun;
}

bool NewIntegrationVersionChecker::getCurrentExeProductVersion(PYXVersion &version)
{
    return shouldRun() && PYXWinResVersion(QString()).getVersion(PYXWinResVersion::ekProductVersion, version);
}

bool NewIntegrationVersionChecker::getNewestBuildVersion(const QDir &folder, const QString &prefix,
                                                         PYXVersion &newest)
{
    if (!shouldRun() || !folder.exists())
        return false;
    state().searchedFolder = folder.absolutePath();
    state().newestDirectory.clear();
    newest = PYXVersion();
    // Not the caller's object, which may have listed its entries long ago.
    const QStringList names =
        QDir(folder.absolutePath())
            .entryList({prefix + QLatin1Char('*')}, QDir::Dirs | QDir::NoDotAndDotDot, QDir::Unsorted);
    for (const QString &name : names) {
        const PYXVersion version(name);
        if (version.isValid() && version > newest) {
            newest = version;
            state().newestDirectory = name;
        }
    }
    return newest.isValid();
}

bool NewIntegrationVersionChecker::getNewestBuildVersion(const QString &folder, const QString &prefix,
                                                         PYXVersion &newest)
{
    return getNewestBuildVersion(QDir(folder), prefix, newest);
}

bool NewIntegrationVersionChecker::checkForNewerBuildVersion(const QDir &folder, const QString &prefix,
                                                             bool &isNewer, PYXVersion &current,
                                                             PYXVersion &newest)
{
    isNewer = false;
    if (!getCurrentExeProductVersion(current) || !getNewestBuildVersion(folder, prefix, newest))
        return false;
    isNewer = newest > current;
    return true;
}

bool NewIntegrationVersionChecker::checkForNewerBuildVersion(const QString &folder, const QString &prefix,
                                                             bool &isNewer, PYXVersion &current,
                                                             PYXVersion &newest)
{
    return checkForNewerBuildVersion(QDir(folder), prefix, isNewer, current, newest);
}

bool NewIntegrationVersionChecker::checkForAndAnnounceNewerBuildVersion(const QDir &folder,
                                                                        const QString &prefix)
{
    bool bNewer = false;
    PYXVersion current;
    PYXVersion newest;
    if (!checkForNewerBuildVersion(folder, prefix, bNewer, current, newest))
        return false;
    if (bNewer && current.major() != 0 && !ignoredVersions().contains(newest.toFullString()))
        announceNewerBuildVersion(current, newest);
    return true;
}

bool NewIntegrationVersionChecker::checkForAndAnnounceNewerBuildVersion(const QString &folder,
                                                                        const QString &prefix)
{
    return checkForAndAnnounceNewerBuildVersion(QDir(folder), prefix);
}

bool NewIntegrationVersionChecker::queueCheckForAndAnnounceNewerBuildVersion(int delayMs,
                                                                             const QString &folder,
                                                                             const QString &prefix)
{
    if (!shouldRun())
        return false;
    state().queuedFolder = folder;
    state().queuedPrefix = prefix;
    QTimer::singleShot(qMax(0, delayMs), getInstance(),
                       &NewIntegrationVersionChecker::_sl_checkForAndAnnounceNewerBuildVersion);
    return true;
}

void NewIntegrationVersionChecker::_sl_checkForAndAnnounceNewerBuildVersion()
{
    // Copies: more may be queued while the message is shown.
    const struCheckerState queued = state();
    checkForAndAnnounceNewerBuildVersion(queued.queuedFolder, queued.queuedPrefix);
}

void NewIntegrationVersionChecker::announceNewerBuildVersion(const PYXVersion &current,
                                                             const PYXVersion &newest)
{
    if (!shouldRun() || qobject_cast<QApplication *>(QCoreApplication::instance()) == nullptr)
        return;
    const QString location = lastNewestBuildDirPath();
    // The cells between are written so on purpose.
    const QString text = tr("<HTML><TABLE><TR><TH>Current version</TH><TD&nbsp;</TD><TD>%1</TD></TR>"
                            "<TR><TH>Latest version</TH><TD&nbsp;</TD><TD>%2</TD></TR></TABLE>"
                            "<P>Location: %3</HTML>")
                             .arg(current.toFullString(), newest.toFullString(), location.toHtmlEscaped());
    // Its parent may go while it is shown.
    const QPointer<QMessageBox> box = new QMessageBox(
        QMessageBox::Information, tr("%1 - Newer Version Found").arg(QCoreApplication::applicationName()),
        text, QMessageBox::Ok, QApplication::activeWindow());
    box->setTextFormat(Qt::RichText);
    const QAbstractButton *const open = box->addButton(tr("Open Folder"), QMessageBox::ActionRole);
    const QAbstractButton *const ignore = box->addButton(tr("Ignore Version"), QMessageBox::ActionRole);
    box->setDefaultButton(QMessageBox::Ok);
    box->setEscapeButton(QMessageBox::Ok);
    box->exec();
    if (box.isNull())
        return;
    const QAbstractButton *const clicked = box->clickedButton();
    delete box.data();
    if (clicked == open)
        QDesktopServices::openUrl(QUrl::fromLocalFile(location));
    else if (clicked == ignore)
        ignoreVersion(newest);
}

QString NewIntegrationVersionChecker::lastIntegrationDirPath()
{
    return state().searchedFolder;
}

QString NewIntegrationVersionChecker::lastNewestBuildDir()
{
    return state().newestDirectory;
}

QString NewIntegrationVersionChecker::lastNewestBuildDirPath()
{
    if (state().newestDirectory.isEmpty())
        return QString();
    return QDir(state().searchedFolder).filePath(state().newestDirectory);
}

} // namespace PYXRuntime
