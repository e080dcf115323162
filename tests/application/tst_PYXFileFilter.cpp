// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXFileFilter.h"

#include "FileContents.h"
#include "PlatformFolders.h"
#include "PYXApplicationInfoImpl.h"
#include "PYXBrokerRegistration.h"
#include "PYXSettings.h"
#include "SettingsHome.h"

#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QLineEdit>

using namespace PYXRuntime;

namespace {

/** Uses the dialog that opens next. */
void inNextDialog(const std::function<void(QFileDialog &)> &use)
{
    QTimer::singleShot(0, qApp, [use] {
        auto *const dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
        if (dialog == nullptr)
            return inNextDialog(use);
        use(*dialog);
    });
}

void choose(QFileDialog &dialog, const QString &name)
{
    dialog.findChild<QLineEdit *>("fileNameEdit")->setText(name);
    static_cast<QDialog &>(dialog).accept();
}

} // namespace

class tst_PYXFileFilter : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void nameFiltersComeByName();
    void dialogsBeginWhereTheLastOneEnded();
    void changedSettingsMoveBoundDialogs();
    void openingRemembersTheFile();
    void savingAddsTheSuffixOfTheFilter();
    void choosingADirectoryOrNothing();

private:
    QString path(const QString &name) const { return m_home->path(name); }
    QString createdFile(const QString &name) const
    {
        QDir().mkpath(QFileInfo(path(name)).path());
        put(path(name), {});
        return path(name);
    }

    QScopedPointer<SettingsHome> m_home;
    QScopedPointer<PYXApplicationInfoImpl> m_info;
    PYXBrokerRegistration m_registration;
    const PYXFileFilter m_recordings{"Recordings", {"Recordings"}};
    const PYXFileFilter m_scripts{PYXIApplicationInfo::eOrganizationSharedScriptsDir, {"Scripts"}};
};

void tst_PYXFileFilter::init()
{
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    m_home.reset(new SettingsHome);
    m_home->hold(QSettings::NativeFormat); // where QFileDialog keeps its own
    Platform::struFolderAnswers answers;
    answers.shellFolder = [this](uint folder) { return m_home->path(QString("shell%1").arg(folder)); };
    answers.isOnRemovableDrive = [](const QString &) { return false; };
    Platform::replaceFolderAnswers(answers);
    m_info.reset(new PYXApplicationInfoImpl);
    m_registration = PYXBrokerRegistration(PYXBrokerInterface<PYXIApplicationInfo>::id(), 0, m_info.data());
    QVERIFY(QDir().mkpath(path("shell5")));
    PYXFileFilter::registerFilter("Recordings", "Recordings", {"*.wav", "*.flac"});
    PYXFileFilter::registerFilter("Scripts", "Scripts (all)", {"*.tar.gz"});
}

void tst_PYXFileFilter::cleanup()
{
    m_registration.reset();
    Platform::replaceFolderAnswers({});
}

void tst_PYXFileFilter::nameFiltersComeByName()
{
    const PYXFileFilter filter("any", {"Scripts", "unknown", "Recordings"});
    QCOMPARE(filter.nameFilters(),
             (QStringList{"Scripts (all) (*.tar.gz)", "Recordings (*.wav *.flac)", "All files (*)"}));
    PYXFileFilter::unregisterFilter("Scripts");
    QCOMPARE(filter.nameFilters(), (QStringList{"Recordings (*.wav *.flac)", "All files (*)"}));
    QCOMPARE(PYXFileFilter::registeredFilters(), QStringList("Recordings"));
}

void tst_PYXFileFilter::dialogsBeginWhereTheLastOneEnded()
{
    QCOMPARE(m_recordings.startPlace(), path("shell5"));
    const QString recording = createdFile("recordings/a.wav");
    m_recordings.setLastFileOrDir(recording);
    QCOMPARE(m_recordings.startPlace(), recording);
    QCOMPARE(PYXFileFilter("Recordings", {}).startPlace(), recording);
    QCOMPARE(PYXFileFilter("Others", {}).startPlace(), path("shell5"));

    const QString scripts =
        m_info->getSpecialDirPath(PYXIApplicationInfo::eOrganizationSharedScriptsDir, true);
    QCOMPARE(m_scripts.startPlace(), scripts);
    m_scripts.setLastFileOrDir(path("recordings"));
    QCOMPARE(PYXFileFilter(PYXIApplicationInfo::eOrganizationSharedScriptsDir, {}).startPlace(),
             path("recordings"));
    QCOMPARE(m_recordings.startPlace(), recording);
    // Places that are gone are left.
    QVERIFY(QFile::remove(recording));
    QCOMPARE(m_recordings.startPlace(), path("recordings"));
    QVERIFY(QDir().rmdir(path("recordings")));
    QCOMPARE(m_recordings.startPlace(), path("shell5"));
    QVERIFY(QDir(path("shell5")).removeRecursively());
    QCOMPARE(m_recordings.startPlace(), QDir::homePath());
}

void tst_PYXFileFilter::changedSettingsMoveBoundDialogs()
{
    QVERIFY(QDir().mkpath(path("moved")));
    PYXSettings::cloneUserAndSharedSubTreesForPaths("Own", "SavedOwn");
    PYXSettings(PYXSettings::eUserSharedSettings).setValue("Paths/Scripts", path("moved"));
    QCOMPARE(PYXSettings::diffAndHandleSharedSubTreesForPaths(), QStringList("Paths/Scripts"));
    QCOMPARE(m_scripts.lastFileOrDir(), path("moved"));
    QCOMPARE(m_scripts.startPlace(), path("moved"));
    QCOMPARE(PYXFileFilter(PYXIApplicationInfo::eOrganizationSharedCollectionsDir, {}).lastFileOrDir(),
             QString());
}

void tst_PYXFileFilter::openingRemembersTheFile()
{
    const QString recording = createdFile("recordings/a.wav");
    createdFile("recordings/b.txt");
    m_recordings.setLastFileOrDir(path("recordings"));
    QStringList filters;
    QString directory;
    inNextDialog([&](QFileDialog &dialog) {
        filters = dialog.nameFilters();
        directory = dialog.directory().path();
        choose(dialog, "a.wav");
    });
    QCOMPARE(m_recordings.getOpenFileName(nullptr, "Open"), recording);
    QCOMPARE(directory, path("recordings"));
    QCOMPARE(filters, m_recordings.nameFilters());
    QCOMPARE(m_recordings.lastFileOrDir(), recording);

    const QString other = createdFile("recordings/c.wav");
    inNextDialog([](QFileDialog &dialog) { choose(dialog, "\"a.wav\" \"c.wav\""); });
    QCOMPARE(m_recordings.getOpenFileNames(nullptr, "Open"), (QStringList{recording, other}));
}

void tst_PYXFileFilter::savingAddsTheSuffixOfTheFilter()
{
    const char *const recordings = "Recordings (*.wav *.flac)";
    const char *const rows[][3] = {{recordings, "new", "new.wav"},
                                   {recordings, "new.flac", "new.flac"},
                                   {"Scripts (all) (*.tar.gz)", "new", "new.tar.gz"},
                                   {"All files (*)", "new", "new"},
                                   {recordings, "proposal", "proposal.wav"}};
    const PYXFileFilter files("Saving", {"Recordings", "Scripts"});
    for (const auto &[filter, typed, saved] : rows) {
        const QString nameFilter(filter);
        const QString name(typed);
        inNextDialog([=](QFileDialog &dialog) {
            dialog.selectNameFilter(nameFilter);
            Q_EMIT dialog.filterSelected(nameFilter);
            const QString proposed = dialog.findChild<QLineEdit *>("fileNameEdit")->text();
            choose(dialog, name == "proposal" ? proposed : name);
        });
        QCOMPARE(files.getSaveFileName(nullptr, "Save", "proposal"), path("shell5/") + saved);
        QCOMPARE(files.lastFileOrDir(), path("shell5/") + saved);
    }
}

void tst_PYXFileFilter::choosingADirectoryOrNothing()
{
    QVERIFY(QDir().mkpath(path("shell5/below")));
    inNextDialog([](QFileDialog &dialog) { choose(dialog, "below"); });
    QCOMPARE(m_recordings.getExistingDirectory(nullptr, "Choose"), path("shell5/below"));
    QString proposed("none yet");
    inNextDialog([&](QFileDialog &dialog) {
        proposed = dialog.findChild<QLineEdit *>("fileNameEdit")->text();
        dialog.reject();
    });
    QCOMPARE(m_recordings.getSaveFileName(nullptr, "Save"), QString());
    QCOMPARE(proposed, QString());
    QCOMPARE(m_recordings.lastFileOrDir(), path("shell5/below"));
}

QTEST_MAIN(tst_PYXFileFilter)
#include "tst_PYXFileFilter.moc"
