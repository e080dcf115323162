// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#include "BandGenerator.h"
#include "CommandLine.h"
#include "Complaint.h"
#include "HeadlessRun.h"
#include "LocaleFollower.h"
#include "MainWindow.h"
#include "SecondStart.h"
#include "WavReader.h"

#include <PYXAppInternalsSimple.h>
#include <PYXApplicationInfoImpl.h>
#include <PYXBroker.h>
#include <PYXFileTracer.h>
#include <PYXITransConnector.h>
#include <PYXRuntime.h>
#include <PYXRuntimeCenter.h>
#include <PYXSettings.h>
#include <PYXSingleInstance.h>
#include <PYXStandardIcons.h>
#include <PYXTraceWrapper.h>
#include <PYXXmlSettings.h>
#include <SHW_Debug_AppMode.h>
#include <SHW_General_Language.h>

#include <QtCore/QLocale>
#include <QtCore/QSettings>
#include <QtWidgets/QApplication>

#include <algorithm>
#include <cstdio>
#include <cstring>

using namespace BandMonitor;
using PYXRuntime::PYXSingleInstance;

namespace {

const char TraceSource[] = "bandmonitor\\main";

struct MainTexts
{
    Q_DECLARE_TR_FUNCTIONS(BandMonitor::main)
};

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

/** Decides where the settings are: before the first of them are read, which the start of the library does. */
void prepareSettings(bool bPortable)
{
    using namespace PYXRuntime;
    QObject *const object =
        PYXBroker::getInstance()->topObject(PYXBrokerInterface<PYXIApplicationInfo>::id(), 0);
    auto *const info = qobject_cast<PYXApplicationInfoImpl *>(object);
    if (info == nullptr)
        return;
    QSettings::setDefaultFormat(PYXXmlSettings::format()); // the one that is pointed at its place
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
        : m_tracer({logsDirectory(), QStringLiteral("bandmonitor.txt"), MaximumBytes, MaximumFiles,
                    MainTexts::tr("Trace")})
    {
        if (m_tracer.open())
            PYXRuntime::PYXTraceWrapper::addTracer(&m_tracer);
        else
            print(
                stderr,
                MainTexts::tr("bandmonitor: No trace file can be written: %1\n").arg(m_tracer.errorString()));
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
    print(stderr, MainTexts::tr("bandmonitor: The picture \"%1\" cannot be written.\n").arg(path));
    return 1;
}

/** Language, style and modes, as they are stored; what the command line says comes before. */
void takeStored(const CommandLine &commandLine, PYXRuntime::PYXAppInternalsSimple &internals)
{
    using namespace PYXRuntime;
    if (commandLine.screenshotPath().isEmpty()) {
        const PYXSettings settings(PYXSettings::eUserApplicationSettings);
        SHW_General_Language::applyStored(settings);
        const bool bModesGiven = internals.cmdLineArgs() != internals.cmdLineArgs_withoutStandard();
        if (!bModesGiven)
            internals.setAppModes(SHW_Debug_AppMode::storedAppModes(settings));
    }
    if (!commandLine.locale().isEmpty())
        PYXBroker::getInstance()->topObject<PYXITransConnector>()->changeLocale(commandLine.locale());
}

void prepareWindow(MainWindow &window, const CommandLine &commandLine)
{
    const bool bForUser = commandLine.screenshotPath().isEmpty();
    if (bForUser)
        window.restoreSettings();
    if (commandLine.size().isValid())
        window.resize(commandLine.size());
    if (commandLine.isDark())
        window.setDark(true);
    if (bForUser)
        window.joinNetworks();
    window.show();
}

/** Why this window is not the one that is open already; the user can do nothing about what else there is. */
void tellIfAlone(MainWindow &window, const PYXSingleInstance &instance, PYXSingleInstance::eResult result)
{
    if (result == PYXSingleInstance::ekFirstDoesNotAnswer || result == PYXSingleInstance::ekRefused)
        complain(&window,
                 MainTexts::tr("%1 is running already, but cannot be reached. This is a window of its own.")
                     .arg(QCoreApplication::applicationName()),
                 instance.errorString(), TraceSource, __LINE__);
    else if (result == PYXSingleInstance::ekError)
        PYXRuntime::PYXTraceWrapper::staticTraceWarn(instance.errorString(), TraceSource, __LINE__);
}

int runWindow(const CommandLine &commandLine, PYXRuntime::PYXAppInternalsSimple &internals,
              PYXSingleInstance &instance, PYXSingleInstance::eResult result)
{
    using PYXRuntime::PYXStandardIcons;
    takeStored(commandLine, internals);
    const LocaleFollower localeFollower;
    const QString picture = commandLine.screenshotPath();
    std::unique_ptr<TraceFile> traceFile;
    if (picture.isEmpty())
        traceFile = std::make_unique<TraceFile>();
    QApplication::setWindowIcon(
        PYXStandardIcons::staticRegisteredIcon(PYXStandardIcons::ekIcon_Application_Icon));
    MainWindow window;
    window.followModes(&internals);
    takeSecondStarts(&instance, &internals, &window);
    prepareWindow(window, commandLine);
    const QString path = commandLine.recording();
    const bool bOpened = !path.isEmpty() && window.openRecording(path);
    if (!bOpened)
        window.openOwnBand();
    if (!picture.isEmpty())
        return path.isEmpty() || bOpened ? saveScreenshot(window, picture) : 1;
    tellIfAlone(window, instance, result);
    const int exitCode = QCoreApplication::exec();
    instance.stop(); // who is started from now on is not kept waiting
    return exitCode;
}

/** A portable program is no other start of one that is installed. */
QString instanceId(const CommandLine &commandLine)
{
    const QString name =
        QCoreApplication::organizationName() + QLatin1Char('/') + QCoreApplication::applicationName();
    return commandLine.isPortable() ? name + QLatin1Char(' ') + QCoreApplication::applicationDirPath() : name;
}

int run(bool bHeadless)
{
    QCoreApplication::setApplicationName(QStringLiteral("Band Monitor"));
    QCoreApplication::setApplicationVersion(QStringLiteral(BANDMONITOR_VERSION));
    QCoreApplication::setOrganizationName(QStringLiteral("PYXRuntime"));
    PYXRuntime::PYXAppInternalsSimple internals;
    CommandLine commandLine;
    commandLine.process(internals.cmdLineArgs_withoutStandard());

    PYXSingleInstance instance(instanceId(commandLine));
    auto result = PYXSingleInstance::ekFirst;
    if (!bHeadless && commandLine.screenshotPath().isEmpty() && !commandLine.isNewInstance())
        result = instance.start();
    if (result == PYXSingleInstance::ekHandedOver)
        return 0;

    prepareSettings(commandLine.isPortable());
    PYXRuntime::initialize_PYXRuntime(bHeadless ? PYXRuntime::ekInitialize_NoFonts
                                                : PYXRuntime::ekInitialize_Default);
    internals.initialize_PYXAppInternalsImpl();
    const int exitCode = bHeadless ? runHeadless(commandLine.recording())
                                   : runWindow(commandLine, internals, instance, result);
    internals.cleanup_PYXAppInternalsImpl();
    PYXRuntime::uninitialize_PYXRuntime();
    return exitCode;
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
