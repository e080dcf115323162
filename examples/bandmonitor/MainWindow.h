// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "ColourMap.h"
#include "DetectorParameters.h"
#include "Playback.h"
#include "SampleSource.h"
#include "Spectrum.h"

#include <QtWidgets/QMainWindow>

#include <memory>

class QComboBox;
class QLabel;

namespace BandMonitor {

class DetectionDock;
class DetectionRecorder;
class FrequencyAxis;
class PoolDock;
class RecentRecordings;
class SignalMonitor;
class SpectrumView;
class StationDock;
class WaterfallView;

/** The window: plays a recording or the program's own band and shows what is in it. */
class MainWindow final : public QMainWindow
{
    Q_OBJECT
public:
    explicit MainWindow(QWidget *parent = nullptr);
    ~MainWindow() override;

    /** Looks and detects as it did when it was closed last, and remembers that when it is closed. */
    void restoreSettings();
    /** Shows a message and goes on with what is played already where the file is no recording. */
    bool openRecording(const QString &path);
    void openOwnBand();
    /** Begins to announce itself on the networks of this host, and to listen to others. */
    void joinNetworks();
    void setPlaying(bool bPlaying);
    /** Writes detections and snippets of new signals into the user's results directory. */
    void setRecording(bool bRecording);
    /** Processes the whole recording, or some seconds of the own band, without a pause. */
    void playToEnd();
    void setDark(bool bDark);

    const SignalMonitor *monitor() const { return m_monitor.get(); }

protected:
    void showEvent(QShowEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    void _createViews();
    void _createDocks();
    void _createActions();
    void _createFileMenu(const QList<QAction *> &sourceActions);
    void _createViewMenu();
    void _createHelpMenu();
    void _createStatusBar();
    void _setSource(std::unique_ptr<SampleSource> source);
    void _restart();
    void _showSpectrum(const struSpectrum &spectrum);
    void _showDetections();
    void _showState();
    void _sl_openAction_triggered();
    void _sl_openUrlAction_triggered();
    void _sl_saveAction_triggered();
    void _sl_detectorAction_triggered();

    std::unique_ptr<SignalMonitor> m_monitor;
    std::unique_ptr<DetectionRecorder> m_recorder; ///< only while it records
    QString m_path;                                ///< of the recording; empty for the own band
    Playback m_playback{this};
    bool m_bArranged = false; ///< whether the docks have got their first sizes
    bool m_bKeepSettings = false;
    struDetectorParameters m_detectorParameters;
    struLevelRange m_levelRange;

    FrequencyAxis *m_axis = nullptr;
    SpectrumView *m_spectrumView = nullptr;
    WaterfallView *m_waterfallView = nullptr;
    DetectionDock *m_detectionDock = nullptr;
    StationDock *m_stationDock = nullptr;
    PoolDock *m_poolDock = nullptr;
    QAction *m_playAction = nullptr;
    QAction *m_recordAction = nullptr;
    QAction *m_darkAction = nullptr;
    QComboBox *m_speedBox = nullptr;
    QLabel *m_sourceLabel = nullptr;
    QLabel *m_noiseLabel = nullptr;
    QLabel *m_timeLabel = nullptr;
};

} // namespace BandMonitor
