// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "ChildProcess.h"
#include "Flags.h"
#include "PYXEncryptionManager.h"
#include "PYXRuntime.h"
#include "PYXStringPool.h"
#include "PYXStyleHints.h"
#include "PYXTransConnectorImpl.h"
#include "PYXXmlSettings.h"
#include "RecordingTracer.h"

#include <QtGui/QFontDatabase>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>

using namespace PYXRuntime;

namespace {

bool hasFonts()
{
    return QFontDatabase().families().contains("KTCorpid");
}

} // namespace

class tst_PYXRuntime : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { QCoreApplication::setApplicationName("tst_PYXRuntime"); }
    void cleanup();
    void countsReferences();
    void startsWithoutGui();
    void endsWhatItHasMadeInOrder();
    void makesXmlTheDefaultOfSettings();
    void fontsHaveFourFacesInTwoFamilies();
    void substitutions_data();
    void substitutions();
    void fontsOfTheApplicationStay();
    void fontsOnDemand();
    void clocksAndWaiting();
    void loadsSiblingLibraries();

private:
    const QFont m_font = QApplication::font();
};

void tst_PYXRuntime::cleanup()
{
    while (initializitationCount_PYXRuntime() > 0)
        uninitialize_PYXRuntime();
    QApplication::setFont(m_font);
}

void tst_PYXRuntime::countsReferences()
{
    const QStringList traces = tracesOf([] {
        QVERIFY(initialize_PYXRuntime(ekInitialize_NoFonts));
        QVERIFY(initialize_PYXRuntime(ekInitialize_CondensedFont));
        QCOMPARE(initializitationCount_PYXRuntime(), 2);
        QCOMPARE(initializationFlags_PYXRuntime(), ePYXInitializeFlags(ekInitialize_NoFonts));
        uninitialize_PYXRuntime();
        QVERIFY(isInitialized_PYXRuntime());
        uninitialize_PYXRuntime();
        QVERIFY(!isInitialized_PYXRuntime());
        QVERIFY(initializationResult_PYXRuntime());
        // A reference too many shifts the count, and nothing is cleaned up.
        uninitialize_PYXRuntime();
        QCOMPARE(initializitationCount_PYXRuntime(), -1);
        initialize_PYXRuntime(ekInitialize_NoFonts);
    });
    QStringList texts;
    for (const QString &trace : traces)
        texts += trace.section('|', 0, 2);
    QCOMPARE(texts.join('\n').remove("|source\\PYXRuntime"),
             QString("Debug|initialize_PYXRuntime: first call => initializing\n"
                     "Debug|initialize_PYXRuntime called multiple times (2)\n"
                     "Debug|uninitialize_PYXRuntime: references still open (1)\n"
                     "Debug|uninitialize_PYXRuntime: last reference gone => cleaning up\n"
                     "Debug|uninitialize_PYXRuntime: references still open (-1)\n"
                     "Debug|initialize_PYXRuntime called multiple times (0)"));
}

void tst_PYXRuntime::startsWithoutGui()
{
    QCOMPARE(runOwnProbe("no GUI").exitCode, 0);
    // Qt names an application object after its file: only a program without one has no name.
    const ChildResult result = runOwnProbe("no application");
    QCOMPARE(result.exitCode, 0);
    const QString text = " : TRACE_WARN : QCoreApplication::applicationName MUST be set before PYXRuntime "
                         "initialization! => reorder code";
    QVERIFY2(result.errors.contains("\nPYXRuntime(0)" + text), qPrintable(result.errors));
    QVERIFY(result.errors.contains(QRegularExpression(R"(source\\PYXRuntime\(\d+\))" + text.left(30))));
}

void tst_PYXRuntime::endsWhatItHasMadeInOrder()
{
    QVERIFY(!Enums::hasInstance() && !Flags::hasInstance() && !PYXStyleHints::hasInstance());
    initialize_PYXRuntime(ekInitialize_NoFonts);
    QVERIFY(Enums::hasInstance() && Flags::hasInstance() && PYXStyleHints::hasInstance());
    QVERIFY(PYXStringPool::contains("PYXStrings::ekText_Level"));
    QStringList names;
    QStringList ended;
    for (QObject *const object : std::initializer_list<QObject *>{
             PYXEncryptionManager::getInstance(), PYXStyleHints::getInstance(), Flags::getInstance(),
             Enums::getInstance(), PYXTransConnectorImpl::getInstance()}) {
        const QString name = object->metaObject()->className();
        names += name;
        connect(object, &QObject::destroyed, this, [&ended, name] { ended += name; });
    }
    uninitialize_PYXRuntime();
    QCOMPARE(ended, names);
}

void tst_PYXRuntime::makesXmlTheDefaultOfSettings()
{
    initialize_PYXRuntime(ekInitialize_NoFonts);
    QCOMPARE(QSettings::defaultFormat(), PYXXmlSettings::format());
    QVERIFY(QSettings().fileName().endsWith("/tst_PYXRuntime.PYXXml"));
    uninitialize_PYXRuntime();
    QCOMPARE(QSettings::defaultFormat(), QSettings::NativeFormat);

    initialize_PYXRuntime(ekInitialize_NoFonts);
    QSettings::setDefaultFormat(QSettings::IniFormat); // the application's own choice stays
    uninitialize_PYXRuntime();
    QCOMPARE(QSettings::defaultFormat(), QSettings::IniFormat);
}

void tst_PYXRuntime::fontsHaveFourFacesInTwoFamilies()
{
    initialize_PYXRuntime(ekInitialize_KeepApplicationFont);
    for (const char *family : {"KTCorpid", "KTCorpid Cd"}) {
        const QFontDatabase database;
        QStringList styles = database.styles(family);
        styles.sort();
        QCOMPARE(styles, (QStringList{"Bold", "Italic", "Light", "Regular"}));
        QVERIFY(database.bold(family, "Bold") && database.italic(family, "Italic"));
        QVERIFY(database.weight(family, "Light") < database.weight(family, "Regular"));
        for (const int letter : {0x03A9, 0x0416}) // Greek and Cyrillic
            QVERIFY(QFontMetrics(QFont(family)).inFont(QChar(letter)));
    }
}

void tst_PYXRuntime::substitutions_data()
{
    QTest::addColumn<int>("flags");
    QTest::addColumn<QString>("substitute");
    QTest::addColumn<QString>("applicationFont");
    const QString none = "MS Shell Dlg 2";
    QTest::newRow("default") << int(ekInitialize_Default) << "KTCorpid"
                             << "KTCorpid";
    QTest::newRow("condensed") << int(ekInitialize_CondensedFont) << "KTCorpid Cd"
                               << "KTCorpid Cd";
    QTest::newRow("kept") << int(ekInitialize_KeepApplicationFont) << "KTCorpid" << none;
    QTest::newRow("none asked for") << int(ekInitialize_NoFontSubstitution) << none << none;
    QTest::newRow("no fonts") << int(ekInitialize_NoFonts) << none << none;
}

void tst_PYXRuntime::substitutions()
{
    QFETCH(int, flags);
    QFETCH(QString, substitute);
    QFont::removeSubstitutions("Helvetica");
    QFont::insertSubstitution("Helvetica", "Somebody's");
    QApplication::setFont(QFont("MS Shell Dlg 2", 11));
    initialize_PYXRuntime(ePYXInitializeFlags(flags));
    QCOMPARE(hasFonts(), flags != ekInitialize_NoFonts);
    QCOMPARE(QFont::substitutes("Helvetica").contains(substitute.toLower()), substitute.startsWith('K'));
    QCOMPARE(QFont::substitute("MS Shell Dlg 2").toLower(), substitute.toLower());
    QTEST(QApplication::font().family(), "applicationFont");
    QCOMPARE(QApplication::font().pointSize(), 11);
    uninitialize_PYXRuntime();
    QVERIFY(!hasFonts());
    QCOMPARE(QFont::substitutes("Helvetica"), QStringList{"somebody's"});
    QCOMPARE(QFont::substitutes("MS Shell Dlg 2"), QStringList());
    QCOMPARE(QApplication::font().family(), QString("MS Shell Dlg 2"));
}

void tst_PYXRuntime::fontsOfTheApplicationStay()
{
    QApplication::setFont(QFont("Unsubstituted"));
    QFont::removeSubstitutions("Helvetica");
    QFont::insertSubstitution("Helvetica", "KTCorpid");
    initialize_PYXRuntime();
    QCOMPARE(QApplication::font().family(), QString("Unsubstituted"));
    uninitialize_PYXRuntime();
    QCOMPARE(QFont::substitutes("Helvetica"), QStringList{"ktcorpid"});
}

void tst_PYXRuntime::fontsOnDemand()
{
    makeEmbeddedFontsAvailable();
    makeEmbeddedFontsAvailable();
    QVERIFY(hasFonts());
    makeEmbeddedFontsUnavailable();
    QVERIFY(!hasFonts());

    makeEmbeddedFontsAvailable();
    initialize_PYXRuntime(); // takes the fonts over
    makeEmbeddedFontsUnavailable();
    QVERIFY(hasFonts());
    uninitialize_PYXRuntime();
    QVERIFY(!hasFonts());
    makeEmbeddedFontsAvailable();
    QVERIFY(hasFonts());
    makeEmbeddedFontsUnavailable();
}

void tst_PYXRuntime::clocksAndWaiting()
{
    bool bOk = false;
    const qint64 frequency = rawPerfFrequency(&bOk);
    QVERIFY(bOk && frequency > 0);
    qint64 counter = 0;
    qint64 usedFrequency = 0;
    const quint64 microseconds = perfCounterInMyS(&counter, &usedFrequency);
    QCOMPARE(usedFrequency, frequency);
    QCOMPARE(microseconds, quint64(double(counter) * 1e6 / double(frequency)));
    const uint uptime = uptimeInMS();
    int ticks = 0;
    QTimer timer;
    connect(&timer, &QTimer::timeout, this, [&] { ++ticks; });
    timer.start(1);
    QElapsedTimer elapsed;
    elapsed.start();
    msleep(20);
    active_msleep(0);
    active_sleep(-5);
    QCOMPARE(ticks, 0); // only a longer wait takes events
    const qint64 passed = elapsed.elapsed();
    const qint64 counted = qint64(perfCounterInMS()) - qint64(microseconds / 1000);
    QVERIFY2(counted >= 19 && counted <= passed + 20, qPrintable(QString::number(counted)));
    QVERIFY(uptimeInMS() - uptime >= 15);
    QVERIFY(qAbs(qint64(currentUTCInMS()) - QDateTime::currentMSecsSinceEpoch()) < 1000);
    active_msleep(30);
    QVERIFY(ticks > 0);
    QVERIFY(elapsed.elapsed() >= 50);
}

void tst_PYXRuntime::loadsSiblingLibraries()
{
    const auto loads = [](QLibrary *library) {
        const QScopedPointer<QLibrary> owner(library);
        return library != nullptr && library->isLoaded();
    };
    QVERIFY(loads(getReferenceOnQtDLL("Core")));
    QVERIFY(!loads(getReferenceOnQtDLL("NoSuchModule")));
    QVERIFY(!loads(getReferenceOnProjectDLL("NoSuchLibrary")));
    const QString directory = QSysInfo::kernelType() == "winnt" ? "/" : "/../lib/";
    QVERIFY(
        loads(getReferenceOnProjectDLL(QCoreApplication::applicationDirPath() + directory + "PYXRuntime")));
    // The infix variable is a last resort: here it makes "Qt5" + "" + "Core" out of a module without name.
    qputenv("BUILD_QT_INFIX", "Core");
    QVERIFY(loads(getReferenceOnQtDLL("")));
    qunsetenv("BUILD_QT_INFIX");
}

int main(int argc, char **argv)
{
    if (argc == 3 && qstrcmp(argv[1], "--probe") == 0) {
        std::unique_ptr<QCoreApplication> application;
        if (qstrcmp(argv[2], "no GUI") == 0)
            application = std::make_unique<QCoreApplication>(argc, argv);
        active_msleep(1); // ends also where there are no events
        const bool bStarted = initialize_PYXRuntime();
        uninitialize_PYXRuntime();
        return bStarted ? 0 : 1;
    }
    QApplication application(argc, argv);
    tst_PYXRuntime test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_PYXRuntime.moc"
