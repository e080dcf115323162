// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "ChildProcess.h"
#include "DataRows.h"
#include "FileContents.h"
#include "NewIntegrationVersionChecker.h"
#include "PYXRuntime.h"
#include "PYXSettings.h"
#include "SettingsHome.h"

#include <QtGui/QDesktopServices>
#include <QtTest/QtTest>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>

using namespace PYXRuntime;
using Checker = NewIntegrationVersionChecker;

namespace {

/** Closes every message with the button of this text while it lives; writes down what was shown. */
class Answerer : public QObject
{
public:
    explicit Answerer(const QString &button)
    {
        connect(&m_timer, &QTimer::timeout, this, [this, button] {
            auto *const box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            if (box == nullptr)
                return;
            shown += box->text();
            title = box->windowTitle();
            buttons.clear();
            for (QAbstractButton *const candidate : box->buttons()) {
                const QString text = candidate->text().remove('&');
                buttons += QString("%1 %2").arg(text).arg(box->buttonRole(candidate));
                if (text == button)
                    candidate->click();
            }
            if (button.isEmpty())
                QTest::keyClick(box, Qt::Key_Escape);
        });
        m_timer.start(1);
    }

    QStringList shown;
    QString title;
    QStringList buttons;

private:
    QTimer m_timer;
};

QStringList ignoredVersions()
{
    return PYXSettings(PYXSettings::eUserApplicationSettings)
        .stringListValue("NewIntegrationVersionChecker/IgnoreVersions");
}

} // namespace

class tst_NewIntegrationVersionChecker : public QObject
{
    Q_OBJECT
public Q_SLOTS:
    void openUrl(const QUrl &url) { m_opened += url; }
private slots:
    void init();
    void runsInTheMakersDomainOnly();
    void findsTheNewest_data();
    void findsTheNewest();
    void announces_data();
    void announces();
    void messageAndItsButtons();
    void queued();

private:
    QString folder() const { return m_home->path("builds"); }
    void makeBuilds(const QStringList &names) const
    {
        for (const QString &name : names)
            QVERIFY(QDir().mkpath(folder() + '/' + name));
    }

    std::unique_ptr<SettingsHome> m_home;
    QList<QUrl> m_opened;
};

void tst_NewIntegrationVersionChecker::init()
{
    m_home = std::make_unique<SettingsHome>();
    m_opened.clear();
    QCoreApplication::setApplicationVersion("4.9.9");
}

void tst_NewIntegrationVersionChecker::runsInTheMakersDomainOnly()
{
    // The domain, the DNS domain, how many operations work.
    const Rows<QByteArray, QByteArray, int> rows = {{"inside", USERDOMAIN, USERDNSDOMAIN, 3},
                                                    {"another domain", "ELSEWHERE", USERDNSDOMAIN, 0},
                                                    {"another DNS domain", USERDOMAIN, "home.example", 0},
                                                    {"none", "", "", 0}};
    makeBuilds({"Build 5.0.0"});
    QVERIFY(Checker::shouldRun()); // so that this program has its answer already
    forRows(rows, [this](const QByteArray &domain, const QByteArray &dnsDomain, int working) {
        qputenv("USERDOMAIN", domain);
        qputenv("USERDNSDOMAIN", dnsDomain);
        QCOMPARE(runOwnProbe(folder()).exitCode, working);
    });
}

void tst_NewIntegrationVersionChecker::findsTheNewest_data()
{
    const Rows<QStringList, QString> rows = {
        {"by number", {"Build 4.9_9", "Build 4.10_1", "Build 4.10_0.7"}, "Build 4.10_1"},
        {"by prefix", {"Build 1.0.0", "Trial Build 9.0.0"}, "Build 1.0.0"},
        {"without version", {"Build 12.3", "Build latest"}, ""},
        {"none", {""}, ""}};
    addRows({"names", "newest"}, rows);
}

void tst_NewIntegrationVersionChecker::findsTheNewest()
{
    QFETCH(QStringList, names);
    QFETCH(QString, newest);
    PYXVersion version(99, 0, 0, 0);
    QVERIFY(!Checker::getNewestBuildVersion(folder(), "Build", version));
    makeBuilds(names);
    put(folder() + "/Build 77.0.0", {}); // no directory
    QCOMPARE(Checker::getNewestBuildVersion(folder(), "Build", version), !newest.isEmpty());
    QCOMPARE(version.toFullString(), PYXVersion(newest).toFullString());
    QCOMPARE(Checker::lastIntegrationDirPath(), folder());
    QCOMPARE(Checker::lastNewestBuildDir(), newest);
    QCOMPARE(Checker::lastNewestBuildDirPath(), newest.isEmpty() ? "" : folder() + '/' + newest);
}

void tst_NewIntegrationVersionChecker::announces_data()
{
    // The running version, the build, what is ignored, how many are shown: -1 if it cannot be checked.
    const Rows<QString, QString, QStringList, int> rows = {
        {"newer", "4.9.9", "B4.10.0", {}, 1},
        {"same", "4.9.9", "B4.9.9 (Debug)", {}, 0},
        {"older", "4.10.0", "B4.9.9", {}, 0},
        {"of a developer", "0.9.9", "B4.9.9", {}, 0},
        {"ignored", "4.9.9", "B4.10.0", {"1.0.0", "04.10_00.00"}, 0},
        {"newer than the ignored one", "4.9.9", "B4.10.0.1", {"04.10_00.00"}, 1},
        {"no build", "4.9.9", "", {}, -1},
        {"no current version", "4.9", "B4.10.0", {}, -1}};
    addRows({"current", "build", "ignored", "shown"}, rows);
}

void tst_NewIntegrationVersionChecker::announces()
{
    if (QSysInfo::kernelType() == "winnt")
        QSKIP("the version of this program is fixed there");
    QFETCH(QString, current);
    QFETCH(QString, build);
    QFETCH(QStringList, ignored);
    QFETCH(int, shown);
    makeBuilds({build});
    QCoreApplication::setApplicationVersion(current);
    PYXSettings(PYXSettings::eUserApplicationSettings)
        .setValue("NewIntegrationVersionChecker/IgnoreVersions", QVariant(ignored));
    const Answerer answerer("OK");
    QCOMPARE(Checker::checkForAndAnnounceNewerBuildVersion(folder(), "B"), shown >= 0);
    QCOMPARE(answerer.shown.size(), qMax(0, shown));
    QCOMPARE(ignoredVersions(), ignored);
}

void tst_NewIntegrationVersionChecker::messageAndItsButtons()
{
    const Rows<QString, QStringList, int> rows = {
        {"OK", "OK", {"01.00_00.00"}, 0},
        {"escape", "", {"01.00_00.00"}, 0},
        {"ignore", "Ignore Version", {"01.00_00.00", "04.10_00.02"}, 0},
        {"open", "Open Folder", {"01.00_00.00"}, 1}};
    makeBuilds({"Build 4.10_0.2 & more"});
    PYXVersion newest;
    QVERIFY(Checker::getNewestBuildVersion(QDir(folder()), "", newest));
    QDesktopServices::setUrlHandler("file", this, "openUrl");
    forRows(rows, [&](const QString &button, const QStringList &ignored, int opened) {
        PYXSettings(PYXSettings::eUserApplicationSettings)
            .setValue("NewIntegrationVersionChecker/IgnoreVersions", QStringList{"01.00_00.00"});
        const Answerer answerer(button);
        Checker::announceNewerBuildVersion(PYXVersion(4, 9, 9, 0), newest);
        QCOMPARE(answerer.title, QString("Application - Newer Version Found"));
        QCOMPARE(answerer.shown,
                 QStringList{
                     "<HTML><TABLE><TR><TH>Current version</TH><TD&nbsp;</TD><TD>04.09_09.00</TD></TR><TR>"
                     "<TH>Latest version</TH><TD&nbsp;</TD><TD>04.10_00.02</TD></TR></TABLE><P>Location: " +
                     folder() + "/Build 4.10_0.2 &amp; more</HTML>"});
        QCOMPARE(answerer.buttons, (QStringList{QString("OK %1").arg(QMessageBox::AcceptRole),
                                                QString("Open Folder %1").arg(QMessageBox::ActionRole),
                                                QString("Ignore Version %1").arg(QMessageBox::ActionRole)}));
        QCOMPARE(ignoredVersions(), ignored);
        QCOMPARE(m_opened.size(), opened);
    });
    QDesktopServices::unsetUrlHandler("file");
    QCOMPARE(m_opened.value(0), QUrl::fromLocalFile(Checker::lastNewestBuildDirPath()));
}

void tst_NewIntegrationVersionChecker::queued()
{
    if (QSysInfo::kernelType() == "winnt")
        QSKIP("the version of this program is fixed there");
    makeBuilds({"Build 5.0.0", "Trial 6.0.0"});
    initialize_PYXRuntime(ekInitialize_NoFonts);
    const Answerer answerer("OK");
    QVERIFY(Checker::queueCheckForAndAnnounceNewerBuildVersion(0, folder(), "Build"));
    uninitialize_PYXRuntime();
    QCoreApplication::processEvents();
    QVERIFY(answerer.shown.isEmpty());
    QVERIFY(Checker::queueCheckForAndAnnounceNewerBuildVersion(1, folder(), "Trial"));
    QTRY_COMPARE(answerer.shown.size(), 1);
    QVERIFY(answerer.shown.first().contains("06.00_00.00"));
    Checker::destroyInstance();
}

int main(int argc, char **argv)
{
    if (argc == 3 && qstrcmp(argv[1], "--probe") == 0) {
        QApplication application(argc, argv);
        PYXVersion version;
        const QString folder = QString::fromLocal8Bit(argv[2]);
        if (!Checker::shouldRun())
            Checker::announceNewerBuildVersion(version, version); // else it waits for an answer
        return int(Checker::shouldRun()) + int(Checker::getNewestBuildVersion(folder, "", version)) +
               int(Checker::queueCheckForAndAnnounceNewerBuildVersion(0, folder, ""));
    }
    qputenv("USERDOMAIN", USERDOMAIN);
    qputenv("USERDNSDOMAIN", USERDNSDOMAIN);
    QApplication application(argc, argv);
    tst_NewIntegrationVersionChecker test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_NewIntegrationVersionChecker.moc"
