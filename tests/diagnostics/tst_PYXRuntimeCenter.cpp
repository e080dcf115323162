// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "ChildProcess.h"
#include "PYXRuntimeCenter.h"
#include "PYXTraceWrapper.h"
#include "RecordingTracer.h"

#include <QtCore/QFile>
#include <QtCore/QStandardPaths>
#include <QtTest/QtTest>

#include <thread>
#include <vector>

using PYXRuntime::PYXRuntimeCenter;
using PYXRuntime::PYXTraceWrapper;

class tst_PYXRuntimeCenter : public QObject
{
    Q_OBJECT
private slots:
    void init() { PYXRuntimeCenter::destroyInstance(); }
    void cleanupTestCase() { PYXRuntimeCenter::destroyInstance(); }
    void tokensAreHashesOfNames();
    void registeringAgainKeepsSwitches();
    void switchesOfAllScopesReachLaterOnes();
    void unknownTokensBehaveAsDefaultScope();
    void scopesInOneGateSlotSwitchApart();
    void messagesGoToTheTrace();
    void disabledTextsAreNotMade();
    void configFile_data();
    void configFile();
    void configFilePlaces();
    void switchesWhileOthersWrite();

private:
    QString probeDirectory() const { return QCoreApplication::applicationDirPath() + "/scopeprobe"; }
    ChildResult runProbe(const QStringList &arguments) const
    {
        return runChild(probeDirectory() + "/scopeprobe", arguments);
    }
};

void tst_PYXRuntimeCenter::tokensAreHashesOfNames()
{
    const uint token = PYXRuntimeCenter::registerRuntimeScope("Scope", "purpose");
    QCOMPARE(token, qHash(QString("Scope"), 0));
    QCOMPARE(PYXRuntimeCenter::runtimeScopeToken("Scope"), token);
    QCOMPARE(PYXRuntimeCenter::runtimeScopeName(token), QString("Scope"));
    QCOMPARE(PYXRuntimeCenter::runtimeScopeToken("other"), 0U);
    QCOMPARE(PYXRuntimeCenter::runtimeScopeName(token + 1), QString());
}

void tst_PYXRuntimeCenter::registeringAgainKeepsSwitches()
{
    const uint token = PYXRuntimeCenter::registerRuntimeScope("Scope", "first");
    QVERIFY(!PYXRuntimeCenter::isEnabled_pyxDebug(token));
    QVERIFY(PYXRuntimeCenter::isEnabled_pyxWarning(token));
    PYXRuntimeCenter::setEnabled_pyxDebug("Scope", true);
    PYXRuntimeCenter::setEnabled_pyxWarning(token, false);
    PYXRuntimeCenter::registerRuntimeScope("Scope", "second");
    QVERIFY(PYXRuntimeCenter::isEnabled_pyxDebug(token));
    QVERIFY(!PYXRuntimeCenter::isEnabled_pyxWarning("Scope"));
}

void tst_PYXRuntimeCenter::switchesOfAllScopesReachLaterOnes()
{
    const uint early = PYXRuntimeCenter::registerRuntimeScope("Early", "");
    PYXRuntimeCenter::setEnabled_pyxDebug(true);
    PYXRuntimeCenter::setEnabled_pyxWarning(false);
    const uint late = PYXRuntimeCenter::registerRuntimeScope("Late", "");
    for (const uint token : {early, late}) {
        QVERIFY(PYXRuntimeCenter::isEnabled_pyxDebug(token));
        QVERIFY(!PYXRuntimeCenter::isEnabled_pyxWarning(token));
    }
}

void tst_PYXRuntimeCenter::unknownTokensBehaveAsDefaultScope()
{
    RecordingTracer tracer;
    PYXTraceWrapper::addTracer(&tracer);
    PYXRuntimeCenter::pyxDebug(4711, "debug");
    PYXRuntimeCenter::pyxWarning(4711, "warning");
    PYXTraceWrapper::removeTracer(&tracer);
    QCOMPARE(tracer.calls, (QStringList{"Warn|warning||0"}));
    // An unknown name is the scope without a token.
    PYXRuntimeCenter::setEnabled_pyxDebug("nobody", true);
    QVERIFY(PYXRuntimeCenter::isEnabled_pyxDebug(0));
    PYXRuntimeCenter::setEnabled_pyxWarning("nobody", false);
    QVERIFY(!PYXRuntimeCenter::isEnabled_pyxWarning(0));
}

void tst_PYXRuntimeCenter::scopesInOneGateSlotSwitchApart()
{
    const uint first = 5;
    const uint second = first + 1024;
    PYXRuntimeCenter::setEnabled_pyxDebug(first, true);
    PYXRuntimeCenter::setEnabled_pyxDebug(first, true);
    PYXRuntimeCenter::setEnabled_pyxDebug(second, true);
    PYXRuntimeCenter::setEnabled_pyxDebug(first, false);
    QVERIFY(!PYXRuntimeCenter::isEnabled_pyxDebug(first));
    QVERIFY(PYXRuntimeCenter::isEnabled_pyxDebug(second));
    PYXRuntimeCenter::destroyInstance();
    QVERIFY(!PYXRuntimeCenter::isEnabled_pyxDebug(second));
    PYXRuntimeCenter::setEnabled_pyxDebug(second, true);
    QVERIFY(PYXRuntimeCenter::isEnabled_pyxDebug(second));
}

void tst_PYXRuntimeCenter::messagesGoToTheTrace()
{
    RecordingTracer tracer;
    PYXTraceWrapper::addTracer(&tracer);
    const uint token = PYXRuntimeCenter::registerRuntimeScope("Scope", "");
    PYXRuntimeCenter::pyxWarning(token, "w1");
    PYXRuntimeCenter::pyxDebug(token, "off");
    PYXRuntimeCenter::setEnabled_pyxDebug(token, true);
    PYXRuntimeCenter::pyxDebug(token, "not copied");
    PYXRuntimeCenter::setEnabled_pyxDebugToTrace(true);
    PYXRuntimeCenter::pyxDebug(token, "d1");
    PYXRuntimeCenter::setEnabled_pyxWarningToTrace(false);
    PYXRuntimeCenter::pyxWarning(token, "not copied");
    PYXTraceWrapper::removeTracer(&tracer);
    QCOMPARE(tracer.calls, (QStringList{"Warn|w1|Scope|0", "Debug|d1|Scope|0"}));
}

void tst_PYXRuntimeCenter::disabledTextsAreNotMade()
{
    int made = 0;
    const auto text = [&] { return QString::number(++made); };
    const uint token = PYXRuntimeCenter::registerRuntimeScope("Scope", "");
    PYXRuntimeCenter::setEnabled_pyxWarning(token, false);
    PYX_DEBUG(token, text());
    PYX_WARNING(token, text());
    QCOMPARE(made, 0);
    PYXRuntimeCenter::setEnabled_pyxDebug(token, true);
    PYX_DEBUG(token, text());
    QCOMPARE(made, 1);
}

void tst_PYXRuntimeCenter::configFile_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QString>("state");
    QTest::addColumn<QString>("messages");
    const auto row = [](const char *name, const QByteArray &file, const char *state, const char *messages) {
        QTest::newRow(name) << file << QString(state) << QString(messages);
    };
    row("comments and blank lines", "# Late:+d\n\n   \n\t# x\n", "toTrace d0 w1\nLate known d0 w1\n", "");
    row("all scopes, also later ones", "*:+d:-w:+td:-tw", "toTrace d1 w0\nLate known d1 w0\n",
        "  found runtime scope '*'\n +d\n -w\n +td\n -tw\n");
    row("one scope before its module", " Late : +D :-w \n", "toTrace d0 w1\nLate known d1 w0\n",
        "  found runtime scope 'Late'\n -> yet unknown, creating\n +d\n -w\n");
    row("options a scope does not know", "Late:+td:+x::+d", "toTrace d0 w1\nLate known d1 w1\n",
        "  found runtime scope 'Late'\n -> yet unknown, creating\n unknown option '+td'\n"
        " unknown option '+x'\n unknown option ''\n +d\n");
    row("names keep their case", "LATE:+d", "toTrace d0 w1\nLate known d0 w1\n",
        "  found runtime scope 'LATE'\n -> yet unknown, creating\n +d\n");
    row("no name", ":+d\nLate:+d", "toTrace d0 w1\nLate known d1 w1\n",
        "  found runtime scope ''\n -> yet unknown, creating\n -> invalid token, skipping\n"
        "  found runtime scope 'Late'\n -> yet unknown, creating\n +d\n");
    row("the last line wins", "*:+d\nLate:-d\r\n", "toTrace d0 w1\nLate known d0 w1\n",
        "  found runtime scope '*'\n +d\n  found runtime scope 'Late'\n -> yet unknown, creating\n -d\n");
    row("byte-order mark", "\xEF\xBB\xBFLate:+d\n", "toTrace d0 w1\nLate known d1 w1\n",
        "  found runtime scope 'Late'\n -> yet unknown, creating\n +d\n");
    row("garbage", QByteArray("\xFF\xFE\0:\x80+d\nLate:+d", 15), "toTrace d0 w1\nLate known d1 w1\n",
        nullptr);
}

void tst_PYXRuntimeCenter::configFile()
{
    QFETCH(QByteArray, file);
    QFETCH(QString, messages);
    const QString path = probeDirectory() + "/config/pyxRuntimeScopes.cfg";
    QVERIFY(QDir().mkpath(probeDirectory() + "/config"));
    QFile config(path);
    QVERIFY(config.open(QIODevice::WriteOnly));
    config.write(file);
    config.close();
    const ChildResult result = runProbe({"direct", "Late"});
    QVERIFY(config.remove());
    QVERIFY(result.bFinished);
    QTEST(result.output, "state");
    // On Windows these lines go to the debugger.
    if (!messages.isNull() && QSysInfo::kernelType() != "winnt")
        QCOMPARE(result.errors, "PYXRuntime::PYXRuntimeCenter::_readConfigFile('" + path + "')\n" + messages);
}

void tst_PYXRuntimeCenter::configFilePlaces()
{
    const QString beside = probeDirectory() + "/pyxRuntimeScopes.cfg";
    QCOMPARE(runProbe({"loop", "Foo"}).output, QString("toTrace d0 w1\nFoo unknown d0 w1\n"));
    QFile config(beside);
    QVERIFY(config.open(QIODevice::WriteOnly));
    config.write("Foo:+d\n");
    config.close();
    QFile preferred(probeDirectory() + "/config/pyxRuntimeScopes.cfg");
    QVERIFY(QDir().mkpath(probeDirectory() + "/config"));
    // What is no file is passed over: nobody writes to this pipe.
    if (!QStandardPaths::findExecutable("mkfifo").isEmpty())
        QCOMPARE(QProcess::execute("mkfifo", {preferred.fileName()}), 0);
    const QString fromBeside = runProbe({"loop", "Foo"}).output;
    preferred.remove();
    QVERIFY(preferred.open(QIODevice::WriteOnly));
    preferred.close();
    const QString fromPreferred = runProbe({"loop", "Foo"}).output;
    QVERIFY(preferred.open(QIODevice::WriteOnly) && preferred.write("*:+d") > 0);
    preferred.close();
    const QString ofStarScope = runProbe({"star", "*", "Late"}).output;
    QVERIFY(config.remove() && preferred.remove());
    QCOMPARE(fromBeside, QString("toTrace d0 w1\nFoo known d1 w1\n"));
    QCOMPARE(fromPreferred, QString("toTrace d0 w1\nFoo unknown d0 w1\n"));
    // A scope that is really called "*" is meant itself.
    QCOMPARE(ofStarScope, QString("toTrace d0 w1\n* known d1 w1\nLate known d0 w1\n"));
}

void tst_PYXRuntimeCenter::switchesWhileOthersWrite()
{
    const uint written = PYXRuntimeCenter::registerRuntimeScope("Written", "");
    const uint switched = PYXRuntimeCenter::registerRuntimeScope("Switched", "");
    PYXRuntimeCenter::setEnabled_pyxWarning(written, false);
    std::vector<std::thread> threads;
    threads.reserve(4);
    for (int thread = 0; thread < 4; ++thread) {
        threads.emplace_back([=] {
            for (int call = 0; call < 5000; ++call) {
                PYXRuntimeCenter::pyxDebug(written, "never");
                PYXRuntimeCenter::pyxWarning(written, "never");
                PYXRuntimeCenter::isEnabled_pyxDebug(switched);
            }
        });
    }
    for (int turn = 0; turn < 2000; ++turn) {
        PYXRuntimeCenter::setEnabled_pyxDebug(switched, turn % 2 == 0);
        PYXRuntimeCenter::setEnabled_pyxWarningToTrace(turn % 2 == 0);
    }
    for (std::thread &thread : threads)
        thread.join();
    QVERIFY(!PYXRuntimeCenter::isEnabled_pyxDebug(switched));
}

QTEST_GUILESS_MAIN(tst_PYXRuntimeCenter)
#include "tst_PYXRuntimeCenter.moc"
