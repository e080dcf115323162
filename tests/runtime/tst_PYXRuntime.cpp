// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "ChildProcess.h"
#include "PYXRuntime.h"
#include "PYXTraceWrapper.h"
#include "PYXXmlSettings.h"
#include "RecordingTracer.h"

#include <QtGui/QFontDatabase>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>

using namespace PYXRuntime;

class tst_PYXRuntime : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void countsReferences();
    void reportsMissingApplicationName();
    void makesXmlTheDefaultOfSettings();
    void fontsHaveFourFacesInTwoFamilies();
    void substitutions_data();
    void substitutions();
    void applicationFontFollowsSubstitution();
    void fontsOnDemand();
    void startsWithoutGui();
    void clocks();
    void processesEventsWhileWaiting();
    void loadsSiblingLibraries();

private:
    QStringList messages() const
    {
        QStringList texts;
        for (const QString &call : m_tracer.calls)
            texts += call.section('|', 0, 1);
        return texts;
    }

    RecordingTracer m_tracer;
    QFont m_font;
};

void tst_PYXRuntime::init()
{
    m_font = QApplication::font();
    QCoreApplication::setApplicationName("tst_PYXRuntime");
    m_tracer.calls.clear();
    PYXTraceWrapper::addTracer(&m_tracer);
}

void tst_PYXRuntime::cleanup()
{
    PYXTraceWrapper::removeTracer(&m_tracer);
    while (initializitationCount_PYXRuntime() > 0)
        uninitialize_PYXRuntime();
    QApplication::setFont(m_font);
}

void tst_PYXRuntime::countsReferences()
{
    QVERIFY(!isInitialized_PYXRuntime());
    QVERIFY(initialize_PYXRuntime(ekInitialize_NoFonts));
    QVERIFY(isInitialized_PYXRuntime());
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
    QCOMPARE(messages(), (QStringList{"Debug|initialize_PYXRuntime: first call => initializing",
                                      "Debug|initialize_PYXRuntime called multiple times (2)",
                                      "Debug|uninitialize_PYXRuntime: references still open (1)",
                                      "Debug|uninitialize_PYXRuntime: last reference gone => cleaning up",
                                      "Debug|uninitialize_PYXRuntime: references still open (-1)",
                                      "Debug|initialize_PYXRuntime called multiple times (0)"}));
    QVERIFY(m_tracer.calls.first().contains("|source\\PYXRuntime|"));
}

void tst_PYXRuntime::reportsMissingApplicationName()
{
    // Qt names an application object after its file: only a program without one has no name.
    const ChildResult result =
        runChild(QCoreApplication::applicationFilePath(), {"--probe", "no application"});
    QCOMPARE(result.exitCode, 0);
    const QString text =
        "QCoreApplication::applicationName MUST be set before PYXRuntime initialization! => reorder code";
    QVERIFY2(result.errors.contains("PYXRuntime(0) : TRACE_WARN : " + text), qPrintable(result.errors));
    QVERIFY(result.errors.contains(
        QRegularExpression(R"(source\\PYXRuntime\(\d+\) : TRACE_WARN : )" + text.left(30))));
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
    QSettings::setDefaultFormat(QSettings::NativeFormat);
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
        QVERIFY(QFontMetrics(QFont(family)).inFont(QChar(0x03A9))); // Greek
        QVERIFY(QFontMetrics(QFont(family)).inFont(QChar(0x0416))); // Cyrillic
    }
    uninitialize_PYXRuntime();
    QVERIFY(!QFontDatabase().families().contains("KTCorpid"));
}

void tst_PYXRuntime::substitutions_data()
{
    QTest::addColumn<int>("flags");
    QTest::addColumn<QString>("substitute");
    QTest::newRow("default") << int(ekInitialize_Default) << "KTCorpid";
    QTest::newRow("condensed") << int(ekInitialize_CondensedFont) << "KTCorpid Cd";
    QTest::newRow("none asked for") << int(ekInitialize_NoFontSubstitution) << QString();
    QTest::newRow("no fonts") << int(ekInitialize_NoFonts) << QString();
}

void tst_PYXRuntime::substitutions()
{
    QFETCH(int, flags);
    QFETCH(QString, substitute);
    QFont::insertSubstitution("Helvetica", "Somebody's");
    initialize_PYXRuntime(ePYXInitializeFlags(flags));
    QCOMPARE(QFontDatabase().families().contains("KTCorpid"), flags != ekInitialize_NoFonts);
    const bool bSubstituted = QFont::substitutes("Helvetica").contains(substitute, Qt::CaseInsensitive);
    const QString first = QFont::substitute("MS Shell Dlg 2");
    uninitialize_PYXRuntime();
    const QStringList left = QFont::substitutes("Helvetica");
    QFont::removeSubstitutions("Helvetica");
    QCOMPARE(bSubstituted, !substitute.isEmpty());
    QCOMPARE(first.toLower(), (substitute.isEmpty() ? "MS Shell Dlg 2" : substitute).toLower());
    QCOMPARE(left, QStringList{"somebody's"});
    QVERIFY(QFont::substitutes("MS Shell Dlg 2").isEmpty());
}

void tst_PYXRuntime::applicationFontFollowsSubstitution()
{
    const auto familyAfterStart = [](const QString &family, ePYXInitializeFlags flags) {
        QApplication::setFont(QFont(family, 11));
        initialize_PYXRuntime(flags);
        const QFont font = QApplication::font();
        uninitialize_PYXRuntime();
        return font.pointSize() == 11 ? font.family() : QString("size lost");
    };
    QCOMPARE(familyAfterStart("MS Shell Dlg 2", ekInitialize_Default), QString("KTCorpid"));
    QCOMPARE(QApplication::font().family(), QString("MS Shell Dlg 2"));
    QCOMPARE(familyAfterStart("MS Shell Dlg 2", ekInitialize_CondensedFont), QString("KTCorpid Cd"));
    QCOMPARE(familyAfterStart("MS Shell Dlg 2", ekInitialize_KeepApplicationFont), QString("MS Shell Dlg 2"));
    QCOMPARE(familyAfterStart("Unsubstituted", ekInitialize_Default), QString("Unsubstituted"));
    // A substitution of the application's own outlives ours.
    QFont::insertSubstitution("Helvetica", "KTCorpid");
    QCOMPARE(familyAfterStart("Helvetica", ekInitialize_Default), QString("KTCorpid"));
    QCOMPARE(QFont::substitutes("Helvetica"), QStringList{"ktcorpid"});
    QFont::removeSubstitutions("Helvetica");
}

void tst_PYXRuntime::fontsOnDemand()
{
    const auto hasFonts = [] { return QFontDatabase().families().contains("KTCorpid"); };
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

void tst_PYXRuntime::startsWithoutGui()
{
    const ChildResult result = runChild(QCoreApplication::applicationFilePath(), {"--probe", "no GUI"});
    QVERIFY(result.bFinished);
    QCOMPARE(result.exitCode, 0);
}

void tst_PYXRuntime::clocks()
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
    QElapsedTimer elapsed;
    elapsed.start();
    msleep(20);
    const qint64 passed = elapsed.elapsed();
    const qint64 counted = qint64(perfCounterInMS()) - qint64(microseconds / 1000);
    QVERIFY2(counted >= 19 && counted <= passed + 20, qPrintable(QString::number(counted)));
    QVERIFY(uptimeInMS() - uptime >= 15);
    QVERIFY(qAbs(qint64(currentUTCInMS()) - QDateTime::currentMSecsSinceEpoch()) < 1000);
    QCOMPARE(currentUTCInMyS() / 10'000'000'000, currentUTCInMS() / 10'000'000);
}

void tst_PYXRuntime::processesEventsWhileWaiting()
{
    QElapsedTimer elapsed;
    elapsed.start();
    int ticks = 0;
    QTimer timer;
    connect(&timer, &QTimer::timeout, this, [&] { ++ticks; });
    timer.start(1);
    active_msleep(0);
    active_sleep(-5);
    QCOMPARE(ticks, 0);
    active_msleep(30);
    QVERIFY(ticks > 0);
    QVERIFY(elapsed.elapsed() >= 30);
}

void tst_PYXRuntime::loadsSiblingLibraries()
{
    const QScopedPointer<QLibrary> core(getReferenceOnQtDLL("Core"));
    QVERIFY(core && core->isLoaded());
    QVERIFY(!getReferenceOnQtDLL("NoSuchModule"));
    QVERIFY(!getReferenceOnProjectDLL("NoSuchLibrary"));
    const QString directory =
        QCoreApplication::applicationDirPath() + (QSysInfo::kernelType() == "winnt" ? "" : "/../lib");
    const QScopedPointer<QLibrary> self(getReferenceOnProjectDLL(directory + "/PYXRuntime"));
    QVERIFY(self && self->isLoaded());
    // The infix variable is a last resort: here it makes "Qt5" + "" + "Core" out of a module without name.
    qputenv("BUILD_QT_INFIX", "Core");
    const QScopedPointer<QLibrary> infixed(getReferenceOnQtDLL(""));
    qunsetenv("BUILD_QT_INFIX");
    QVERIFY(infixed && infixed->isLoaded());
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
