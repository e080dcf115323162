// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXFileTracer.h"
#include "PYXLineCountingFileSet.h"
#include "PYXSizeCountingFileSet.h"
#include "PYXTraceWrapper.h"

#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>

#include <benchmark/benchmark.h>
#include <cstring>
#include <fcntl.h>
#include <memory>
#include <spdlog/pattern_formatter.h>
#include <spdlog/sinks/rotating_file_sink.h>
#include <spdlog/spdlog.h>
#include <unistd.h>

using namespace PYXRuntime;

namespace {

// All contestants begin a file anew after as many bytes, so that they have the same pages to get and to free.
constexpr qint64 BytesPerFile = qint64(32) * 1024 * 1024;

const QByteArray &block()
{
    static const QByteArray bytes = QByteArray(99, 'x').append('\n').repeated(656).left(64 * 1024);
    return bytes;
}

const QByteArray &textLine()
{
    static const QByteArray bytes = QByteArray(99, 'x').append('\n');
    return bytes;
}

/** Always writes the same file. It is removed first: ext4 hurries to save one that is emptied and written. */
template <typename Set>
class SameFile final : public Set
{
protected:
    QString _getNextFileName() override
    {
        QFile::remove(this->baseDirectory() + QLatin1Char('/') + this->baseFileName());
        return this->baseFileName();
    }
};

template <typename Set>
void writeToSet(benchmark::State &state, const QByteArray &data, quint64 maximum)
{
    const QTemporaryDir directory;
    SameFile<Set> set;
    set.setBaseDirectory(directory.path());
    set.setBaseFileName(QStringLiteral("record"));
    set.setMaximumWeightPerFile(maximum);
    bool bGood = set.open(QIODevice::WriteOnly);
    for (auto _ : state)
        bGood = set.write(data) == data.size() && bGood;
    if (!bGood)
        state.SkipWithError("not all was written");
}

void sizeSetBlocks(benchmark::State &state)
{
    writeToSet<PYXSizeCountingFileSet>(state, block(), BytesPerFile);
}

void lineSetBlocks(benchmark::State &state)
{
    writeToSet<PYXLineCountingFileSet>(state, block(), BytesPerFile / 100);
}

void lineSetLines(benchmark::State &state)
{
    writeToSet<PYXLineCountingFileSet>(state, textLine(), BytesPerFile / 100);
}

void writeToFile(benchmark::State &state, const QByteArray &data)
{
    const QTemporaryDir directory;
    QFile file(directory.filePath(QStringLiteral("record")));
    bool bGood = file.open(QIODevice::WriteOnly);
    qint64 size = 0;
    for (auto _ : state) {
        bGood = file.write(data) == data.size() && bGood;
        size += data.size();
        if (size >= BytesPerFile) {
            file.remove();
            bGood = file.open(QIODevice::WriteOnly) && bGood;
            size = 0;
        }
    }
    if (!bGood)
        state.SkipWithError("not all was written");
}

/** Hands the texts on as they are; one earlier file is kept. */
std::shared_ptr<spdlog::logger> bareLogger(const QTemporaryDir &directory)
{
    const auto sink = std::make_shared<spdlog::sinks::rotating_file_sink_st>(
        directory.filePath(QStringLiteral("record")).toStdString(), BytesPerFile, 1);
    sink->set_formatter(
        std::make_unique<spdlog::pattern_formatter>("%v", spdlog::pattern_time_type::utc, ""));
    return std::make_shared<spdlog::logger>("benchmark", sink);
}

void writeToSpdlog(benchmark::State &state, const QByteArray &data)
{
    const QTemporaryDir directory;
    const auto logger = bareLogger(directory);
    const spdlog::string_view_t view(data.constData(), std::size_t(data.size()));
    for (auto _ : state)
        logger->log(spdlog::level::info, view);
}

/** The system's file, begun anew like the others. */
class RawFile
{
public:
    explicit RawFile(const QTemporaryDir &directory)
        : m_path(QFile::encodeName(directory.filePath(QStringLiteral("record"))))
    {
        begin();
    }
    ~RawFile() { ::close(m_file); }
    RawFile(const RawFile &) = delete;
    RawFile &operator=(const RawFile &) = delete;

    bool write(const char *data, std::size_t size)
    {
        const bool bGood = ::write(m_file, data, size) == ssize_t(size);
        m_size += qint64(size);
        if (m_size >= BytesPerFile) {
            ::close(m_file);
            ::unlink(m_path.constData());
            begin();
        }
        return bGood;
    }

private:
    void begin()
    {
        m_file = ::open(m_path.constData(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
        m_size = 0;
    }

    const QByteArray m_path;
    int m_file = -1;
    qint64 m_size = 0;
};

void writeRaw(benchmark::State &state)
{
    const QTemporaryDir directory;
    RawFile file(directory);
    const QByteArray &data = block();
    bool bGood = true;
    for (auto _ : state)
        bGood = file.write(data.constData(), std::size_t(data.size())) && bGood;
    if (!bGood)
        state.SkipWithError("not all was written");
}

/** Lines are copied into a buffer as large as that of a set of files. */
void gatherLines(benchmark::State &state, const QByteArray &line)
{
    const QTemporaryDir directory;
    RawFile file(directory);
    std::vector<char> buffer(std::size_t(64) * 1024);
    std::size_t used = 0;
    bool bGood = true;
    const auto size = std::size_t(line.size());
    for (auto _ : state) {
        if (used + size > buffer.size()) {
            bGood = file.write(buffer.data(), used) && bGood;
            used = 0;
        }
        std::memcpy(buffer.data() + used, line.constData(), size);
        used += size;
        benchmark::ClobberMemory();
    }
    if (!bGood)
        state.SkipWithError("not all was written");
}

const char *const SourceFile = "source\\Demodulator";
constexpr ushort SourceLine = 128;
const QString &tracedText()
{
    static const QString text("carrier at 433.92 MHz: level=-82.5 dBFS, symbol rate=9600");
    return text;
}

QByteArray finishedTraceLine()
{
    return "2026-11-21 12:00:00.000 INFO source\\Demodulator(128): " + tracedText().toUtf8() + '\n';
}

void traceToFiles(benchmark::State &state)
{
    const QTemporaryDir directory;
    PYXFileTracer::struFiles files;
    files.directory = directory.path();
    files.maximumBytesPerFile = BytesPerFile;
    files.maximumNumberOfFiles = 2;
    PYXFileTracer tracer(files);
    if (!tracer.open())
        state.SkipWithError("no file can be created");
    PYXTraceWrapper::addTracer(&tracer);
    for (auto _ : state)
        PYXTraceWrapper::staticTraceInfo(tracedText(), SourceFile, SourceLine);
    PYXTraceWrapper::removeTracer(&tracer);
}

/** The same line, locked and not flushed either. */
void spdlogToFiles(benchmark::State &state)
{
    const QTemporaryDir directory;
    const auto sink = std::make_shared<spdlog::sinks::rotating_file_sink_mt>(
        directory.filePath(QStringLiteral("trace")).toStdString(), BytesPerFile, 1);
    spdlog::logger logger("benchmark", sink);
    logger.set_pattern("%Y-%m-%d %H:%M:%S.%e INFO %g(%#): %v", spdlog::pattern_time_type::utc);
    for (auto _ : state) {
        const QByteArray utf8 = tracedText().toUtf8();
        logger.log(spdlog::source_loc(SourceFile, SourceLine, ""), spdlog::level::info,
                   spdlog::string_view_t(utf8.constData(), std::size_t(utf8.size())));
    }
}

} // namespace

BENCHMARK(sizeSetBlocks)->Name("files/writes of 64 KiB/PYX sizes counted");
BENCHMARK(lineSetBlocks)->Name("files/writes of 64 KiB/PYX lines counted");
BENCHMARK_CAPTURE(writeToFile, blocks, block())->Name("files/writes of 64 KiB/QFile");
BENCHMARK_CAPTURE(writeToSpdlog, blocks, block())->Name("files/writes of 64 KiB/spdlog");
BENCHMARK(writeRaw)->Name("files/writes of 64 KiB/floor");
BENCHMARK(lineSetLines)->Name("files/lines of 100 bytes/PYX lines counted");
BENCHMARK_CAPTURE(writeToFile, lines, textLine())->Name("files/lines of 100 bytes/QFile");
BENCHMARK_CAPTURE(writeToSpdlog, lines, textLine())->Name("files/lines of 100 bytes/spdlog");
BENCHMARK_CAPTURE(gatherLines, lines, textLine())->Name("files/lines of 100 bytes/floor");
BENCHMARK(traceToFiles)->Name("files/trace line/PYXFileTracer");
BENCHMARK(spdlogToFiles)->Name("files/trace line/spdlog");
BENCHMARK_CAPTURE(gatherLines, traces, finishedTraceLine())->Name("files/trace line/floor");

BENCHMARK_MAIN();
