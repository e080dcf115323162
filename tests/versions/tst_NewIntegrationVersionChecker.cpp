// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "ChildProcess.h"
#include "NewIntegrationVersionChecker.h"
#include "PYXRuntime.h"
#include "PYXSettings.h"
#include "SettingsHome.h"

#include <QtCore/QTimer>
#include <QtCore/QUrl>
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
    void runsInTheMakersDomainOnly_data();
    void runsInTheMakersDomainOnly();
    void findsTheNewest_data();
    void findsTheNewest();
    void announces_data();
    void announces();
    void messageAndItsButtons_data();
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

void tst_NewIntegrationVersionChecker::runsInTheMakersDomainOnly_data()
{
    QTest::addColumn<QByteArray>("domain");
    QTest::addColumn<QByteArray>("dnsDomain");
    QTest::addColumn<int>("working"); // operations
    QTest::newRow("inside") << QByteArray(USERDOMAIN) << QByteArray(USERDNSDOMAIN) << 3;
    QTest::newRow("another domain") << QByteArray("ELSEWHERE") << QByteArray(USERDNSDOMAIN) << 0;
    QTest::newRow("another DNS domain") << QByteArray(USERDOMAIN) << QByteArray("home.example") << 0;
    QTest::newRow("none") << QByteArray() << QByteArray() << 0;
}

void tst_NewIntegrationVersionChecker::runsInTheMakersDomainOnly()
{
    QFETCH(QByteArray, domain);
    QFETCH(QByteArray, dnsDomain);
    makeBuilds({"Build 5.0.0"});
    // The program itself has its answer already.
    qputenv("USERDOMAIN", domain);
    qputenv("USERDNSDOMAIN", dnsDomain);
    QVERIFY(Checker::shouldRun());
    const ChildResult child = runOwnProbe(folder());
    QTEST(child.exitCode, "working");
}

void tst_NewIntegrationVersionChecker::findsTheNewest_data()
{
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<QString>("newest");
    QTest::newRow("by number") << QStringList{"Build 4.9_9", "Build 4.10_1", "Build 4.10_0.7"}
                               << "Build 4.10_1";
    QTest::newRow("by prefix") << QStringList{"Build 1.0.0", "Trial Build 9.0.0"} << "Build 1.0.0";
    QTest::newRow("without version") << QStringList{"Build 12.3", "Build latest"} << "";
    QTest::newRow("none") << QStringList{""} << "";
}

void tst_NewIntegrationVersionChecker::findsTheNewest()
{
    QFETCH(QStringList, names);
    QFETCH(QString, newest);
    PYXVersion version(99, 0, 0, 0);
    QVERIFY(!Checker::getNewestBuildVersion(folder(), "Build", version));
    makeBuilds(names);
    QFile file(folder() + "/Build 77.0.0");
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(Checker::getNewestBuildVersion(folder(), "Build", version), !newest.isEmpty());
    QCOMPARE(version.toFullString(), PYXVersion(newest).toFullString());
    QCOMPARE(Checker::lastIntegrationDirPath(), folder());
    QCOMPARE(Checker::lastNewestBuildDir(), newest);
    QCOMPARE(Checker::lastNewestBuildDirPath(), newest.isEmpty() ? "" : folder() + '/' + newest);
}

void tst_NewIntegrationVersionChecker::announces_data()
{
    QTest::addColumn<QString>("current");
    QTest::addColumn<QString>("build");
    QTest::addColumn<QStringList>("ignored");
    QTest::addColumn<int>("shown"); // -1: cannot be checked
    QTest::newRow("newer") << "4.9.9"
                           << "B4.10.0" << QStringList() << 1;
    QTest::newRow("same") << "4.9.9"
                          << "B4.9.9 (Debug)" << QStringList() << 0;
    QTest::newRow("older") << "4.10.0"
                           << "B4.9.9" << QStringList() << 0;
    QTest::newRow("of a developer") << "0.9.9"
                                    << "B4.9.9" << QStringList() << 0;
    QTest::newRow("ignored") << "4.9.9"
                             << "B4.10.0" << QStringList{"1.0.0", "04.10_00.00"} << 0;
    QTest::newRow("newer than the ignored one") << "4.9.9"
                                                << "B4.10.0.1" << QStringList{"04.10_00.00"} << 1;
    QTest::newRow("no build") << "4.9.9"
                              << "" << QStringList() << -1;
    QTest::newRow("no current version") << "4.9"
                                        << "B4.10.0" << QStringList() << -1;
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

void tst_NewIntegrationVersionChecker::messageAndItsButtons_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<QStringList>("ignored");
    QTest::addColumn<int>("opened");
    QTest::newRow("OK") << "OK" << QStringList{"01.00_00.00"} << 0;
    QTest::newRow("escape") << "" << QStringList{"01.00_00.00"} << 0;
    QTest::newRow("open") << "Open Folder" << QStringList{"01.00_00.00"} << 1;
    QTest::newRow("ignore") << "Ignore Version" << QStringList{"01.00_00.00", "04.10_00.02"} << 0;
}

void tst_NewIntegrationVersionChecker::messageAndItsButtons()
{
    QFETCH(QString, button);
    QFETCH(int, opened);
    makeBuilds({"Build 4.10_0.2 & more"});
    PYXVersion newest;
    QVERIFY(Checker::getNewestBuildVersion(QDir(folder()), "", newest));
    PYXSettings(PYXSettings::eUserApplicationSettings)
        .setValue("NewIntegrationVersionChecker/IgnoreVersions", QStringList{"01.00_00.00"});
    QDesktopServices::setUrlHandler("file", this, "openUrl");
    const Answerer answerer(button);
    Checker::announceNewerBuildVersion(PYXVersion(4, 9, 9, 0), newest);
    QDesktopServices::unsetUrlHandler("file");
    QCOMPARE(answerer.title, QString("Application - Newer Version Found"));
    QCOMPARE(
        answerer.shown,
        QStringList{"<HTML><TABLE><TR><TH>Current version</TH><TD&nbsp;</TD><TD>04.09_09.00</TD></TR><TR>"
                    "<TH>Latest version</TH><TD&nbsp;</TD><TD>04.10_00.02</TD></TR></TABLE><P>Location: " +
                    folder() + "/Build 4.10_0.2 &amp; more</HTML>"});
    QCOMPARE(answerer.buttons, (QStringList{QString("OK %1").arg(QMessageBox::AcceptRole),
                                            QString("Open Folder %1").arg(QMessageBox::ActionRole),
                                            QString("Ignore Version %1").arg(QMessageBox::ActionRole)}));
    QTEST(ignoredVersions(), "ignored");
    QCOMPARE(m_opened, opened == 0 ? QList<QUrl>()
                                   : QList<QUrl>{QUrl::fromLocalFile(Checker::lastNewestBuildDirPath())});
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
