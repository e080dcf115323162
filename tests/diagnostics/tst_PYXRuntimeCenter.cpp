// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "ChildProcess.h"
#include "FileContents.h"
#include "PYXRuntimeCenter.h"
#include "RecordingTracer.h"

#include <QtCore/QStandardPaths>
#include <QtTest/QtTest>

#include <array>
#include <thread>

using Center = PYXRuntime::PYXRuntimeCenter;

namespace {

/** Which switches of a scope are on. */
QString switchesOf(uint token)
{
    return QString(Center::isEnabled_pyxDebug(token) ? "d" : "") +
           (Center::isEnabled_pyxWarning(token) ? "w" : "");
}

} // namespace

class tst_PYXRuntimeCenter : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { QVERIFY(QDir().mkpath(m_directory + "/config")); }
    void cleanup();
    void scopesAreKnownByNameAndToken();
    void scopesInOneGateSlotSwitchApart();
    void messagesGoToTheTrace();
    void disabledTextsAreNotMade();
    void configFile();
    void configFilePlaces();
    void switchesWhileOthersWrite();

private:
    ChildResult runProbe(const QStringList &arguments) const
    {
        return runChild(m_directory + "/scopeprobe", arguments);
    }

    const QString m_directory = QCoreApplication::applicationDirPath() + "/scopeprobe";
    const QString m_preferredFile = m_directory + "/config/pyxRuntimeScopes.cfg";
    const QString m_otherFile = m_directory + "/pyxRuntimeScopes.cfg";
};

void tst_PYXRuntimeCenter::cleanup()
{
    Center::destroyInstance();
    QFile::remove(m_preferredFile);
    QFile::remove(m_otherFile);
}

void tst_PYXRuntimeCenter::scopesAreKnownByNameAndToken()
{
    const uint token = Center::registerRuntimeScope("Scope", "first");
    QCOMPARE(token, qHash(QString("Scope"), 0));
    QCOMPARE(Center::runtimeScopeToken("Scope"), token);
    QCOMPARE(Center::runtimeScopeName(token), QString("Scope"));
    QCOMPARE(Center::runtimeScopeToken("other"), 0U);
    QCOMPARE(switchesOf(token), QString("w"));
    Center::setEnabled_pyxDebug("Scope", true);
    Center::setEnabled_pyxWarning("Scope", false);
    QVERIFY(Center::isEnabled_pyxDebug("Scope") && !Center::isEnabled_pyxWarning("Scope"));
    Center::registerRuntimeScope("Scope", "again, which keeps its switches");
    QCOMPARE(switchesOf(token), QString("d"));
    // The switches of all scopes are those of later ones, too.
    Center::setEnabled_pyxDebug(false);
    Center::setEnabled_pyxWarning(true);
    QCOMPARE(switchesOf(token), QString("w"));
    Center::setEnabled_pyxDebug(true);
    Center::setEnabled_pyxWarning(false);
    QCOMPARE(switchesOf(Center::registerRuntimeScope("Late", "")), QString("d"));
    // A plug-in takes its literals with it when it is unloaded.
    QChar literal[] = {'P', 'l', 'u', 'g'};
    const uint plugged = Center::registerRuntimeScope(QString::fromRawData(literal, 4), "");
    std::fill(std::begin(literal), std::end(literal), QChar('?'));
    QCOMPARE(Center::runtimeScopeName(plugged), QString("Plug"));
    QCOMPARE(Center::runtimeScopeToken("Plug"), plugged);
}

void tst_PYXRuntimeCenter::scopesInOneGateSlotSwitchApart()
{
    const uint first = 5;
    const uint second = first + 1024;
    Center::setEnabled_pyxDebug(first, true);
    Center::setEnabled_pyxDebug(first, true);
    Center::setEnabled_pyxDebug(second, true);
    Center::setEnabled_pyxDebug(first, false);
    QVERIFY(!Center::isEnabled_pyxDebug(first));
    QVERIFY(Center::isEnabled_pyxDebug(second));
    Center::destroyInstance();
    QVERIFY(!Center::isEnabled_pyxDebug(second));
    Center::setEnabled_pyxDebug(second, true);
    QVERIFY(Center::isEnabled_pyxDebug(second));
}

void tst_PYXRuntimeCenter::messagesGoToTheTrace()
{
    const QStringList traces = tracesOf([] {
        const uint token = Center::registerRuntimeScope("Scope", "");
        Center::pyxWarning(token, "w1");
        Center::pyxDebug(token, "off");
        Center::setEnabled_pyxDebug(token, true);
        Center::pyxDebug(token, "not copied");
        Center::setEnabled_pyxDebugToTrace(true);
        Center::pyxDebug(token, "d1");
        // An unknown token or name is the scope without a token.
        Center::pyxDebug(4711, "off");
        Center::pyxWarning(4711, "w2");
        Center::setEnabled_pyxDebug("nobody", true);
        Center::pyxDebug(0, "d2");
        Center::setEnabled_pyxWarning("nobody", false);
        Center::pyxWarning(0, "off");
        Center::setEnabled_pyxWarningToTrace(false);
        Center::pyxWarning(token, "not copied");
    });
    QCOMPARE(traces, (QStringList{"Warn|w1|Scope|0", "Debug|d1|Scope|0", "Warn|w2||0", "Debug|d2||0"}));
}

void tst_PYXRuntimeCenter::disabledTextsAreNotMade()
{
    int made = 0;
    const auto text = [&] { return QString::number(++made); };
    const uint token = Center::registerRuntimeScope("Scope", "");
    Center::setEnabled_pyxWarning(token, false);
    PYX_DEBUG(token, text());
    PYX_WARNING(token, text());
    QCOMPARE(made, 0);
    Center::setEnabled_pyxDebug(token, true);
    PYX_DEBUG(token, text());
    QCOMPARE(made, 1);
}

void tst_PYXRuntimeCenter::configFile()
{
    const auto row = [this](const QByteArray &file, const QString &state, const QString &messages) {
        put(m_preferredFile, file);
        const ChildResult result = runProbe({"direct", "Late"});
        QCOMPARE(result.exitCode, 0);
        QCOMPARE(result.output, state);
        // On Windows these lines go to the debugger.
        if (!messages.isNull() && QSysInfo::kernelType() != "winnt")
            QCOMPARE(result.errors,
                     "PYXRuntime::PYXRuntimeCenter::_readConfigFile('" + m_preferredFile + "')\n" + messages);
    };
    const QString all = "  found runtime scope '*'\n";
    const QString late = "  found runtime scope 'Late'\n -> yet unknown, creating\n";
    row("# Late:+d\n\n   \n\t# x\n", "td0 tw1 Late d0 w1", "");
    row("*:+d:-w:+td:-tw", "td1 tw0 Late d1 w0", all + " +d\n -w\n +td\n -tw\n");
    row(" Late : +D :-w \n", "td0 tw1 Late d1 w0", late + " +d\n -w\n");
    row("Late:+td:+x::+d", "td0 tw1 Late d1 w1",
        late + " unknown option '+td'\n unknown option '+x'\n unknown option ''\n +d\n");
    row("LATE:+d", "td0 tw1 Late d0 w1", "  found runtime scope 'LATE'\n -> yet unknown, creating\n +d\n");
    row(":+d\nLate:+d", "td0 tw1 Late d1 w1",
        "  found runtime scope ''\n -> yet unknown, creating\n -> invalid token, skipping\n" + late +
            " +d\n");
    row("*:+d\nLate:-d\r\n", "td0 tw1 Late d0 w1", all + " +d\n" + late + " -d\n");
    row("\xEF\xBB\xBFLate:+d\n", "td0 tw1 Late d1 w1", late + " +d\n");
    row(QByteArray("\xFF\xFE\0:\x80+d\nLate:+d", 15), "td0 tw1 Late d1 w1", QString());
}

void tst_PYXRuntimeCenter::configFilePlaces()
{
    // What is no file is passed over: nobody writes to this pipe.
    if (!QStandardPaths::findExecutable("mkfifo").isEmpty())
        QCOMPARE(QProcess::execute("mkfifo", {m_preferredFile}), 0);
    put(m_otherFile, "Foo:+d");
    QCOMPARE(runProbe({"loop", "Foo"}).output, QString("td0 tw1 Foo d1 w1"));
    QFile::remove(m_preferredFile);
    put(m_preferredFile, "");
    QCOMPARE(runProbe({"loop", "Foo"}).output, QString("td0 tw1 unknown Foo d0 w1"));
    // A scope that is really called "*" is meant itself.
    put(m_preferredFile, "*:+d");
    QCOMPARE(runProbe({"star", "*", "Late"}).output, QString("td0 tw1 * d1 w1 Late d0 w1"));
}

void tst_PYXRuntimeCenter::switchesWhileOthersWrite()
{
    const uint written = Center::registerRuntimeScope("Written", "");
    const uint switched = Center::registerRuntimeScope("Switched", "");
    Center::setEnabled_pyxWarning(written, false);
    std::array<std::thread, 4> threads;
    for (std::thread &thread : threads) {
        thread = std::thread([=] {
            for (int call = 0; call < 5000; ++call) {
                Center::pyxDebug(written, "never");
                Center::pyxWarning(written, "never");
                Center::isEnabled_pyxDebug(switched);
            }
        });
    }
    for (int turn = 0; turn < 2000; ++turn) {
        Center::setEnabled_pyxDebug(switched, turn % 2 == 0);
        Center::setEnabled_pyxWarningToTrace(turn % 2 == 0);
    }
    for (std::thread &thread : threads)
        thread.join();
    QVERIFY(!Center::isEnabled_pyxDebug(switched));
}

QTEST_GUILESS_MAIN(tst_PYXRuntimeCenter)
#include "tst_PYXRuntimeCenter.moc"
