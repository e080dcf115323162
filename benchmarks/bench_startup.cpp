// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include <QtCore/QElapsedTimer>
#include <QtCore/QProcess>

#include <benchmark/benchmark.h>

namespace {

/** A whole process from its start to its end. */
void runProcess(benchmark::State &state, const char *program, const char *variant)
{
    const QString path = QString(STARTPROBE_DIRECTORY "/") + program;
    for (auto _ : state) {
        QElapsedTimer timer;
        timer.start();
        QProcess process;
        process.start(path, {variant});
        if (!process.waitForFinished() || process.exitCode() != 0) {
            state.SkipWithError("the process failed");
            break;
        }
        state.SetIterationTime(double(timer.nsecsElapsed()) / 1e9);
    }
}

void addContestant(const char *name, const char *program, const char *variant)
{
    benchmark::RegisterBenchmark(name, runProcess, program, variant)
        ->UseManualTime()
        ->Unit(benchmark::kMillisecond)
        ->Iterations(20);
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", qEnvironmentVariable("QT_QPA_PLATFORM", "offscreen").toLatin1());
    addContestant("startup/process/PYX loaded", "startprobe_pyx", "loaded");
    addContestant("startup/process/PYX initialised without fonts", "startprobe_pyx", "no fonts");
    addContestant("startup/process/PYX initialised with fonts", "startprobe_pyx", "fonts");
    addContestant("startup/process/bare QApplication", "startprobe_bare", "");
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
