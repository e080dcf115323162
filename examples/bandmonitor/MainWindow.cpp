// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#include "MainWindow.h"

#include "AboutBox.h"
#include "ApplicationSettings.h"
#include "BandGenerator.h"
#include "Colours.h"
#include "Complaint.h"
#include "DetectionDock.h"
#include "DetectionRecorder.h"
#include "DeveloperDocks.h"
#include "FileCommands.h"
#include "FileDock.h"
#include "HeadlessRun.h"
#include "LogDock.h"
#include "MainActions.h"
#include "PlotArea.h"
#include "PoolDock.h"
#include "SHW_Display_Window.h"
#include "SignalMonitor.h"
#include "SignalPopups.h"
#include "StateBar.h"
#include "StationDock.h"
#include "Units.h"
#include "WavReader.h"

#include <AppInternals.h>
#include <PYXAppInternalsImpl.h>
#include <PYXBroker.h>
#include <PYXIApplicationInfo.h>
#include <PYXNotification.h>
#include <PYXRecentFilesMenu.h>
#include <PYXSettings.h>
#include <PYXStandardIcons.h>
#include <PYXTraceWrapper.h>

#include <QtGui/QCloseEvent>
#include <QtGui/QShowEvent>
#include <QtWidgets/QAction>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>

using PYXRuntime::PYXNotification;
using PYXRuntime::PYXRecentFilesMenu;
using PYXRuntime::PYXSettings;
using PYXRuntime::PYXStandardIcons;
using PYXRuntime::PYXTraceWrapper;

namespace BandMonitor {
namespace {

const char TraceFile[] = "bandmonitor\\MainWindow";

const QLatin1String GeometryKey("MainWindow/Geometry");
const QLatin1String StateKey("MainWindow/State");
const QLatin1String RecentKey("RecentRecordings");

// Which question that is, among those that are not asked again.
const QLatin1String CloseQuestionModule("BandMonitor");
const QLatin1String CloseQuestion("CloseWhileRecording");

// How the window is divided at first.
constexpr double TableShare = 0.55;
constexpr double DockShare = 0.27;

} // namespace

MainWindow::MainWindow(QWidget *parent)
    : QMainWindow(parent)
    , m_settings(new ApplicationSettings(this))
    , m_files(new FileCommands(this))
    , m_plots(new PlotArea)
    , m_stateBar(new StateBar)
    , m_popups(new SignalPopups(this))
    , m_recentMenu(new PYXRecentFilesMenu(RecentKey, this))
{
    setObjectName(QStringLiteral("mainWindow"));
    _showTitle();
    setCentralWidget(m_plots);
    setStatusBar(m_stateBar);
    _createActions();
    _createDocks();
    resize(1280, 800);
    connect(&m_playback, &Playback::si_advanced, this, &MainWindow::_showDetections);
    connect(&m_playback, &Playback::si_atEnd, this, [this] { setPlaying(false); });
}

MainWindow::~MainWindow() = default;

void MainWindow::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        _retranslate();
    QMainWindow::changeEvent(event);
}

void MainWindow::_retranslate()
{
    m_files->retranslate();
    m_actions->retranslate();
    m_developerDocks->retranslate();
    _showTitle();
    if (m_monitor)
        _showState();
}

void MainWindow::showEvent(QShowEvent *event)
{
    QMainWindow::showEvent(event);
    if (event->spontaneous() || m_bArranged)
        return;
    m_bArranged = true;
    const QList<QDockWidget *> docks = {m_detectionDock, m_stationDock};
    resizeDocks(docks, {int(width() * TableShare), int(width() * (1 - TableShare))}, Qt::Horizontal);
    resizeDocks(docks, {int(height() * DockShare), int(height() * DockShare)}, Qt::Vertical);
}

void MainWindow::restoreSettings()
{
    const PYXSettings settings(PYXSettings::eUserApplicationSettings);
    restoreGeometry(settings.byteArrayValue(GeometryKey));
    m_bArranged = restoreState(settings.byteArrayValue(StateKey));
    m_developerDocks->setShown(m_developerDocks->isShown()); // it may have been another mode then
    _sl_settings_applied();
    m_bKeepSettings = true;
}

void MainWindow::_sl_settings_applied()
{
    const PYXSettings settings(PYXSettings::eUserApplicationSettings);
    setDark(SHW_Display_Window::isDark(settings));
    m_actions->action(MainActions::ekAction_PopUps)
        ->setChecked(SHW_Display_Window::announcesNewSignals(settings));
    m_stationDock->restorePeers();
    const struDetectorParameters parameters = struDetectorParameters::restored(settings);
    if (parameters == m_detectorParameters)
        return;
    m_detectorParameters = parameters;
    if (m_monitor)
        m_monitor->setDetectorParameters(parameters);
}

void MainWindow::_keep(void (*set)(PYXSettings &, bool), bool bValue) const
{
    if (!m_bKeepSettings)
        return;
    PYXSettings settings(PYXSettings::eUserApplicationSettings);
    set(settings, bValue);
}

void MainWindow::followModes(PYXRuntime::PYXAppInternalsImpl *internals)
{
    internals->installShortcuts_AppModes(this);
    internals->connectSignal_appModesChanged(this, SLOT(_sl_appModesChanged()));
    _sl_appModesChanged();
    connect(m_settings, &ApplicationSettings::si_appModesApplied, this,
            [internals](quint64 modes) { internals->overrideAppModes(modes); });
}

void MainWindow::_sl_appModesChanged()
{
    const bool bDebug = PYXRuntime::appInternals::appIsInDebugMode();
    if (bDebug != m_developerDocks->isShown()) // another mode leaves closed docks closed
        m_developerDocks->setShown(bDebug);
    _showTitle();
}

void MainWindow::_showTitle()
{
    QString title = QApplication::applicationName();
    if (m_monitor)
        title.prepend(m_monitor->source().name() + QLatin1String(" - "));
    if (PYXRuntime::appInternals::appIsInExpertMode())
        title += tr(" [expert]");
    if (PYXRuntime::appInternals::appIsInDebugMode())
        title += tr(" [debug]");
    setWindowTitle(title);
}

void MainWindow::bringToFront()
{
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
}

bool MainWindow::_mayClose()
{
    if (!m_recorder)
        return true;
    // Whoever never wants to stop could never close the window.
    PYXNotification::fixHiddenForAbsurdReturnButton(CloseQuestionModule, CloseQuestion, QDialogButtonBox::No);
    return PYXNotification::question(this, QApplication::applicationName(),
                                     tr("Detections are being recorded. Stop that and quit?"),
                                     CloseQuestionModule, CloseQuestion,
                                     QDialogButtonBox::Yes | QDialogButtonBox::No, QDialogButtonBox::No,
                                     true) == QDialogButtonBox::Yes;
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    if (!_mayClose()) {
        event->ignore();
        return;
    }
    setRecording(false);
    QMainWindow::closeEvent(event);
    if (!m_bKeepSettings)
        return;
    PYXSettings settings(PYXSettings::eUserApplicationSettings);
    settings.setValue(GeometryKey, saveGeometry());
    settings.setValue(StateKey, saveState());
}

void MainWindow::_createDocks()
{
    m_detectionDock = new DetectionDock(this);
    connect(m_detectionDock, &DetectionDock::si_selected, m_plots, &PlotArea::setSelected);
    addDockWidget(Qt::BottomDockWidgetArea, m_detectionDock);
    auto *const logDock = new LogDock(this);
    addDockWidget(Qt::BottomDockWidgetArea, logDock);
    m_stationDock = new StationDock(this);
    auto *const fileDock = new FileDock(this);
    tabifyDockWidget(logDock, m_stationDock);
    tabifyDockWidget(logDock, fileDock);
    logDock->raise();
    m_actions->addDock(m_detectionDock, PYXStandardIcons::ekIcon_Display_Show_LineSpectrum);
    m_actions->addDock(logDock, PYXStandardIcons::ekIcon_Widget_LogMessages);
    m_actions->addDock(m_stationDock, PYXStandardIcons::ekIcon_Network_Computer);
    m_actions->addDock(fileDock, PYXStandardIcons::ekIcon_OpenResultsFolder);
    m_developerDocks = new DeveloperDocks(this, m_actions);
}

void MainWindow::_createActions()
{
    connect(m_files, &FileCommands::si_recordingChosen, this, &MainWindow::openRecording);
    connect(m_recentMenu, &PYXRecentFilesMenu::si_fileChosen, this, &MainWindow::openRecording);
    m_actions = new MainActions(this, m_recentMenu);
    const auto onTriggered = [this](MainActions::eAction id, auto slot) {
        connect(m_actions->action(id), &QAction::triggered, this, slot);
    };
    onTriggered(MainActions::ekAction_Open, [this] { m_files->openRecording(); });
    onTriggered(MainActions::ekAction_OpenUrl, [this] { m_files->openUrl(); });
    onTriggered(MainActions::ekAction_OwnBand, &MainWindow::openOwnBand);
    onTriggered(MainActions::ekAction_Save, [this] { m_files->save(m_detectionDock->table()); });
    onTriggered(MainActions::ekAction_Quit, &QWidget::close);
    onTriggered(MainActions::ekAction_Play, [this] { setPlaying(!m_playback.isRunning()); });
    onTriggered(MainActions::ekAction_Detector,
                [this] { m_settings->run(ApplicationSettings::ekPage_Detector); });
    onTriggered(MainActions::ekAction_Settings, [this] { m_settings->run(); });
    connect(m_settings, &ApplicationSettings::si_applied, this, &MainWindow::_sl_settings_applied);
    onTriggered(MainActions::ekAction_WholeBand, [this] { m_plots->showBand(); });
    onTriggered(MainActions::ekAction_About, [this] { showAboutBox(this); });
    connect(m_actions->action(MainActions::ekAction_Record), &QAction::toggled, this,
            &MainWindow::setRecording);
    connect(m_actions->action(MainActions::ekAction_Dark), &QAction::toggled, this, [this](bool bDark) {
        setDark(bDark);
        _keep(&SHW_Display_Window::setDark, bDark);
    });
    connect(m_actions->action(MainActions::ekAction_PopUps), &QAction::toggled, this, [this](bool bAnnounce) {
        m_popups->setEnabled(bAnnounce);
        _keep(&SHW_Display_Window::setAnnouncesNewSignals, bAnnounce);
    });
    connect(m_actions->speedBox(), qOverload<int>(&QComboBox::currentIndexChanged), this,
            [this] { m_playback.setSpeed(m_actions->speedBox()->currentData().toDouble()); });
}

void MainWindow::setDark(bool bDark)
{
    m_actions->action(MainActions::ekAction_Dark)->setChecked(bDark);
    setDarkColours(bDark);
}

bool MainWindow::openRecording(const QString &path)
{
    QString error;
    std::unique_ptr<SampleSource> recording = WavReader::open(path, &error);
    if (!recording) {
        complain(this, tr("This recording cannot be opened."), error, TraceFile, __LINE__);
        return false;
    }
    m_path = path;
    if (m_bKeepSettings)
        m_recentMenu->addFile(path);
    play(std::move(recording));
    return true;
}

void MainWindow::openOwnBand()
{
    m_path.clear();
    play(std::make_unique<BandGenerator>(BandGenerator::ownBand()));
}

void MainWindow::joinNetworks()
{
    m_stationDock->start();
}

void MainWindow::_restart()
{
    if (m_path.isEmpty())
        openOwnBand();
    else
        openRecording(m_path);
}

void MainWindow::play(std::unique_ptr<SampleSource> source)
{
    if (m_recorder)
        m_recorder->setMonitor(nullptr); // lets go of the samples before their pool goes
    m_monitor = std::make_unique<SignalMonitor>(std::move(source));
    m_playback.setMonitor(m_monitor.get());
    m_developerDocks->poolDock()->setPool(&m_monitor->pool());
    if (m_recorder)
        m_recorder->setMonitor(m_monitor.get());
    m_monitor->setDetectorParameters(m_detectorParameters);
    connect(m_monitor.get(), &SignalMonitor::si_spectrum, m_plots,
            [this](const struSpectrum &spectrum) { m_plots->addSpectrum(spectrum, m_monitor->detector()); });
    const SampleSource &opened = m_monitor->source();
    m_plots->reset(opened);
    m_detectionDock->setDetections({});
    m_popups->forget();
    PYXTraceWrapper::staticTraceInfo(tr("%1: %2").arg(opened.name(), sourceText(opened)), TraceFile,
                                     __LINE__);
    _showTitle();
    setPlaying(true);
}

void MainWindow::setPlaying(bool bPlaying)
{
    if (bPlaying && m_monitor && m_monitor->isAtEnd()) {
        _restart();
        return;
    }
    if (bPlaying)
        m_playback.start();
    else
        m_playback.stop();
    m_actions->showPlaying(bPlaying);
    _showState();
}

void MainWindow::setRecording(bool bRecording)
{
    m_actions->action(MainActions::ekAction_Record)->setChecked(bRecording);
    m_recorder.reset();
    if (!bRecording)
        return;
    using PYXRuntime::PYXIApplicationInfo;
    auto *const info = PYXRuntime::PYXBroker::getInstance()->topObject<PYXIApplicationInfo>();
    m_recorder = std::make_unique<DetectionRecorder>(
        info->getSpecialDirPath(PYXIApplicationInfo::eApplicationResultsDir, true));
    connect(m_recorder.get(), &DetectionRecorder::si_failed, this, [this](const QString &reason) {
        complain(this, tr("Detections cannot be recorded."), reason, TraceFile, __LINE__);
    });
    m_recorder->setMonitor(m_monitor.get());
}

void MainWindow::playToEnd()
{
    while (m_monitor->advance(1) &&
           (m_monitor->source().duration() > 0 || m_monitor->time() < UnattendedTime))
        continue;
    setPlaying(false);
    _showDetections();
}

void MainWindow::_showDetections()
{
    const std::vector<struDetection> detections = m_monitor->detector().detections();
    m_detectionDock->setDetections(detections);
    m_popups->setDetections(detections);
    m_plots->setDetections(detections);
    _showState();
}

void MainWindow::_showState()
{
    m_stateBar->showState(*m_monitor);
}

} // namespace BandMonitor
