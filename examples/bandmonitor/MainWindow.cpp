// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#include "MainWindow.h"

#include "AboutBox.h"
#include "BandGenerator.h"
#include "Colours.h"
#include "DetectionDock.h"
#include "DetectionRecorder.h"
#include "DetectorDialog.h"
#include "FetchDialog.h"
#include "FileDock.h"
#include "HeadlessRun.h"
#include "LogDock.h"
#include "PoolDock.h"
#include "RecentRecordings.h"
#include "SignalMonitor.h"
#include "SpectrumView.h"
#include "StationDock.h"
#include "SymbolIcon.h"
#include "TableText.h"
#include "Units.h"
#include "WaterfallView.h"
#include "WavReader.h"

#include <PYXBroker.h>
#include <PYXFileFilter.h>
#include <PYXIApplicationInfo.h>
#include <PYXSettings.h>
#include <PYXTraceWrapper.h>

#include <QtCore/QSaveFile>
#include <QtGui/QCloseEvent>
#include <QtGui/QShowEvent>
#include <QtWidgets/QAction>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QInputDialog>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QSplitter>
#include <QtWidgets/QStatusBar>
#include <QtWidgets/QStyle>
#include <QtWidgets/QToolBar>

#include <algorithm>
#include <cmath>

using PYXRuntime::PYXFileFilter;
using PYXRuntime::PYXSettings;
using PYXRuntime::PYXTraceWrapper;

namespace BandMonitor {
namespace {

const char TraceFile[] = "bandmonitor\\MainWindow";

const QLatin1String GeometryKey("MainWindow/Geometry");
const QLatin1String StateKey("MainWindow/State");
const QLatin1String DarkKey("MainWindow/DarkColours");

const QLatin1String RecordingsFilter("Recordings");
const QLatin1String TablesFilter("Tables");

// How the window is divided at first.
constexpr double TableShare = 0.62;
constexpr double DockShare = 0.27;

constexpr double RangeBelowFloor = 10; // in dB
constexpr double RangeStep = 10;       // in dB

/** Reports a failure in the log and to the user, without waiting for an answer. */
void complain(QWidget *parent, const QString &text, const QString &reason, quint16 line)
{
    PYXTraceWrapper::staticTraceError(reason, TraceFile, line);
    auto *const box =
        new QMessageBox(QMessageBox::Warning, QApplication::applicationName(), text, QMessageBox::Ok, parent);
    box->setInformativeText(reason);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open();
}

} // namespace

MainWindow::MainWindow(QWidget *parent)
    : QMainWindow(parent)
{
    setObjectName(QStringLiteral("mainWindow"));
    setWindowTitle(QApplication::applicationName());
    _createViews();
    _createDocks();
    _createActions();
    _createViewMenu();
    _createHelpMenu();
    _createStatusBar();
    resize(1280, 800);
    connect(&m_playback, &Playback::si_advanced, this, &MainWindow::_showDetections);
    connect(&m_playback, &Playback::si_atEnd, this, [this] { setPlaying(false); });
}

MainWindow::~MainWindow() = default;

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
    setDark(settings.boolValue(DarkKey));
    m_detectorParameters = struDetectorParameters::restored();
    m_bKeepSettings = true;
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    QMainWindow::closeEvent(event);
    if (!m_bKeepSettings)
        return;
    PYXSettings settings(PYXSettings::eUserApplicationSettings);
    settings.setValue(GeometryKey, saveGeometry());
    settings.setValue(StateKey, saveState());
    settings.setValue(DarkKey, m_darkAction->isChecked());
}

void MainWindow::_createViews()
{
    m_axis = new FrequencyAxis(this);
    m_spectrumView = new SpectrumView(m_axis);
    m_waterfallView = new WaterfallView(m_axis);
    auto *const splitter = new QSplitter(Qt::Vertical);
    splitter->addWidget(m_spectrumView);
    splitter->addWidget(m_waterfallView);
    splitter->setChildrenCollapsible(false);
    setCentralWidget(splitter);
}

void MainWindow::_createDocks()
{
    m_detectionDock = new DetectionDock(this);
    connect(m_detectionDock, &DetectionDock::si_selected, m_spectrumView, &SpectrumView::setSelected);
    addDockWidget(Qt::BottomDockWidgetArea, m_detectionDock);
    auto *const logDock = new LogDock(this);
    addDockWidget(Qt::BottomDockWidgetArea, logDock);
    m_stationDock = new StationDock(this);
    m_poolDock = new PoolDock(this);
    for (QDockWidget *const dock :
         {static_cast<QDockWidget *>(m_stationDock), static_cast<QDockWidget *>(new FileDock(this)),
          static_cast<QDockWidget *>(m_poolDock)})
        tabifyDockWidget(logDock, dock);
    m_poolDock->hide(); // for developers
    logDock->raise();
}

void MainWindow::_createActions()
{
    auto *const openAction = new QAction(symbolIcon(ekSymbol_Open), tr("&Open..."), this);
    openAction->setShortcut(QKeySequence::Open);
    connect(openAction, &QAction::triggered, this, &MainWindow::_sl_openAction_triggered);
    auto *const bandAction = new QAction(symbolIcon(ekSymbol_OwnBand), tr("Own &Band"), this);
    connect(bandAction, &QAction::triggered, this, &MainWindow::openOwnBand);
    m_playAction = new QAction(this);
    m_playAction->setObjectName(QStringLiteral("playAction"));
    m_playAction->setShortcut(Qt::Key_Space);
    connect(m_playAction, &QAction::triggered, this, [this] { setPlaying(!m_playback.isRunning()); });

    m_recordAction = new QAction(symbolIcon(ekSymbol_Record), tr("&Record Detections"), this);
    m_recordAction->setObjectName(QStringLiteral("recordAction"));
    m_recordAction->setCheckable(true);
    m_recordAction->setIconText(tr("Record"));
    connect(m_recordAction, &QAction::toggled, this, &MainWindow::setRecording);

    m_speedBox = new QComboBox;
    for (const double speed : {0.5, 1.0, 2.0, 4.0, 8.0, 16.0})
        m_speedBox->addItem(tr("%1\u00d7").arg(speed), speed);
    connect(m_speedBox, qOverload<int>(&QComboBox::currentIndexChanged), this,
            [this] { m_playback.setSpeed(m_speedBox->currentData().toDouble()); });
    m_speedBox->setCurrentIndex(1);
    m_speedBox->setToolTip(tr("Speed"));
    m_speedBox->setAccessibleName(tr("Speed"));

    _createFileMenu({openAction, bandAction});
    QMenu *const playMenu = menuBar()->addMenu(tr("&Play"));
    playMenu->addActions({m_playAction, m_recordAction});
    playMenu->addSeparator();
    playMenu->addAction(tr("&Detector..."), this, &MainWindow::_sl_detectorAction_triggered)
        ->setObjectName(QStringLiteral("detectorAction"));

    QToolBar *const toolBar = addToolBar(tr("Playing"));
    toolBar->setObjectName(QStringLiteral("playToolBar"));
    toolBar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    toolBar->setMovable(false);
    toolBar->setIconSize({18, 18});
    toolBar->addActions({openAction, bandAction, m_playAction, m_recordAction});
    toolBar->addWidget(m_speedBox);
}

void MainWindow::_createFileMenu(const QList<QAction *> &sourceActions)
{
    PYXFileFilter::registerFilter(RecordingsFilter, tr("Recordings"), {QStringLiteral("*.wav")});
    PYXFileFilter::registerFilter(TablesFilter, tr("Comma-separated tables"), {QStringLiteral("*.csv")});
    auto *const recentMenu = new RecentRecordings(this);
    connect(recentMenu, &RecentRecordings::si_chosen, this, &MainWindow::openRecording);

    QMenu *const fileMenu = menuBar()->addMenu(tr("&File"));
    fileMenu->addActions(sourceActions);
    fileMenu->insertMenu(sourceActions.last(), recentMenu);
    auto *const openUrlAction = new QAction(tr("Open &URL..."), this);
    openUrlAction->setObjectName(QStringLiteral("openUrlAction"));
    connect(openUrlAction, &QAction::triggered, this, &MainWindow::_sl_openUrlAction_triggered);
    fileMenu->insertAction(recentMenu->menuAction(), openUrlAction);
    fileMenu->addSeparator();
    fileMenu
        ->addAction(tr("&Save Signals..."), this, &MainWindow::_sl_saveAction_triggered, QKeySequence::Save)
        ->setObjectName(QStringLiteral("saveAction"));
    fileMenu->addSeparator();
    fileMenu->addAction(tr("&Quit"), this, &QWidget::close, QKeySequence::Quit);
}

void MainWindow::_createHelpMenu()
{
    menuBar()
        ->addMenu(tr("&Help"))
        ->addAction(tr("&About %1").arg(QApplication::applicationName()), this,
                    [this] { showAboutBox(this); })
        ->setObjectName(QStringLiteral("aboutAction"));
}

void MainWindow::_createViewMenu()
{
    QMenu *const viewMenu = menuBar()->addMenu(tr("&View"));
    viewMenu->addAction(tr("Whole &Band"), m_axis, &FrequencyAxis::showBand);
    m_darkAction = viewMenu->addAction(tr("&Dark Colours"));
    m_darkAction->setCheckable(true);
    connect(m_darkAction, &QAction::toggled, this, &MainWindow::setDark);
    viewMenu->addSeparator();
    for (QDockWidget *const dock : findChildren<QDockWidget *>())
        viewMenu->addAction(dock->toggleViewAction());
}

void MainWindow::_createStatusBar()
{
    m_sourceLabel = new QLabel;
    m_noiseLabel = new QLabel;
    m_timeLabel = new QLabel;
    m_sourceLabel->setContentsMargins(6, 0, 6, 0);
    m_timeLabel->setContentsMargins(6, 0, 6, 0);
    statusBar()->addWidget(m_sourceLabel, 1);
    statusBar()->addPermanentWidget(m_noiseLabel);
    statusBar()->addPermanentWidget(m_timeLabel);
}

void MainWindow::setDark(bool bDark)
{
    m_darkAction->setChecked(bDark);
    QApplication::setPalette(bDark ? darkPalette() : QApplication::style()->standardPalette());
}

bool MainWindow::openRecording(const QString &path)
{
    QString error;
    std::unique_ptr<SampleSource> recording = WavReader::open(path, &error);
    if (!recording) {
        complain(this, tr("This recording cannot be opened."), error, __LINE__);
        return false;
    }
    m_path = path;
    if (m_bKeepSettings)
        RecentRecordings::add(path);
    _setSource(std::move(recording));
    return true;
}

void MainWindow::openOwnBand()
{
    m_path.clear();
    _setSource(std::make_unique<BandGenerator>(BandGenerator::ownBand()));
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

void MainWindow::_setSource(std::unique_ptr<SampleSource> source)
{
    if (m_recorder)
        m_recorder->setMonitor(nullptr); // lets go of the samples before their pool goes
    m_monitor = std::make_unique<SignalMonitor>(std::move(source));
    m_playback.setMonitor(m_monitor.get());
    m_poolDock->setPool(&m_monitor->pool());
    if (m_recorder)
        m_recorder->setMonitor(m_monitor.get());
    m_monitor->setDetectorParameters(m_detectorParameters);
    connect(m_monitor.get(), &SignalMonitor::si_spectrum, this, &MainWindow::_showSpectrum);
    const SampleSource &opened = m_monitor->source();
    m_axis->setBand(opened.isComplex() ? -opened.sampleRate() / 2 : 0, opened.sampleRate() / 2);
    m_levelRange = {};
    m_spectrumView->clear();
    m_waterfallView->clear();
    m_detectionDock->setDetections({});
    PYXTraceWrapper::staticTraceInfo(tr("%1: %2").arg(opened.name(), sourceText(opened)), TraceFile,
                                     __LINE__);
    m_sourceLabel->setText(opened.name() + QStringLiteral("   ") + sourceText(opened));
    setWindowTitle(opened.name() + QLatin1String(" - ") + QApplication::applicationName());
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
    m_playAction->setText(bPlaying ? tr("&Pause") : tr("&Play"));
    m_playAction->setIcon(symbolIcon(bPlaying ? ekSymbol_Pause : ekSymbol_Play));
    _showState();
}

void MainWindow::setRecording(bool bRecording)
{
    m_recordAction->setChecked(bRecording);
    m_recorder.reset();
    if (!bRecording)
        return;
    using PYXRuntime::PYXIApplicationInfo;
    auto *const info = PYXRuntime::PYXBroker::getInstance()->topObject<PYXIApplicationInfo>();
    m_recorder = std::make_unique<DetectionRecorder>(
        info->getSpecialDirPath(PYXIApplicationInfo::eApplicationResultsDir, true));
    connect(m_recorder.get(), &DetectionRecorder::si_failed, this, [this](const QString &reason) {
        complain(this, tr("Detections cannot be recorded."), reason, __LINE__);
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

void MainWindow::_sl_openAction_triggered()
{
    const PYXFileFilter filter(QStringLiteral("OpenRecording"), {RecordingsFilter});
    const QString path = filter.getOpenFileName(this, tr("Open Recording"));
    if (!path.isEmpty())
        openRecording(path);
}

void MainWindow::_sl_openUrlAction_triggered()
{
    const QString text = QInputDialog::getText(this, tr("Open URL"), tr("Address of the recording:"),
                                               QLineEdit::Normal, QStringLiteral("https://"));
    const QUrl url = QUrl::fromUserInput(text.trimmed());
    if (text.isEmpty() || !url.isValid())
        return;
    auto *const dialog = new FetchDialog(url, this);
    connect(dialog, &FetchDialog::si_fetched, this, &MainWindow::openRecording);
    connect(dialog, &FetchDialog::si_failed, this, [this](const QString &reason) {
        complain(this, tr("This recording cannot be fetched."), reason, __LINE__);
    });
}

void MainWindow::_sl_saveAction_triggered()
{
    const PYXFileFilter filter(QStringLiteral("SaveSignals"), {TablesFilter});
    const QString path = filter.getSaveFileName(this, tr("Save Signals"));
    if (path.isEmpty())
        return;
    QSaveFile file(path);
    const QByteArray table = csvText(m_detectionDock->table()).toUtf8();
    if (!file.open(QIODevice::WriteOnly) || file.write(table) != table.size() || !file.commit())
        complain(this, tr("The signals cannot be saved."), path + QLatin1String(": ") + file.errorString(),
                 __LINE__);
}

void MainWindow::_sl_detectorAction_triggered()
{
    DetectorDialog dialog(this);
    dialog.setParameters(m_detectorParameters);
    if (dialog.exec() != QDialog::Accepted || dialog.parameters() == m_detectorParameters)
        return;
    m_detectorParameters = dialog.parameters();
    m_monitor->setDetectorParameters(m_detectorParameters);
    if (m_bKeepSettings)
        m_detectorParameters.save();
}

void MainWindow::_showSpectrum(const struSpectrum &spectrum)
{
    const SignalDetector &detector = m_monitor->detector();
    m_spectrumView->setSpectrum(spectrum, detector.threshold());
    m_waterfallView->addSpectrum(spectrum);
    // The range follows the noise in steps, so that it does not jump about.
    const double wanted = detector.noiseFloor() - RangeBelowFloor;
    if (std::abs(m_levelRange.low - wanted) > RangeStep) {
        m_levelRange.low = std::clamp(std::round(wanted / RangeStep) * RangeStep, -150.0, -20.0);
        m_spectrumView->setLevelRange(m_levelRange);
        m_waterfallView->setLevelRange(m_levelRange);
    }
}

void MainWindow::_showDetections()
{
    const std::vector<struDetection> detections = m_monitor->detector().detections();
    m_detectionDock->setDetections(detections);
    m_spectrumView->setDetections(detections);
    _showState();
}

void MainWindow::_showState()
{
    const double duration = m_monitor->source().duration();
    const QString time = timeText(m_monitor->time());
    m_timeLabel->setText(duration > 0 ? tr("%1 of %2").arg(time, timeText(duration)) : time);
    m_noiseLabel->setText(m_monitor->time() > 0
                              ? tr("Noise %1").arg(levelText(m_monitor->detector().noiseFloor()))
                              : QString());
}

} // namespace BandMonitor
