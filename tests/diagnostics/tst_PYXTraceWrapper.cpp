// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "ChildProcess.h"
#include "PYXMessageOutput.h"
#include "PYXTraceWrapper.h"
#include "RecordingTracer.h"

#include <QtCore/QStandardPaths>
#include <QtTest/QtTest>

#include <array>
#include <atomic>
#include <functional>
#include <thread>

using PYXRuntime::PYXTracerBase;
using PYXRuntime::PYXTraceWrapper;

namespace {

struct struLevel
{
    const char *name;
    const char *plainName; ///< the level that a plain tracer sees
    void (*text)(const QString &, const char *, ushort);
    void (*list)(const QStringList &, const char *, ushort);
    void (*twoTexts)(const QString &, const QString &, const char *, ushort);
    bool isQualified() const { return qstrcmp(name, plainName) != 0; }
};

#define LEVEL(name, plainName, operation)                                                                    \
    {                                                                                                        \
#name, #plainName, &PYXTraceWrapper::operation, &PYXTraceWrapper::operation,                         \
            &PYXTraceWrapper::staticTraceX_##name                                                            \
    }
const struLevel Levels[] = {
    LEVEL(Debug, Debug, staticTraceDebug),
    LEVEL(Info, Info, staticTraceInfo),
    LEVEL(Warn, Warn, staticTraceWarn),
    LEVEL(Error, Error, staticTraceError),
    LEVEL(Debug_Info, Info, staticTrace_Debug_Info),
    LEVEL(Debug_Warn, Warn, staticTrace_Debug_Warn),
    LEVEL(Debug_Error, Error, staticTrace_Debug_Error),
};

void callEveryForm(const struLevel &level)
{
    level.text("te%1xt", "source\\File", 42);
    level.text("", "source\\File", 43);
    level.list({"a", "b"}, "source\\File", 44);
    level.list({}, "source\\File", 45);
    level.twoTexts("t", "l", "source\\File", 46);
    level.twoTexts("t", "", "source\\File", 65535);
}

/** What a child process does: the debug-out of this process is the test's own output. */
int runProbe(int, char **argv)
{
    const QString what = argv[2];
    RecordingTracer tracer;
    if (what == "every level") {
        for (const struLevel &level : Levels)
            callEveryForm(level);
    } else if (what == "tracer plugged in") {
        PYXTraceWrapper::addTracer(&tracer);
        PYXTraceWrapper::staticTraceWarn(QString("unseen"), "f", 1);
        PYXTraceWrapper::enableDebugOutTrace(true);
        PYXTraceWrapper::staticTraceWarn(QString("seen"), "f", 2);
    } else if (what == "printf") {
        PYXTraceWrapper::setUsePrintfForDebugOutTrace(true);
        PYXTraceWrapper::staticTraceInfo(QString("50%% %d %s %n end"), "f", 1);
    } else if (what == "colour") {
        PYXTraceWrapper::setColorConsoleOutput(true);
        PYXTraceWrapper::staticTraceWarn(QString("yellow"), "f", 1);
    } else if (what == "output functions") {
        pyx_message_stderr_output(QString::fromUtf8("\xC3\xA4"));
        pyx_message_output(L"wide");
        pyx_message_output(static_cast<const char *>(nullptr));
    }
    return 0;
}

/** Does something for every information. */
class CallingTracer : public RecordingTracer
{
public:
    using Action = std::function<void(CallingTracer *)>;
    explicit CallingTracer(Action action)
        : m_action(std::move(action))
    {
        PYXTraceWrapper::addTracer(this);
    }
    using RecordingTracer::traceInfo;
    void traceInfo(const QString &, const char *, ushort) override { m_action(this); }

private:
    Action m_action;
};

class WholeTextTracer : public PYXTracerBase
{
public:
    QStringList calls;

protected:
    void trace(const struTrace &trace) override
    {
        calls += QString("%1 %2: %3").arg(trace.level).arg(trace.severity()).arg(trace.wholeText());
    }
};

} // namespace

class tst_PYXTraceWrapper : public QObject
{
    Q_OBJECT
private slots:
    void writesDebugOut();
    void coloursOnATerminal();
    void tracersGetEveryForm();
    void tracerList();
    void tracersMayChangeTheList();
    void tracersWithOneOperationGetEveryForm();
    void singletonIsATracer();
    void tracesFromManyThreads();
};

void tst_PYXTraceWrapper::writesDebugOut()
{
    QString everyLevel;
    for (const struLevel &level : Levels) {
        everyLevel += QString("source\\File(42) : TRACE_@ : te%1xt\n"
                              "source\\File(43) : TRACE_@ : \n"
                              "source\\File(44) : TRACE_@ : a | b\n"
                              "source\\File(45) : TRACE_@ : \n"
                              "source\\File(46) : LOG_@ : l\n"
                              "source\\File(65535) : TRACE_@ : t\n")
                          .replace('@', QString(level.name).toUpper());
    }
    const std::tuple<const char *, QString, QString> probes[] = {
        // with output and errors
        {"every level", "", everyLevel},
        {"tracer plugged in", "", "f(2) : TRACE_WARN : seen\n"},
        {"printf", "f(1) : TRACE_INFO : 50% 0   end\n", ""},
        {"colour", "", "f(1) : TRACE_WARN : yellow\n"},
        {"output functions", "", QString::fromUtf8("\xC3\xA4\nwide\n\n")}};
    for (const auto &[probe, output, errors] : probes) {
        const ChildResult result = runOwnProbe(probe);
        QCOMPARE(result.exitCode, 0);
        QCOMPARE(result.output, output);
        // On Windows the console's code page decides what arrives.
        if (QSysInfo::kernelType() != "winnt" || qstrcmp(probe, "output functions") != 0)
            QCOMPARE(result.errors, errors);
    }
}

void tst_PYXTraceWrapper::coloursOnATerminal()
{
    const QString script = QStandardPaths::findExecutable("script");
    if (script.isEmpty())
        QSKIP("needs the program 'script' to have a terminal");
    const QString command = '\'' + QCoreApplication::applicationFilePath() + "' --probe colour";
    const ChildResult result = runChild(script, {"-qec", command, "/dev/null"});
    QCOMPARE(result.output, QString("\033[93mf(1) : TRACE_WARN : yellow\n\033[0m"));
}

void tst_PYXTraceWrapper::tracersGetEveryForm()
{
    const auto expected = [](const QString &name, const QString &prefix) {
        return QStringList{name + '|' + prefix + "te%1xt|source\\File|42",
                           name + "||source\\File|43",
                           name + "|a+b|source\\File|44",
                           name + "||source\\File|45",
                           "X_" + name + '|' + prefix + "t/" + prefix + "l|source\\File|46",
                           "X_" + name + '|' + prefix + "t/|source\\File|65535"};
    };
    for (const struLevel &level : Levels) {
        RecordingTracer2 qualified;
        PYXTraceWrapper::addTracer(&qualified);
        const QStringList plainCalls = tracesOf([&] { callEveryForm(level); });
        QCOMPARE(qualified.calls, expected(level.name, ""));
        QStringList forPlain = expected(level.plainName, level.isQualified() ? "Debug: " : "");
        if (level.isQualified())
            forPlain.removeAt(1); // an empty text is not passed on
        QCOMPARE(plainCalls, forPlain);
    }
}

void tst_PYXTraceWrapper::tracerList()
{
    RecordingTracer first;
    RecordingTracer second;
    for (Interfaces::IPYXTracer *tracer : std::initializer_list<Interfaces::IPYXTracer *>{
             &first, &second, &first, nullptr, PYXTraceWrapper::tracer()}) // the last would call itself
        PYXTraceWrapper::addTracer(tracer);
    QCOMPARE(PYXTraceWrapper::tracers(), (QList<Interfaces::IPYXTracer *>{&first, &second}));
    PYXTraceWrapper::removeTracer(nullptr);
    PYXTraceWrapper::removeTracer(&first);
    QVERIFY(!PYXTraceWrapper::containsTracer(&first));
    QVERIFY(PYXTraceWrapper::containsTracer(&second));
}

void tst_PYXTraceWrapper::tracersMayChangeTheList()
{
    std::array<RecordingTracer, 50> added;
    int calls = 0;
    const auto change = [&](CallingTracer *self) {
        ++calls;
        PYXTraceWrapper::removeTracer(self);
        for (RecordingTracer &tracer : added)
            PYXTraceWrapper::addTracer(&tracer);
    };
    const CallingTracer first(change);
    const CallingTracer second(change);
    PYXTraceWrapper::staticTraceInfo(QString("x"), "f", 1);
    QCOMPARE(calls, 2);
    QCOMPARE(PYXTraceWrapper::tracers().size(), int(added.size()));
    for (const RecordingTracer &tracer : added)
        QVERIFY(tracer.calls.isEmpty());
}

void tst_PYXTraceWrapper::tracersWithOneOperationGetEveryForm()
{
    for (int level = 0; level < int(std::size(Levels)); ++level) {
        const int severity = level < 4 ? level : level - 3;
        QStringList expected;
        for (const char *text : {"te%1xt", "", "a | b", "", "t: l", "t"})
            expected += QString("%1 %2: ").arg(level).arg(severity) + text;
        WholeTextTracer tracer;
        PYXTraceWrapper::addTracer(&tracer);
        callEveryForm(Levels[level]);
        PYXTraceWrapper::removeTracer(&tracer);
        QCOMPARE(tracer.calls, expected);
    }
}

void tst_PYXTraceWrapper::singletonIsATracer()
{
    QObject *const object = PYXTraceWrapper::getInstance();
    QVERIFY(qobject_cast<Interfaces::IPYXTracer *>(object) == PYXTraceWrapper::tracer());
    auto *const tracer2 = qobject_cast<Interfaces::IPYXTracer2 *>(object);
    QVERIFY(tracer2 != nullptr);
    RecordingTracer2 tracer;
    PYXTraceWrapper::addTracer(&tracer);
    PYXTraceWrapper::tracer()->traceX_Warn("t", "l", "f", 7);
    tracer2->traceDebug_Error(QStringList{"a"}, "f", 8);
    QCOMPARE(tracer.calls, (QStringList{"X_Warn|t/l|f|7", "Debug_Error|a|f|8"}));

    PYXTraceWrapper::destroyInstance();
    QVERIFY(!PYXTraceWrapper::hasInstance());
    QVERIFY(PYXTraceWrapper::tracer() != nullptr);
}

void tst_PYXTraceWrapper::tracesFromManyThreads()
{
    std::atomic<int> count{0};
    const CallingTracer tracer([&](CallingTracer *) { ++count; });
    std::array<std::thread, 4> threads;
    for (std::thread &thread : threads) {
        thread = std::thread([] {
            for (int call = 0; call < 5000; ++call)
                PYXTraceWrapper::staticTraceInfo(QString("x"), "f", 1);
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    QCOMPARE(count.load(), 20'000);
}

PYX_TEST_MAIN_WITH_PROBE(tst_PYXTraceWrapper, runProbe)
#include "tst_PYXTraceWrapper.moc"
