// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#include "BandGenerator.h"
#include "HeadlessRun.h"
#include "MainWindow.h"
#include "WavReader.h"

#include <PYXApplicationInfoImpl.h>
#include <PYXBroker.h>
#include <PYXFileTracer.h>
#include <PYXRuntime.h>
#include <PYXRuntimeCenter.h>
#include <PYXTraceWrapper.h>

#include <QtCore/QCommandLineParser>
#include <QtCore/QLocale>
#include <QtWidgets/QApplication>

#include <algorithm>
#include <cstdio>
#include <cstring>

using namespace BandMonitor;

namespace {

const QLatin1String HeadlessOption("headless");
const QLatin1String ScreenshotOption("screenshot");
const QLatin1String SizeOption("size");
const QLatin1String DarkOption("dark");
const QLatin1String PortableOption("portable");

QString tr(const char *text)
{
    return QCoreApplication::translate("BandMonitor::main", text);
}

void print(std::FILE *stream, const QString &text)
{
    std::fputs(text.toLocal8Bit().constData(), stream);
}

/** Whether there must be no windows: has to be known before there is an application. */
bool isHeadless(int argc, char **argv)
{
    return std::any_of(argv + 1, argv + argc, [](const char *argument) {
        return std::strcmp(argument, "--headless") == 0 || std::strcmp(argument, "-headless") == 0;
    });
}

void setUp(QCommandLineParser &parser)
{
    parser.setApplicationDescription(tr("Shows the signals in a recording, or in a band of its own."));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addPositionalArgument(QStringLiteral("recording"),
                                 tr("WAV file: one channel of real samples, or two of I/Q."),
                                 QStringLiteral("[RECORDING]"));
    parser.addOption({HeadlessOption, tr("Print the detected signals instead of showing a window.")});
    parser.addOption(
        {ScreenshotOption, tr("Process everything, save a picture of the window, and end."), tr("FILE")});
    parser.addOption({SizeOption, tr("Size of the window."), tr("WIDTHxHEIGHT")});
    parser.addOption({DarkOption, tr("Use dark colours.")});
    parser.addOption(
        {PortableOption, tr("Keep settings beside the program, not in the user's directories.")});
}

/** Decides where the settings are: before the first of them are read. */
void prepareSettings(bool bPortable)
{
    using namespace PYXRuntime;
    QObject *const object =
        PYXBroker::getInstance()->topObject(PYXBrokerInterface<PYXIApplicationInfo>::id(), 0);
    auto *const info = qobject_cast<PYXApplicationInfoImpl *>(object);
    if (info == nullptr)
        return;
    info->setPortable(bPortable);
    info->ensureInitialized();
}

int runHeadless(const QString &path)
{
    // Otherwise the event loop does this, and here is none.
    PYXRuntime::PYXRuntimeCenter::handleConfigFiles();
    QLocale::setDefault(QLocale::c()); // scripts read the numbers
    std::unique_ptr<SampleSource> source;
    QString error;
    if (path.isEmpty())
        source = std::make_unique<BandGenerator>(BandGenerator::ownBand());
    else
        source = WavReader::open(path, &error);
    if (!source) {
        print(stderr, QLatin1String("bandmonitor: ") + error + QLatin1Char('\n'));
        return 1;
    }
    print(stdout, detectionReport(std::move(source), struDetectorParameters::restored()));
    return 0;
}

/** What the program traces while the user works with it, for those who are asked for help. */
class TraceFile final
{
    Q_DISABLE_COPY(TraceFile)
public:
    TraceFile()
        : m_tracer(
              {logsDirectory(), QStringLiteral("bandmonitor.txt"), MaximumBytes, MaximumFiles, tr("Trace")})
    {
        if (m_tracer.open())
            PYXRuntime::PYXTraceWrapper::addTracer(&m_tracer);
        else
            print(stderr, tr("bandmonitor: No trace file can be written: %1\n").arg(m_tracer.errorString()));
    }
    ~TraceFile() { PYXRuntime::PYXTraceWrapper::removeTracer(&m_tracer); }

private:
    static constexpr quint64 MaximumBytes = 1024ULL * 1024;
    static constexpr int MaximumFiles = 10;

    static QString logsDirectory()
    {
        using PYXRuntime::PYXIApplicationInfo;
        auto *const info = PYXRuntime::PYXBroker::getInstance()->topObject<PYXIApplicationInfo>();
        return info->getSpecialDirPath(PYXIApplicationInfo::eApplicationLogsDir, true);
    }

    PYXRuntime::PYXFileTracer m_tracer;
};

int saveScreenshot(MainWindow &window, const QString &path)
{
    QCoreApplication::processEvents(); // lays the window out and reads the configuration of the scopes
    window.playToEnd();
    QCoreApplication::processEvents();
    if (window.grab().save(path))
        return 0;
    print(stderr, tr("bandmonitor: The picture \"%1\" cannot be written.\n").arg(path));
    return 1;
}

int runWindow(const QCommandLineParser &parser, const QString &path)
{
    std::unique_ptr<TraceFile> traceFile;
    if (!parser.isSet(ScreenshotOption))
        traceFile = std::make_unique<TraceFile>();
    MainWindow window;
    if (!parser.isSet(ScreenshotOption))
        window.restoreSettings();
    const QStringList size = parser.value(SizeOption).split(QLatin1Char('x'));
    if (size.size() == 2)
        window.resize(size.at(0).toInt(), size.at(1).toInt());
    if (parser.isSet(DarkOption))
        window.setDark(true);
    if (!parser.isSet(ScreenshotOption))
        window.joinNetworks();
    window.show();
    const bool bOpened = !path.isEmpty() && window.openRecording(path);
    if (!bOpened)
        window.openOwnBand();
    if (!parser.isSet(ScreenshotOption))
        return QCoreApplication::exec();
    return path.isEmpty() || bOpened ? saveScreenshot(window, parser.value(ScreenshotOption)) : 1;
}

int run(bool bHeadless)
{
    QCoreApplication::setApplicationName(QStringLiteral("Band Monitor"));
    QCoreApplication::setOrganizationName(QStringLiteral("PYXRuntime"));
    QCommandLineParser parser;
    setUp(parser);
    parser.process(*QCoreApplication::instance());
    const QString path = parser.positionalArguments().value(0);

    PYXRuntime::initialize_PYXRuntime(bHeadless ? PYXRuntime::ekInitialize_NoFonts
                                                : PYXRuntime::ekInitialize_Default);
    prepareSettings(parser.isSet(PortableOption));
    const int result = bHeadless ? runHeadless(path) : runWindow(parser, path);
    PYXRuntime::uninitialize_PYXRuntime();
    return result;
}

} // namespace

int main(int argc, char **argv)
{
    if (isHeadless(argc, argv)) {
        const QCoreApplication application(argc, argv);
        return run(true);
    }
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    const QApplication application(argc, argv);
    return run(false);
}
