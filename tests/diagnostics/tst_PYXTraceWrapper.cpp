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
#include <thread>
#include <vector>

using PYXRuntime::PYXTraceWrapper;

namespace {

using TextCall = void (*)(const QString &, const char *, ushort);
using ListCall = void (*)(const QStringList &, const char *, ushort);
using TwoTextsCall = void (*)(const QString &, const QString &, const char *, ushort);

struct struLevel
{
    const char *name;
    const char *plainName; ///< the level that a plain tracer sees
    TextCall text;
    ListCall list;
    TwoTextsCall twoTexts;
    bool isQualified() const { return qstrcmp(name, plainName) != 0; }
};

const struLevel Levels[] = {
    {"Debug", "Debug", &PYXTraceWrapper::staticTraceDebug, &PYXTraceWrapper::staticTraceDebug,
     &PYXTraceWrapper::staticTraceX_Debug},
    {"Info", "Info", &PYXTraceWrapper::staticTraceInfo, &PYXTraceWrapper::staticTraceInfo,
     &PYXTraceWrapper::staticTraceX_Info},
    {"Warn", "Warn", &PYXTraceWrapper::staticTraceWarn, &PYXTraceWrapper::staticTraceWarn,
     &PYXTraceWrapper::staticTraceX_Warn},
    {"Error", "Error", &PYXTraceWrapper::staticTraceError, &PYXTraceWrapper::staticTraceError,
     &PYXTraceWrapper::staticTraceX_Error},
    {"Debug_Info", "Info", &PYXTraceWrapper::staticTrace_Debug_Info, &PYXTraceWrapper::staticTrace_Debug_Info,
     &PYXTraceWrapper::staticTraceX_Debug_Info},
    {"Debug_Warn", "Warn", &PYXTraceWrapper::staticTrace_Debug_Warn, &PYXTraceWrapper::staticTrace_Debug_Warn,
     &PYXTraceWrapper::staticTraceX_Debug_Warn},
    {"Debug_Error", "Error", &PYXTraceWrapper::staticTrace_Debug_Error,
     &PYXTraceWrapper::staticTrace_Debug_Error, &PYXTraceWrapper::staticTraceX_Debug_Error},
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
int runProbe(const QString &what)
{
    RecordingTracer tracer;
    if (what == "every level") {
        for (const struLevel &level : Levels)
            callEveryForm(level);
    } else if (what == "tracer plugged in") {
        PYXTraceWrapper::addTracer(&tracer);
        PYXTraceWrapper::staticTraceWarn(QString("unseen"), "f", 1);
        PYXTraceWrapper::enableDebugOutTrace(true);
        PYXTraceWrapper::staticTraceWarn(QString("seen"), "f", 2);
        PYXTraceWrapper::removeTracer(&tracer);
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

ChildResult runOwnProbe(const QString &what)
{
    return runChild(QCoreApplication::applicationFilePath(), {"--probe", what});
}

} // namespace

class tst_PYXTraceWrapper : public QObject
{
    Q_OBJECT
private slots:
    void debugOutLines();
    void debugOutBesideTracers();
    void printfModeConsumesConversions();
    void coloursOnATerminal();
    void messageOutputs();
    void tracersGetEveryForm_data();
    void tracersGetEveryForm();
    void tracerList();
    void tracersMayChangeTheList();
    void singletonIsATracer();
    void tracesFromManyThreads();
};

void tst_PYXTraceWrapper::debugOutLines()
{
    QString expected;
    for (const struLevel &level : Levels) {
        const QString tag = QString(level.name).toUpper();
        expected += QString("source\\File(42) : TRACE_%1 : te%1xt\n").replace("TRACE_%1", "TRACE_" + tag);
        expected += "source\\File(43) : TRACE_" + tag + " : \n";
        expected += "source\\File(44) : TRACE_" + tag + " : a | b\n";
        expected += "source\\File(45) : TRACE_" + tag + " : \n";
        expected += "source\\File(46) : LOG_" + tag + " : l\n";
        expected += "source\\File(65535) : TRACE_" + tag + " : t\n";
    }
    const ChildResult result = runOwnProbe("every level");
    QVERIFY(result.bFinished);
    QCOMPARE(result.errors, expected);
    QCOMPARE(result.output, QString());
}

void tst_PYXTraceWrapper::debugOutBesideTracers()
{
    QCOMPARE(runOwnProbe("tracer plugged in").errors, QString("f(2) : TRACE_WARN : seen\n"));
}

void tst_PYXTraceWrapper::printfModeConsumesConversions()
{
    const ChildResult result = runOwnProbe("printf");
    QCOMPARE(result.output, QString("f(1) : TRACE_INFO : 50% 0   end\n"));
    QCOMPARE(result.errors, QString());
}

void tst_PYXTraceWrapper::coloursOnATerminal()
{
    QCOMPARE(runOwnProbe("colour").errors, QString("f(1) : TRACE_WARN : yellow\n"));
    const QString script = QStandardPaths::findExecutable("script");
    if (script.isEmpty())
        QSKIP("needs the program 'script' to have a terminal");
    const QString command = '\'' + QCoreApplication::applicationFilePath() + "' --probe colour";
    const ChildResult result = runChild(script, {"-qec", command, "/dev/null"});
    QCOMPARE(result.output, QString("\033[93mf(1) : TRACE_WARN : yellow\n\033[0m"));
}

void tst_PYXTraceWrapper::messageOutputs()
{
    if (QSysInfo::kernelType() == "winnt")
        QSKIP("the console's code page decides what arrives");
    QCOMPARE(runOwnProbe("output functions").errors, QString::fromUtf8("\xC3\xA4\nwide\n\n"));
}

void tst_PYXTraceWrapper::tracersGetEveryForm_data()
{
    QTest::addColumn<int>("index");
    for (int index = 0; index < int(std::size(Levels)); ++index)
        QTest::newRow(Levels[index].name) << index;
}

void tst_PYXTraceWrapper::tracersGetEveryForm()
{
    QFETCH(int, index);
    const struLevel &level = Levels[index];
    RecordingTracer plain;
    RecordingTracer2 qualified;
    PYXTraceWrapper::addTracer(&plain);
    PYXTraceWrapper::addTracer(&qualified);
    callEveryForm(level);
    PYXTraceWrapper::removeTracer(&plain);
    PYXTraceWrapper::removeTracer(&qualified);

    const auto expected = [](const QString &name, const QString &prefix) {
        const QString x = "X_" + name;
        return QStringList{name + '|' + prefix + "te%1xt|source\\File|42",
                           name + "||source\\File|43",
                           name + "|a+b|source\\File|44",
                           name + "||source\\File|45",
                           x + '|' + prefix + "t/" + prefix + "l|source\\File|46",
                           x + '|' + prefix + "t/|source\\File|65535"};
    };
    QCOMPARE(qualified.calls, expected(level.name, ""));
    QStringList forPlain = expected(level.plainName, level.isQualified() ? "Debug: " : "");
    if (level.isQualified())
        forPlain.removeAt(1); // an empty text is not passed on
    QCOMPARE(plain.calls, forPlain);
}

void tst_PYXTraceWrapper::tracerList()
{
    RecordingTracer first;
    RecordingTracer second;
    PYXTraceWrapper::addTracer(&first);
    PYXTraceWrapper::addTracer(&second);
    PYXTraceWrapper::addTracer(&first);
    PYXTraceWrapper::addTracer(nullptr);
    PYXTraceWrapper::addTracer(PYXTraceWrapper::tracer()); // would call itself
    QCOMPARE(PYXTraceWrapper::tracers(), (QList<Interfaces::IPYXTracer *>{&first, &second}));
    QVERIFY(!PYXTraceWrapper::containsTracer(nullptr));
    PYXTraceWrapper::removeTracer(nullptr);
    PYXTraceWrapper::removeTracer(&first);
    QVERIFY(!PYXTraceWrapper::containsTracer(&first));
    PYXTraceWrapper::removeTracer(&second);
    QVERIFY(PYXTraceWrapper::tracers().isEmpty());
}

void tst_PYXTraceWrapper::tracersMayChangeTheList()
{
    std::array<RecordingTracer, 50> added;
    class ChangingTracer : public RecordingTracer
    {
    public:
        explicit ChangingTracer(std::array<RecordingTracer, 50> &tracers)
            : m_added(tracers)
        {}
        using RecordingTracer::traceInfo;
        void traceInfo(const QString &text, const char *file, ushort line) override
        {
            RecordingTracer::traceInfo(text, file, line);
            PYXTraceWrapper::removeTracer(this);
            for (RecordingTracer &tracer : m_added)
                PYXTraceWrapper::addTracer(&tracer);
        }

    private:
        std::array<RecordingTracer, 50> &m_added;
    };
    ChangingTracer first(added);
    ChangingTracer second(added);
    PYXTraceWrapper::addTracer(&first);
    PYXTraceWrapper::addTracer(&second);
    PYXTraceWrapper::staticTraceInfo(QString("x"), "f", 1);
    QCOMPARE(first.calls.size(), 1);
    QCOMPARE(second.calls.size(), 1);
    QCOMPARE(PYXTraceWrapper::tracers().size(), int(added.size()));
    for (RecordingTracer &tracer : added) {
        QVERIFY(tracer.calls.isEmpty());
        PYXTraceWrapper::removeTracer(&tracer);
    }
}

void tst_PYXTraceWrapper::singletonIsATracer()
{
    QObject *const object = PYXTraceWrapper::getInstance();
    QCOMPARE(static_cast<QObject *>(PYXTraceWrapper::getInstance()), object);
    QVERIFY(qobject_cast<Interfaces::IPYXTracer *>(object) == PYXTraceWrapper::tracer());
    QVERIFY(qobject_cast<Interfaces::IPYXTracer2 *>(object) != nullptr);
    QVERIFY(object->qt_metacast("PYXRuntime::PYXTraceWrapper") != nullptr);
    QVERIFY(object->qt_metacast("Interfaces::IPYXTracer2") != nullptr);

    RecordingTracer2 tracer;
    PYXTraceWrapper::addTracer(&tracer);
    PYXTraceWrapper::tracer()->traceX_Warn("t", "l", "f", 7);
    qobject_cast<Interfaces::IPYXTracer2 *>(object)->traceDebug_Error(QStringList{"a"}, "f", 8);
    PYXTraceWrapper::removeTracer(&tracer);
    QCOMPARE(tracer.calls, (QStringList{"X_Warn|t/l|f|7", "Debug_Error|a|f|8"}));

    PYXTraceWrapper::destroyInstance();
    QVERIFY(!PYXTraceWrapper::hasInstance());
    QVERIFY(PYXTraceWrapper::tracer() != nullptr);
}

void tst_PYXTraceWrapper::tracesFromManyThreads()
{
    class CountingTracer : public RecordingTracer
    {
    public:
        using RecordingTracer::traceInfo;
        void traceInfo(const QString &, const char *, ushort) override { ++count; }
        std::atomic<int> count{0};
    };
    CountingTracer tracer;
    PYXTraceWrapper::addTracer(&tracer);
    std::vector<std::thread> threads;
    threads.reserve(4);
    for (int thread = 0; thread < 4; ++thread) {
        threads.emplace_back([] {
            for (int call = 0; call < 5000; ++call)
                PYXTraceWrapper::staticTraceInfo(QString("x"), "f", 1);
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    PYXTraceWrapper::removeTracer(&tracer);
    QCOMPARE(tracer.count.load(), 20'000);
}

int main(int argc, char **argv)
{
    if (argc == 3 && qstrcmp(argv[1], "--probe") == 0)
        return runProbe(QString::fromLocal8Bit(argv[2]));
    QCoreApplication application(argc, argv);
    tst_PYXTraceWrapper test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_PYXTraceWrapper.moc"
