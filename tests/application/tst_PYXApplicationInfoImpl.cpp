// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXApplicationInfoImpl.h"

#include "ChildProcess.h"
#include "PlatformFolders.h"
#include "PYXBrokerRegistration.h"
#include "PYXSettings.h"
#include "RecordingTracer.h"
#include "SettingsHome.h"

#include <QtTest/QtTest>

#include <cstdio>

using namespace PYXRuntime;
using Info = PYXApplicationInfoImpl;

namespace {

const QLatin1String WithoutApplication("--without-application");

/** Has its user's documents elsewhere. */
class MovedDocuments : public Info
{
public:
    QString getSpecialDirPath(uint code, bool create) override
    {
        return code == eSystemUserDocuments ? QString("Z:/moved") : Info::getSpecialDirPath(code, create);
    }
};

} // namespace

class tst_PYXApplicationInfoImpl : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void standardObjectIsRegistered();
    void worksWithoutAnApplicationObject();
    void codesHaveTheirPaths();
    void programPlaces();
    void namesAndTemporaryFilesHaveDefaults();
    void portablePrograms();
    void markedProgramIsPortable();
    void pathsOnThePortableDrive();
    void settingsFollowTheirDirectories();
    void laterDefaultFormatIsPointedToo();
    void switchesRecompute();
    void sharedPathsComeFromTheSettings();
    void overriddenPathsMoveWhatIsBelow();
    void createsAndRemembersDirectories();

private:
    /** "{5}" stands for the shell's folder 5, "{mount}" for the drive without a letter. */
    QString expanded(QString text) const
    {
        text.replace("{mount}", m_home->path("mount"));
        return text.replace(QRegularExpression("\\{(\\d+)\\}"), m_home->path("shell/\\1"));
    }

    QScopedPointer<SettingsHome> m_home;
    QString m_program;
    bool m_bRemovable = false;
    QPair<QByteArray, QByteArray> m_environment;
};

void tst_PYXApplicationInfoImpl::init()
{
    m_home.reset(new SettingsHome);
    m_program = "C:/Prog/App/bin";
    m_bRemovable = false;
    Platform::struFolderAnswers answers;
    answers.programDirectory = [this] { return m_program; };
    answers.shellFolder = [this](uint folder) { return m_home->path(QString("shell/%1").arg(folder)); };
    answers.isOnRemovableDrive = [this](const QString &) { return m_bRemovable; };
    answers.mountPoint = [this](const QString &) { return m_home->path("mount"); };
    Platform::replaceFolderAnswers(answers);
    m_environment = {qgetenv("TEMP"), qgetenv("TMP")};
    qputenv("TEMP", "/temporary");
}

void tst_PYXApplicationInfoImpl::cleanup()
{
    Platform::replaceFolderAnswers({});
    qputenv("TEMP", m_environment.first);
    qputenv("TMP", m_environment.second);
}

void tst_PYXApplicationInfoImpl::standardObjectIsRegistered()
{
    const QUuid id("{4CF3FCA3-26E7-44a9-8C81-D91832DCF07D}");
    auto *const standard = qobject_cast<Info *>(PYXBroker::getInstance()->topObject(id, 0));
    QVERIFY(standard != nullptr);
    QCOMPARE(standard->objectName(), QString("PYXBroker:stdApplicationInfo"));
    QCOMPARE(standard->parent(), PYXBroker::getInstance());
    Info own;
    const PYXBrokerRegistration registration(id, 0, &own);
    QCOMPARE(PYXBroker::getInstance()->topObject<PYXIApplicationInfo>(), &own);
}

void tst_PYXApplicationInfoImpl::worksWithoutAnApplicationObject()
{
    const ChildResult child = runChild(QCoreApplication::applicationFilePath(), {WithoutApplication});
    QVERIFY(child.bFinished);
    QCOMPARE(child.exitCode, 0);
    const QString message = "PYXRuntime::PYXApplicationInfoImpl: no QCoreApplication instance available, "
                            "cannot determine eApplicationBaseDir";
    QCOMPARE(child.errors.count(message), 2);
    QCOMPARE(child.output, "./plugins\n\ntrue\nfalse\n" + QCoreApplication::applicationDirPath() + '\n');
}

/** What worksWithoutAnApplicationObject() looks at. */
static int runWithoutApplication(int argc, char **argv)
{
    auto *const info = PYXBroker::getInstance()->topObject<PYXIApplicationInfo>();
    auto *const standard = dynamic_cast<Info *>(info);
    // Writes no shared paths.
    standard->setSpecialDirCompatibilityMode(true);
    const QByteArray plugins = info->getSpecialDirPath(Info::eApplicationPluginsBaseDir, false).toUtf8();
    const QByteArray letter = info->getSpecialDirPath(Info::eApplicationDriveLetter, false).toUtf8();
    const bool bBefore = standard->needsInitialize();
    const QCoreApplication application(argc, argv);
    Platform::struFolderAnswers noMarker;
    noMarker.programDirectory = [] { return QCoreApplication::applicationDirPath() + "/bin"; };
    Platform::replaceFolderAnswers(noMarker);
    const QByteArray base = info->getSpecialDirPath(Info::eApplicationBaseDir, false).toUtf8();
    std::printf("%s\n%s\n%s\n%s\n%s\n", plugins.constData(), letter.constData(), bBefore ? "true" : "false",
                standard->needsInitialize() ? "true" : "false", base.constData());
    return 0;
}

void tst_PYXApplicationInfoImpl::codesHaveTheirPaths()
{
    const struct
    {
        uint code;
        const char *name;
        const char *path;
    } rows[] = {
        {0, "eApplicationBaseDir", "C:/Prog/App"},
        {1, "eApplicationPluginsBaseDir", "C:/Prog/App/plugins"},
        {2, "eApplicationUserPublicDataBaseDir", "{5}/Organisation/Application"},
        {3, "<unknown> 3", "{39}/Organisation/Application"},
        {4, "eApplicationUserPrivateDataBaseDir", "{26}/Organisation/Application"},
        {5, "eApplicationLocalDataBaseDir", "{28}/Organisation/Application"},
        {6, "eApplicationOutputBaseDir", "{5}/Organisation/Application"},
        {7, "eApplicationLogsDir", "{5}/Organisation/Application/logs"},
        {8, "eApplicationDatastreamsDir", "{5}/Organisation/Application/datastreams"},
        {9, "eApplicationResultsDir", "{5}/Organisation/Application/results"},
        {10, "eApplicationJobsDir", "{5}/Organisation/Application/jobs"},
        {11, "eApplicationProjectsDir", "{5}/Organisation/Application/projects"},
        {12, "eApplicationCorrelationSamplesDir", "{5}/Organisation/Application/correlationsamples"},
        {13, "eApplicationReportsDir", "{5}/Organisation/Application/reports"},
        {14, "eApplicationDiagramsDir", "{5}/Organisation/Application/diagrams"},
        {15, "eApplicationLayoutsDir", "{5}/Organisation/Application/layouts"},
        {16, "eApplicationUserDiskCacheBaseDir", "{28}/Organisation/Application/cache"},
        {17, "eApplicationParamSetsDir", "{5}/Organisation/Application/paramsets"},
        {18, "eApplicationDictionariesDir", "C:/Prog/App/dictionaries"},
        {19, "eApplicationUserDictionariesDir", "{5}/Organisation/Application/dictionaries"},
        {20, "eApplicationScriptsDir", "{5}/Organisation/Application/scripts"},
        {21, "eApplicationDriveLetter", "C"},
        {22, "eApplicationDriveRoot", "C:"},
        {23, "eApplicationCommonPrivateDataBaseDir", "{35}/Organisation/Application"},
        {24, "eApplicationCommonPublicDataBaseDir", "{46}/Organisation/Application"},
        {25, "eOrganizationSharedRootDir", "{5}/Organisation/Shared"},
        {26, "eOrganizationSharedScriptsDir", "{5}/Organisation/Shared/scripts"},
        {27, "eOrganizationSharedCollectionsDir", "{5}/Organisation/Shared/collections"},
        {28, "eOrganizationSharedDetectorProfilesDir", "{5}/Organisation/Shared/detectorprofiles"},
        {29, "eOrganizationUserPublicDataBaseDir", "{5}/Organisation"},
        {30, "<unknown> 30", "{39}/Organisation"},
        {31, "eOrganizationUserPrivateDataBaseDir", "{26}/Organisation"},
        {32, "eOrganizationLocalDataBaseDir", "{28}/Organisation"},
        {33, "eOrganizationOutputBaseDir", "{5}/Organisation"},
        {34, "eOrganizationCommonPrivateDataBaseDir", "{35}/Organisation"},
        {35, "eOrganizationCommonPublicDataBaseDir", "{46}/Organisation"},
        {100, "eSystemUserDocuments", "{5}"},
        {101, "<unknown> 101", "{39}"},
        {102, "eSystemUserAppData", "{26}"},
        {103, "eSystemUserLocalAppData", "{28}"},
        {104, "eSystemProgramFiles", "{38}"},
        {105, "eSystemProgramFilesCommon", "{43}"},
        {106, "eSystemDesktop", "{0}"},
        {107, "eSystemTemporaryFiles", "/temporary"},
        {108, "eSystemCommonAppData", "{35}"},
        {109, "eSystemCommonDocuments", "{46}"},
        {36, "<unknown> 36", "."},
        {110, "<unknown> 110", "."},
        {1000, "<unknown> 1000", "."},
        {1003, "eSpecialDirFirstUser + 3", "."},
    };
    Info info;
    for (const auto &row : rows) {
        const QString name(row.name);
        QCOMPARE(Info::getSpecialDirEnumName(row.code), name);
        QVERIFY2(info.getSpecialDirPath(row.code, false) == expanded(row.path), row.name);
        const bool bNamed = !name.contains(' ');
        QCOMPARE(Info::staticSpecialDirsEnumByValue().value(row.code), bNamed ? name : QString());
        QCOMPARE(Info::staticSpecialDirsEnumByName().value(name, 9999), bNamed ? row.code : 9999);
    }
    QCOMPARE(Info::staticSpecialDirsEnumByName().size(), 43);
}

void tst_PYXApplicationInfoImpl::programPlaces()
{
    const char *const rows[][4] = {{"c:/Prog/BIN", "c:/Prog", "c:/Prog/plugins", "C:"},
                                   {"D:/cabin", "D:/cabin", "D:/cabin/plugins", "D:"},
                                   {"D:/bin", "D:/", "D:/plugins", "D:"},
                                   {"/bin", "/", "/plugins", ""},
                                   {"/opt/App/bin", "/opt/App", "/opt/App/plugins", ""},
                                   {"/opt/bin/App", "/opt/bin/App", "/opt/bin/App/plugins", ""}};
    for (const auto &[program, base, plugins, root] : rows) {
        m_program = program;
        Info info;
        QCOMPARE(info.getSpecialDirPath(Info::eApplicationBaseDir, false), QString(base));
        QCOMPARE(info.getSpecialDirPath(Info::eApplicationPluginsBaseDir, false), QString(plugins));
        QCOMPARE(info.getSpecialDirPath(Info::eApplicationDriveRoot, false), QString(root));
        QCOMPARE(info.getSpecialDirPath(Info::eApplicationDriveLetter, false), QString(root).left(1));
    }
}

void tst_PYXApplicationInfoImpl::namesAndTemporaryFilesHaveDefaults()
{
    QCoreApplication::setOrganizationName({});
    QCoreApplication::setApplicationName({});
    Info info;
    info.setSpecialDirCompatibilityMode(true);
    QCOMPARE(info.getSpecialDirPath(Info::eApplicationLocalDataBaseDir, false),
             expanded("{28}/Varnholt/tst_PYXApplicationInfoImpl"));
    qputenv("TMP", "/second/");
    qunsetenv("TEMP");
    QCOMPARE(info.getSpecialDirPath(Info::eSystemTemporaryFiles, false), QString("/second"));
    qunsetenv("TMP");
    QCOMPARE(info.getSpecialDirPath(Info::eSystemTemporaryFiles, false),
             QStandardPaths::writableLocation(QStandardPaths::TempLocation));
}

void tst_PYXApplicationInfoImpl::portablePrograms()
{
    const struct
    {
        const char *program;
        bool bCompatible;
        uint code;
        const char *path;
    } rows[] = {
        {"E:/App/bin", false, 100, "/portable/Personal/Documents"},
        {"E:/App/bin", false, 101, "/portable/Personal/Pictures"},
        {"E:/App/bin", false, 102, "/portable/Personal/AppData/Roaming"},
        {"E:/App/bin", false, 103, "/portable/Personal/AppData/Local"},
        {"E:/App/bin", false, 104, "{38}"},
        {"E:/App/bin", false, 108, "/portable/Common/AppData"},
        {"E:/App/bin", false, 109, "/portable/Common/Documents"},
        {"E:/App/bin", false, 7, "/portable/Personal/Documents/Organisation/Application/logs"},
        {"E:/App/bin", false, 16, "/temporary/Organisation/Application/cache"},
        {"/media/App", false, 103, "{mount}/portable/Personal/AppData/Local"},
        {"/media/App", false, 109, "{mount}/portable/Common/Documents"},
        {"E:/App/bin", true, 100, "E:/App/portable/Personal Documents"},
        {"E:/App/bin", true, 101, "E:/App/portable/Personal Pictures"},
        {"E:/App/bin", true, 102, "E:/App/portable/Roaming Data"},
        {"/media/App", true, 103, "/media/App/portable/Local Data"},
        {"E:/App/bin", true, 108, "{35}"},
        {"E:/App/bin", true, 109, "{46}"},
    };
    m_bRemovable = true;
    for (const auto &row : rows) {
        m_program = row.program;
        Info info;
        info.setInitializeSettingsPaths(false);
        info.setSpecialDirCompatibilityMode(row.bCompatible);
        QVERIFY(info.isRunningFromPortableDevice());
        QCOMPARE(info.getSpecialDirPath(row.code, false), expanded(row.path));
    }
}

void tst_PYXApplicationInfoImpl::markedProgramIsPortable()
{
    m_program = m_home->path("App/bin");
    QVERIFY(QDir().mkpath(m_program));
    QFile marker(m_home->path("App/portable"));
    QVERIFY(marker.open(QIODevice::WriteOnly));
    Info info;
    info.setInitializeSettingsPaths(false);
    QVERIFY(info.isRunningFromPortableDevice());
    const bool bLetters = !info.getSpecialDirPath(Info::eApplicationDriveRoot, false).isEmpty();
    QCOMPARE(info.getSpecialDirPath(Info::eSystemUserLocalAppData, false),
             (bLetters ? "/portable" : m_home->path("App/portable-data")) + "/Personal/AppData/Local");
    info.setSpecialDirCompatibilityMode(true);
    QCOMPARE(info.getSpecialDirPath(Info::eSystemUserLocalAppData, false),
             m_home->path("App/portable-data/Local Data"));
    QVERIFY(marker.remove());
    info.setSpecialDirCompatibilityMode(false);
    QVERIFY(!info.isRunningFromPortableDevice());
    QCOMPARE(info.getSpecialDirPath(Info::eSystemUserLocalAppData, false), expanded("{28}"));
}

void tst_PYXApplicationInfoImpl::pathsOnThePortableDrive()
{
    const struct
    {
        const char *program;
        bool bRemovable;
        QString path;
        QString modified;
    } cases[] = {
        {"E:/App", true, "E:/data/x.wav", "/data/x.wav"},
        {"E:/App", true, "e:\\data\\x.wav", "/data/x.wav"},
        {"E:/App", true, "E:/", "/"},
        {"E:/App", true, "E:", "/"},
        {"E:/App", true, "D:/data/../x", "D:/data/../x"},
        {"E:/App", false, "E:/data", "E:/data"},
        {"/media/App", true, "/media/x", "/media/x"},
    };
    for (const auto &c : cases) {
        m_program = c.program;
        m_bRemovable = c.bRemovable;
        Info info;
        info.setInitializeSettingsPaths(false);
        QCOMPARE(info.modifyPathForPortableDevice(c.path), c.modified);
    }
}

void tst_PYXApplicationInfoImpl::settingsFollowTheirDirectories()
{
    const QString tree = "{mount}/portable/";
    const QString compatible = "{mount}/../App/portable/Local Data/Organisation/Application/";
    const struct
    {
        bool bRemovable;
        bool bCompatible;
        int switched; ///< below zero: left alone
        QString user;
        QString system;
    } rows[] = {{false, false, -1, "{mount}/../user", "{mount}/../system"},
                {false, false, 1, "{28}", "{35}"},
                {true, false, -1, tree + "Personal/AppData/Local", tree + "Common/AppData"},
                {true, false, 0, "{mount}/../user", "{mount}/../system"},
                {true, true, -1, compatible + "userSettings", compatible + "defaultSettings"}};
    for (const auto &row : rows) {
        m_home.reset(new SettingsHome);
        // With a drive letter the portable tree would lie in the root of a real drive.
        m_program = row.bCompatible ? m_home->path("App") : QString("/media/App");
        m_bRemovable = row.bRemovable;
        Info info;
        info.setSpecialDirCompatibilityMode(row.bCompatible);
        if (row.switched >= 0)
            info.setInitializeSettingsPaths(row.switched != 0);
        info.saveLastDirPath("open", "/somewhere");
        const QString user = QDir::cleanPath(expanded(row.user)) + "/Organisation/Application.PYXXml";
        const QString system = QDir::cleanPath(expanded(row.system)) + "/Organisation/SharedSettings.PYXXml";
        QCOMPARE(QDir::cleanPath(PYXSettings(PYXSettings::eUserApplicationSettings).fileName()), user);
        QCOMPARE(QDir::cleanPath(PYXSettings(PYXSettings::eDefaultSharedSettings).fileName()), system);
        QVERIFY(QFile::exists(user));
        // In the compatibility mode the default shared paths are not written.
        QCOMPARE(QFile::exists(system), !row.bCompatible);
    }
}

void tst_PYXApplicationInfoImpl::laterDefaultFormatIsPointedToo()
{
    const QSettings::Format xml = QSettings::defaultFormat();
    QSettings::setDefaultFormat(QSettings::IniFormat);
    m_home->hold(QSettings::IniFormat);
    Info info;
    info.setInitializeSettingsPaths(true);
    info.ensureInitialized();
    QVERIFY(PYXSettings(PYXSettings::eUserSharedSettings).fileName().startsWith(expanded("{28}")));
    QSettings::setDefaultFormat(xml);
    QVERIFY(!PYXSettings(PYXSettings::eUserSharedSettings).fileName().startsWith(expanded("{28}")));
    info.getLastDirPath("any");
    QVERIFY(PYXSettings(PYXSettings::eUserSharedSettings).fileName().startsWith(expanded("{28}")));
}

void tst_PYXApplicationInfoImpl::switchesRecompute()
{
    Info info;
    QVERIFY(info.needsInitialize());
    info.ensureInitialized();
    QVERIFY(!info.needsInitialize());
    m_program = "D:/Elsewhere";
    QCOMPARE(info.getSpecialDirPath(Info::eApplicationBaseDir, false), QString("C:/Prog/App"));
    info.setSpecialDirCompatibilityMode(false);
    QVERIFY(!info.needsInitialize());
    info.setInitializeSettingsPaths(false); // the same value, but set for the first time
    QVERIFY(info.needsInitialize());
    QCOMPARE(info.getSpecialDirPath(Info::eApplicationBaseDir, false), QString("D:/Elsewhere"));
    info.setSpecialDirCompatibilityMode(true);
    QVERIFY(info.needsInitialize());
}

void tst_PYXApplicationInfoImpl::sharedPathsComeFromTheSettings()
{
    Info info;
    info.ensureInitialized();
    const auto stored = [](const char *key) {
        return PYXSettings(PYXSettings::eDefaultSharedSettings).stringValue(key);
    };
    QCOMPARE(stored("Paths/Collections"), expanded("{5}/Organisation/Shared/collections"));
    QCOMPARE(stored("Paths/DetectorProfiles"), expanded("{5}/Organisation/Shared/detectorprofiles"));
    QCOMPARE(stored("Paths/Scripts"), expanded("{5}/Organisation/Shared/scripts"));

    PYXSettings(PYXSettings::eDefaultSharedSettings).setValue("Paths/Scripts", "/moved");
    QCOMPARE(info.getSpecialDirPath(Info::eOrganizationSharedScriptsDir, false), QString("/moved"));
    QCOMPARE(info.getCurrent_SharedSpecialDir(26, false), QDir("/moved"));
    QCOMPARE(info.getDefault_SharedSpecialDirPath(26, false), expanded("{5}/Organisation/Shared/scripts"));
    PYXSettings(PYXSettings::eDefaultSharedSettings).remove("Paths/Scripts");
    QCOMPARE(info.getCurrent_SharedSpecialDirPath(26, false), QString());
    QCOMPARE(info.getCurrentOrDefault_SharedSpecialDirPath(26, true),
             expanded("{5}/Organisation/Shared/scripts"));
    QVERIFY(QDir(expanded("{5}/Organisation/Shared/scripts")).exists());
    QCOMPARE(info.getCurrent_SharedSpecialDirPath(25, false), expanded("{5}/Organisation/Shared"));
    QCOMPARE(info.getCurrentOrDefault_SharedSpecialDirPath(24, true), QString("."));

    // Where they cannot be written, nothing is said in the trace.
    m_home.reset(new SettingsHome);
    QFile obstacle(m_home->path("system"));
    QVERIFY(obstacle.open(QIODevice::WriteOnly));
    const QStringList traces = tracesOf([] { Info().getSpecialDirPath(26, false); });
    QCOMPARE(traces, QStringList());
}

void tst_PYXApplicationInfoImpl::overriddenPathsMoveWhatIsBelow()
{
    MovedDocuments info;
    QCOMPARE(info.getSpecialDir(Info::eApplicationLogsDir, false).path(),
             QString("Z:/moved/Organisation/Application/logs"));
    QCOMPARE(PYXSettings(PYXSettings::eDefaultSharedSettings).stringValue("Paths/Scripts"),
             QString("Z:/moved/Organisation/Shared/scripts"));
}

void tst_PYXApplicationInfoImpl::createsAndRemembersDirectories()
{
    Info info;
    const QString logs = info.getSpecialDirPath(Info::eApplicationLogsDir, false);
    QVERIFY(!QDir(logs).exists());
    QCOMPARE(info.getSpecialDirPath(Info::eApplicationLogsDir, true), logs);
    QVERIFY(QDir(logs).exists());
    info.getSpecialDirPath(Info::eApplicationDriveLetter, true); // is none
    QVERIFY(!QFile::exists("C"));
    QVERIFY(Info::createPath({}));

    QCOMPARE(info.getLastDirPath("open"), QString());
    QCOMPARE(info.getLastDir("open").absolutePath(), QDir::currentPath());
    info.saveLastDirPath("open %1 %3", "/recordings/%2");
    QCOMPARE(info.getLastDirPath("open %1 %3"), QString("/recordings/%2"));
    const QString key = "::ApplicationInfo::/LastDirs/open %1 %3";
    QVERIFY(PYXSettings(PYXSettings::eUserApplicationSettings).contains(key, true));
    info.saveLastDirPath("open %1 %3", {});
    QVERIFY(!PYXSettings(PYXSettings::eUserApplicationSettings).contains(key, true));
    info.saveLastDir("save", QDir("."));
    QCOMPARE(info.getLastDirPath("save"), QDir::currentPath());

    info.setLayoutDirection("page", Qt::RightToLeft);
    QVERIFY(info.getLayoutDirection("page") != info.getLayoutDirection("other"));
}

int main(int argc, char **argv)
{
    if (argc > 1 && QLatin1String(argv[1]) == WithoutApplication)
        return runWithoutApplication(argc, argv);
    QCoreApplication application(argc, argv);
    tst_PYXApplicationInfoImpl test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_PYXApplicationInfoImpl.moc"
