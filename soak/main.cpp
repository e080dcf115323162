// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
//
// Runs Band Monitor's window under load, and tells what has become of its memory, descriptors and tables.
#include "ObjectCensus.h"
#include "ProcessFigures.h"
#include "SoakDriver.h"
#include "SoakReport.h"

#include <LocaleFollower.h>
#include <LogDock.h>
#include <MainWindow.h>
#include <SignalMonitor.h>

#include <PYXApplicationInfoImpl.h>
#include <PYXBroker.h>
#include <PYXFileListImpl.h>
#include <PYXNotification.h>
#include <PYXRuntime.h>
#include <PYXTraceWrapper.h>

#include <QtCore/QCommandLineParser>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtCore/QTextStream>
#include <QtCore/QTimer>
#include <QtWidgets/QApplication>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QTableView>

#include <malloc.h>

#include <ctime>

using namespace PYXRuntime;
using BandMonitor::MainWindow;

namespace {

constexpr int SampleInterval = 1000; // in ms
constexpr double MiB = 1024;         // in KiB
constexpr double WarmUpShare = 0.2;  // of the time

struct struOptions
{
    double minutes = 15;
    double speed = 50;
    double leastSpeed = 0;
    double loop = 12; ///< of the band, in seconds
    bool bJudging = true;
    QString samples; ///< path
};

struOptions optionsOf(const QCoreApplication &application)
{
    const QCommandLineOption minutes(QStringLiteral("minutes"), QStringLiteral("How long."),
                                     QStringLiteral("minutes"), QStringLiteral("15"));
    const QCommandLineOption speed(QStringLiteral("speed"), QStringLiteral("Seconds of the band per second."),
                                   QStringLiteral("factor"), QStringLiteral("50"));
    const QCommandLineOption least(QStringLiteral("least-speed"),
                                   QStringLiteral("What must be reached of it."), QStringLiteral("factor"),
                                   QStringLiteral("0"));
    const QCommandLineOption samples(QStringLiteral("samples"), QStringLiteral("Where all figures go."),
                                     QStringLiteral("file"));
    const QCommandLineOption loop(QStringLiteral("loop"), QStringLiteral("How much of the band is repeated."),
                                  QStringLiteral("seconds"), QStringLiteral("12"));
    const QCommandLineOption noVerdict(QStringLiteral("no-verdict"),
                                       QStringLiteral("Only work, for somebody else to watch."));
    QCommandLineParser parser;
    parser.addHelpOption();
    parser.addOptions({minutes, speed, least, loop, noVerdict, samples});
    parser.process(application);
    return {parser.value(minutes).toDouble(), parser.value(speed).toDouble(), parser.value(least).toDouble(),
            parser.value(loop).toDouble(),    !parser.isSet(noVerdict),       parser.value(samples)};
}

double rowsOf(const QWidget &window, const char *table)
{
    return window.findChild<QTableView *>(QLatin1String(table))->model()->rowCount();
}

void addSystemFigures(SoakReport &report)
{
    const auto add = [&](const char *name, SoakReport::eRule rule, double bound,
                         std::function<double()> read) {
        report.add({QLatin1String(name), rule, bound, std::move(read)});
    };
    using namespace ProcessFigures;
    add("resident KiB", SoakReport::ekRule_Slope, 8 * MiB, [] { return memory().residentKiB; });
    add("private dirty KiB", SoakReport::ekRule_Slope, 8 * MiB, [] { return memory().privateDirtyKiB; });
    add("heap in use KiB", SoakReport::ekRule_Slope, 4 * MiB, heapInUse);
    add("descriptors", SoakReport::ekRule_Growth, 0, descriptors);
    add("threads", SoakReport::ekRule_Growth, 0, threads);
    add("QObjects", SoakReport::ekRule_Growth, 10, ObjectCensus::count);
}

void addTables(SoakReport &report, const MainWindow &window, const SoakDriver &driver)
{
    const auto add = [&](const char *name, double bound, std::function<double()> read) {
        report.add({QLatin1String(name), SoakReport::ekRule_Limit, bound, std::move(read)});
    };
    add("broker registrations", 100, [] { return PYXBroker::getInstance()->registrations().size(); });
    add("broker interfaces", 100, [] { return PYXBroker::getInstance()->knownInterfaces().size(); });
    add("tracers", 10, [] { return PYXTraceWrapper::tracers().size(); });
    add("registered files", 1000, [] { return PYXFileListImpl::getInstance()->fileList().size(); });
    add("suppressed messages", 50, [] { return PYXNotification::suppressedMessages().size(); });
    add("s since the pop-up queue was empty", 60, [&] { return driver.secondsSincePopUpQueueWasEmpty(); });
    add("blocks of the pool", 200, [&] {
        const auto statistics = window.monitor()->pool().statistics();
        return double(statistics.acquiredBlocks + statistics.freeBlocks);
    });
    add("stations", 200, [&] { return rowsOf(window, "stationTable"); });
    add("signals", 50, [&] { return rowsOf(window, "detectionTable"); });
    add("lines of the log", BandMonitor::LogDock::MaximumLines,
        [&] { return double(window.findChild<QPlainTextEdit *>(QStringLiteral("logView"))->blockCount()); });
}

/** All that has been done, and what has become of the figures. @return whether all is well. */
bool print(const struOptions &options, const SoakReport &report, const SoakDriver &driver, double seconds)
{
    QTextStream out(stdout);
    const double played = driver.playedSeconds();
    const double sampleRate = BandMonitor::BandGenerator::ownBand().sampleRate;
    const double processor = double(std::clock()) / CLOCKS_PER_SEC;
    out << QStringLiteral(
               "%1 s of the band (%2 million samples) in %3 s: %4 times real time. Everything together "
               "took %5 s of processor time.\n\n")
               .arg(QString::number(played, 'f', 0), QString::number(played * sampleRate / 1e6, 'f', 0),
                    QString::number(seconds, 'f', 0), QString::number(played / seconds, 'f', 1),
                    QString::number(processor, 'f', 0));
    const QMap<QString, int> counts = driver.counts();
    QStringList done;
    QStringList failures = report.failures();
    for (auto count = counts.cbegin(); count != counts.cend(); ++count) {
        done += QStringLiteral("%1 %2").arg(count.value()).arg(count.key());
        if (count.value() == 0)
            failures += count.key();
    }
    if (played / seconds < options.leastSpeed)
        failures += QStringLiteral("speed");
    out << "Meanwhile: " << done.join(QStringLiteral(", ")) << ".\n";
    if (!options.bJudging)
        return true;
    out << '\n' << report.table();
    if (!failures.isEmpty())
        out << "\n**Failed:** " << failures.join(QStringLiteral(", ")) << ".\n";
    return failures.isEmpty();
}

void printGrowth(const QMap<QByteArray, int> &before)
{
    QTextStream out(stderr);
    const QMap<QByteArray, int> after = ObjectCensus::histogram();
    for (auto count = after.cbegin(); count != after.cend(); ++count)
        if (count.value() > before.value(count.key()))
            out << count.key() << ": " << before.value(count.key()) << " -> " << count.value() << '\n';
}

/** Lets the window live as long as it is to, and takes samples. @return how many seconds that took. */
double watch(double minutes, SoakReport &report, QMap<QByteArray, int> &warm)
{
    QElapsedTimer elapsed;
    elapsed.start();
    QTimer sampling;
    QObject::connect(&sampling, &QTimer::timeout, [&] {
        const double seconds = double(elapsed.elapsed()) / 1000;
        if (QApplication::activeModalWidget() != nullptr)
            return; // dialogs come and go: what they take is not to be compared with what is without them
        malloc_trim(0);
        report.takeSample(seconds);
        if (warm.isEmpty() && seconds > minutes * 60 * WarmUpShare)
            warm = ObjectCensus::histogram();
        if (seconds >= minutes * 60)
            QCoreApplication::quit();
    });
    sampling.start(SampleInterval);
    QCoreApplication::exec();
    return double(elapsed.elapsed()) / 1000;
}

int soak(const struOptions &options, const QString &directory)
{
    PYXAppInternalsSimple internals;
    internals.initialize_PYXAppInternalsImpl();
    const BandMonitor::LocaleFollower localeFollower;
    MainWindow window;
    window.followModes(&internals);
    window.restoreSettings();
    window.joinNetworks();
    SoakDriver driver(window, internals, LoopedBand::record(options.loop), directory);
    driver.start(options.speed);
    window.show();

    SoakReport report(options.minutes * 60 * WarmUpShare);
    addSystemFigures(report);
    addTables(report, window, driver);
    QMap<QByteArray, int> warm;
    const double seconds = watch(options.minutes, report, warm);
    driver.stop();
    const bool bGood = print(options, report, driver, seconds);
    if (!bGood)
        printGrowth(warm);
    QFile file(options.samples);
    if (!options.samples.isEmpty() && file.open(QIODevice::WriteOnly))
        file.write(report.samples().toUtf8());
    window.close();
    internals.cleanup_PYXAppInternalsImpl();
    return bGood ? 0 : 1;
}

} // namespace

int main(int argc, char **argv)
{
    ObjectCensus::begin();
    // Nothing of the user is read or changed.
    const QTemporaryDir home;
    for (const char *const variable : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"})
        qputenv(variable, QFile::encodeName(home.path()));
    const QApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("Band Monitor"));
    QCoreApplication::setOrganizationName(QStringLiteral("PYXRuntime"));
    const struOptions options = optionsOf(application);
    initialize_PYXRuntime();
    const int exitCode = soak(options, home.path());
    uninitialize_PYXRuntime();
    return exitCode;
}
