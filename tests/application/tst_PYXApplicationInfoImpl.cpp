// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXApplicationInfoImpl.h"

#include "ChildProcess.h"
#include "FileContents.h"
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

/** Has its user's documents elsewhere. */
class MovedDocuments : public Info
{
public:
    QString getSpecialDirPath(uint code, bool create) override
    {
        return code == eSystemUserDocuments ? QString("Z:/moved") : Info::getSpecialDirPath(code, create);
    }
};

QString pathOf(Info &info, uint code)
{
    return info.getSpecialDirPath(code, false);
}

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
    void sharedPathsComeFromTheSettings();
    void overriddenPathsMoveWhatIsBelow();
    void createsAndRemembersDirectories();

private:
    /**
     * "{5}" stands for the shell's folder 5, "{5o}" for the organisation's directory there, "{5a}" for the
     * application's; "{mount}" for the drive without a letter.
     */
    QString expanded(QString text) const
    {
        text.replace("{mount}", m_home->path("mount")).replace("o}", "}/Organisation");
        text.replace("a}", "}/Organisation/Application");
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
    const ChildResult child = runOwnProbe("without application");
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
    // The code of the first and the beginning of all names; the rest of each name, if it has one, and path.
    const char *const rows[] = {
        R"(0 eApplication BaseDir=C:/Prog/App PluginsBaseDir=C:/Prog/App/plugins UserPublicDataBaseDir={5a} ={39a}
        UserPrivateDataBaseDir={26a} LocalDataBaseDir={28a} OutputBaseDir={5a} LogsDir={5a}/logs
        DatastreamsDir={5a}/datastreams ResultsDir={5a}/results JobsDir={5a}/jobs ProjectsDir={5a}/projects
        CorrelationSamplesDir={5a}/correlationsamples ReportsDir={5a}/reports DiagramsDir={5a}/diagrams
        LayoutsDir={5a}/layouts UserDiskCacheBaseDir={28a}/cache ParamSetsDir={5a}/paramsets
        DictionariesDir=C:/Prog/App/dictionaries UserDictionariesDir={5a}/dictionaries ScriptsDir={5a}/scripts
        DriveLetter=C DriveRoot=C: CommonPrivateDataBaseDir={35a} CommonPublicDataBaseDir={46a})",
        R"(25 eOrganization SharedRootDir={5o}/Shared SharedScriptsDir={5o}/Shared/scripts
        SharedCollectionsDir={5o}/Shared/collections SharedDetectorProfilesDir={5o}/Shared/detectorprofiles
        UserPublicDataBaseDir={5o} ={39o} UserPrivateDataBaseDir={26o} LocalDataBaseDir={28o}
        OutputBaseDir={5o} CommonPrivateDataBaseDir={35o} CommonPublicDataBaseDir={46o} =.)",
        R"(100 eSystem UserDocuments={5} ={39} UserAppData={26} UserLocalAppData={28} ProgramFiles={38}
        ProgramFilesCommon={43} Desktop={0} TemporaryFiles=/temporary CommonAppData={35} CommonDocuments={46} =.)",
        "1000 none =."};
    Info info;
    for (const char *const row : rows) {
        const QStringList words = QString(row).simplified().split(' ');
        uint code = words[0].toUInt();
        for (const QString &place : words.mid(2)) {
            const bool bNamed = !place.startsWith('=');
            const QString name = bNamed ? words[1] + place.section('=', 0, 0) : QString();
            QCOMPARE(Info::getSpecialDirEnumName(code), bNamed ? name : QString("<unknown> %1").arg(code));
            QCOMPARE(pathOf(info, code), expanded(place.section('=', 1)));
            QCOMPARE(Info::staticSpecialDirsEnumByValue().value(code), name);
            QCOMPARE(Info::staticSpecialDirsEnumByName().value(name, 9999), bNamed ? code : 9999);
            ++code;
        }
    }
    QCOMPARE(Info::getSpecialDirEnumName(1003), QString("eSpecialDirFirstUser + 3"));
    QCOMPARE(pathOf(info, 1003), QString("."));
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
        QCOMPARE(pathOf(info, Info::eApplicationBaseDir), QString(base));
        QCOMPARE(pathOf(info, Info::eApplicationPluginsBaseDir), QString(plugins));
        QCOMPARE(pathOf(info, Info::eApplicationDriveRoot), QString(root));
        QCOMPARE(pathOf(info, Info::eApplicationDriveLetter), QString(root).left(1));
    }
}

void tst_PYXApplicationInfoImpl::namesAndTemporaryFilesHaveDefaults()
{
    QCoreApplication::setOrganizationName({});
    QCoreApplication::setApplicationName({});
    Info info;
    info.setSpecialDirCompatibilityMode(true);
    QCOMPARE(pathOf(info, Info::eApplicationLocalDataBaseDir),
             expanded("{28}/Varnholt/tst_PYXApplicationInfoImpl"));
    qputenv("TMP", "/second/");
    qunsetenv("TEMP");
    QCOMPARE(pathOf(info, Info::eSystemTemporaryFiles), QString("/second"));
    qunsetenv("TMP");
    QCOMPARE(pathOf(info, Info::eSystemTemporaryFiles),
             QStandardPaths::writableLocation(QStandardPaths::TempLocation));
}

void tst_PYXApplicationInfoImpl::portablePrograms()
{
    // Whether it is in the compatibility mode; the program, and the paths of codes.
    const std::pair<bool, QString> programs[] = {
        {false, "E:/App/bin; 100=/portable/Personal/Documents; 101=/portable/Personal/Pictures; "
                "102=/portable/Personal/AppData/Roaming; 103=/portable/Personal/AppData/Local; 104={38}; "
                "108=/portable/Common/AppData; 109=/portable/Common/Documents; "
                "7=/portable/Personal/Documents/Organisation/Application/logs; "
                "16=/temporary/Organisation/Application/cache"},
        {false, "/media/App; 103={mount}/portable/Personal/AppData/Local; "
                "109={mount}/portable/Common/Documents"},
        {true, "E:/App/bin; 100=E:/App/portable/Personal Documents; 101=E:/App/portable/Personal Pictures; "
               "102=E:/App/portable/Roaming Data; 108={35}; 109={46}"},
        {true, "/media/App; 103=/media/App/portable/Local Data"}};
    m_bRemovable = true;
    for (const auto &[bCompatible, text] : programs) {
        const QStringList paths = text.split("; ");
        m_program = paths[0];
        Info info;
        info.setInitializeSettingsPaths(false);
        info.setSpecialDirCompatibilityMode(bCompatible);
        QVERIFY(info.isRunningFromPortableDevice());
        for (const QString &path : paths.mid(1))
            QCOMPARE(pathOf(info, path.section('=', 0, 0).toUInt()), expanded(path.section('=', 1)));
    }
}

void tst_PYXApplicationInfoImpl::markedProgramIsPortable()
{
    m_program = m_home->path("App/bin");
    QVERIFY(QDir().mkpath(m_program));
    put(m_home->path("App/portable"), {});
    Info info;
    info.setInitializeSettingsPaths(false);
    QVERIFY(info.isRunningFromPortableDevice());
    const bool bLetters = !pathOf(info, Info::eApplicationDriveRoot).isEmpty();
    QCOMPARE(pathOf(info, Info::eSystemUserLocalAppData),
             (bLetters ? "/portable" : m_home->path("App/portable-data")) + "/Personal/AppData/Local");
    info.setSpecialDirCompatibilityMode(true);
    QCOMPARE(pathOf(info, Info::eSystemUserLocalAppData), m_home->path("App/portable-data/Local Data"));
    QVERIFY(QFile::remove(m_home->path("App/portable")));
    info.setSpecialDirCompatibilityMode(false);
    QVERIFY(!info.isRunningFromPortableDevice());
    QCOMPARE(pathOf(info, Info::eSystemUserLocalAppData), expanded("{28}"));
}

void tst_PYXApplicationInfoImpl::pathsOnThePortableDrive()
{
    const char *const paths[][3] = {{"E:/App", "E:/data/x.wav", "/data/x.wav"},
                                    {"E:/App", "e:\\data\\x.wav", "/data/x.wav"},
                                    {"E:/App", "E:/", "/"},
                                    {"E:/App", "E:", "/"},
                                    {"E:/App", "D:/data/../x", "D:/data/../x"},
                                    {"/media/App", "/media/x", "/media/x"}};
    for (const auto &[program, path, modified] : paths) {
        for (const bool bRemovable : {true, false}) {
            m_program = program;
            m_bRemovable = bRemovable;
            Info info;
            info.setInitializeSettingsPaths(false);
            QCOMPARE(info.modifyPathForPortableDevice(path), QString(bRemovable ? modified : path));
        }
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
    QCOMPARE(pathOf(info, Info::eOrganizationSharedScriptsDir), QString("/moved"));
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
    put(m_home->path("system"), {});
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

PYX_TEST_MAIN_WITH_PROBE(tst_PYXApplicationInfoImpl, runWithoutApplication)
#include "tst_PYXApplicationInfoImpl.moc"
