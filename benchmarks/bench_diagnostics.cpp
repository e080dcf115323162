// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXRuntimeCenter.h"
#include "PYXTraceWrapper.h"

#include <QtCore/QLoggingCategory>
#include <QtCore/QTemporaryDir>

#include <benchmark/benchmark.h>
#include <charconv>
#include <cstdio>
#include <memory>
#include <mutex>
#include <spdlog/sinks/basic_file_sink.h>
#include <spdlog/spdlog.h>
#include <string>

using PYXRuntime::PYXRuntimeCenter;
using PYXRuntime::PYXTraceWrapper;

Q_LOGGING_CATEGORY(disabledCategory, "benchmark.disabled", QtWarningMsg)

namespace {

const uint s_scope = PYXRuntimeCenter::registerRuntimeScope("Benchmark", "measured with debug off");

void disabledScope(benchmark::State &state)
{
    const QString text("carrier found");
    for (auto _ : state) {
        PYXRuntimeCenter::pyxDebug(s_scope, text);
        benchmark::ClobberMemory();
    }
}

void disabledCategoryMessage(benchmark::State &state)
{
    const QString text("carrier found");
    for (auto _ : state) {
        qCDebug(disabledCategory) << text;
        benchmark::ClobberMemory();
    }
}

void nothing(benchmark::State &state)
{
    for (auto _ : state)
        benchmark::ClobberMemory();
}

/** Appends "file(line) : TRACE_WARN : text" to a buffered file, one line at a time. */
class FileTracer : public Interfaces::IPYXTracer
{
public:
    explicit FileTracer(const QString &path)
        : m_file(std::fopen(qPrintable(path), "wb"))
    {}
    ~FileTracer() override { std::fclose(m_file); }
    FileTracer(const FileTracer &) = delete;
    FileTracer &operator=(const FileTracer &) = delete;

    void traceWarn(const QString &text, const char *file, ushort line) override
    {
        const QByteArray utf8 = text.toUtf8();
        const std::lock_guard<std::mutex> locker(m_mutex);
        m_line.clear();
        char number[8];
        const auto numberEnd = std::to_chars(std::begin(number), std::end(number), line).ptr;
        m_line.append(file).append(1, '(').append(number, std::size_t(numberEnd - number));
        m_line.append(") : TRACE_WARN : ").append(utf8.constData(), std::size_t(utf8.size())).append(1, '\n');
        std::fwrite(m_line.data(), 1, m_line.size(), m_file);
    }
    void traceDebug(const QStringList &, const char *, ushort) override {}
    void traceDebug(const QString &, const char *, ushort) override {}
    void traceInfo(const QStringList &, const char *, ushort) override {}
    void traceInfo(const QString &, const char *, ushort) override {}
    void traceWarn(const QStringList &, const char *, ushort) override {}
    void traceError(const QStringList &, const char *, ushort) override {}
    void traceError(const QString &, const char *, ushort) override {}
    void traceX_Debug(const QString &, const QString &, const char *, ushort) override {}
    void traceX_Info(const QString &, const QString &, const char *, ushort) override {}
    void traceX_Warn(const QString &, const QString &, const char *, ushort) override {}
    void traceX_Error(const QString &, const QString &, const char *, ushort) override {}

private:
    std::FILE *m_file;
    std::mutex m_mutex;
    std::string m_line;
};

const char *const SourceFile = "source\\Demodulator";
constexpr ushort SourceLine = 128;
const QString &tracedText()
{
    static const QString text("lost lock on the carrier at 433.92 MHz, level -82.5 dBFS");
    return text;
}

void traceToFile(benchmark::State &state)
{
    const QTemporaryDir directory;
    FileTracer tracer(directory.filePath("trace"));
    PYXTraceWrapper::addTracer(&tracer);
    for (auto _ : state)
        PYXTraceWrapper::staticTraceWarn(tracedText(), SourceFile, SourceLine);
    PYXTraceWrapper::removeTracer(&tracer);
}

void traceDirectly(benchmark::State &state)
{
    const QTemporaryDir directory;
    FileTracer tracer(directory.filePath("trace"));
    for (auto _ : state)
        tracer.traceWarn(tracedText(), SourceFile, SourceLine);
}

/**
 * The same line to a file of the same kind: buffered, locked, written by fwrite, not flushed; and without
 * asking for the time, which is not in the line.
 */
void spdlogToFile(benchmark::State &state)
{
    const QTemporaryDir directory;
    const auto sink =
        std::make_shared<spdlog::sinks::basic_file_sink_mt>(directory.filePath("trace").toStdString());
    spdlog::logger logger("benchmark", sink);
    logger.set_pattern("%g(%#) : TRACE_WARN : %v");
    const auto someTime = spdlog::log_clock::now();
    for (auto _ : state) {
        const QByteArray utf8 = tracedText().toUtf8();
        logger.log(someTime, spdlog::source_loc(SourceFile, SourceLine, ""), spdlog::level::warn,
                   spdlog::string_view_t(utf8.constData(), std::size_t(utf8.size())));
    }
}

} // namespace

BENCHMARK(disabledScope)->Name("diagnostics/disabled message/PYX scope");
BENCHMARK(disabledCategoryMessage)->Name("diagnostics/disabled message/qCDebug");
BENCHMARK(nothing)->Name("diagnostics/disabled message/floor");
BENCHMARK(traceToFile)->Name("diagnostics/trace line to a file/PYX");
BENCHMARK(spdlogToFile)->Name("diagnostics/trace line to a file/spdlog");
BENCHMARK(traceDirectly)->Name("diagnostics/trace line to a file/floor");

BENCHMARK_MAIN();
