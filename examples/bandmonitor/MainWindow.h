// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "DetectorParameters.h"
#include "Playback.h"
#include "SampleSource.h"

#include <QtWidgets/QMainWindow>

#include <memory>

namespace PYXRuntime {
class PYXAppInternalsImpl;
class PYXRecentFilesMenu;
class PYXSettings;
} // namespace PYXRuntime

namespace BandMonitor {

class ApplicationSettings;
class DetectionDock;
class DetectionRecorder;
class DeveloperDocks;
class FileCommands;
class MainActions;
class PlotArea;
class SignalMonitor;
class SignalPopups;
class StateBar;
class StationDock;

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
    /** Whatever makes samples: a receiver, another program. */
    void play(std::unique_ptr<SampleSource> source);
    /** Begins to announce itself on the networks of this host, and to listen to others. */
    void joinNetworks();
    void setPlaying(bool bPlaying);
    /** Writes detections and snippets of new signals into the user's results directory. */
    void setRecording(bool bRecording);
    /** Processes the whole recording, or some seconds of the own band, without a pause. */
    void playToEnd();
    void setDark(bool bDark);
    /** Tells in the title which modes are on, shows in debug mode what is for developers, and has the chords
     * that switch modes. */
    void followModes(PYXRuntime::PYXAppInternalsImpl *internals);
    void bringToFront();

    const SignalMonitor *monitor() const { return m_monitor.get(); }

protected:
    void changeEvent(QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private Q_SLOTS:
    void _sl_appModesChanged();

private:
    void _createDocks();
    void _createActions();
    void _restart();
    void _showDetections();
    void _showState();
    void _showTitle();
    bool _mayClose();
    void _sl_settings_applied();
    void _retranslate();
    /** Keeps a choice of the user at once, where choices are kept. */
    void _keep(void (*set)(PYXRuntime::PYXSettings &, bool), bool bValue) const;

    std::unique_ptr<SignalMonitor> m_monitor;
    std::unique_ptr<DetectionRecorder> m_recorder; ///< only while it records
    QString m_path;                                ///< of the recording; empty for the own band
    Playback m_playback{this};
    bool m_bArranged = false; ///< whether the docks have got their first sizes
    bool m_bKeepSettings = false;
    struDetectorParameters m_detectorParameters;

    ApplicationSettings *m_settings;
    FileCommands *m_files;
    PlotArea *m_plots;
    StateBar *m_stateBar;
    SignalPopups *m_popups;
    PYXRuntime::PYXRecentFilesMenu *m_recentMenu;
    MainActions *m_actions = nullptr;
    DetectionDock *m_detectionDock = nullptr;
    StationDock *m_stationDock = nullptr;
    DeveloperDocks *m_developerDocks = nullptr;
};

} // namespace BandMonitor
