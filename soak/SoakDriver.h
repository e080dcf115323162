// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "LoopedBand.h"

#include <BroadcastReceiver.h>
#include <BroadcastSender.h>
#include <IBroadcastParser.h>
#include <PYXAppInternalsSimple.h>
#include <PYXFileTracer.h>
#include <PYXRetainingFileSet.h>
#include <PYXSettingsWatcher.h>

#include <QtCore/QElapsedTimer>
#include <QtCore/QMap>
#include <QtCore/QObject>

#include <deque>
#include <functional>
#include <memory>

namespace BandMonitor {
class MainWindow;
} // namespace BandMonitor

class QDialog;
class QThread;

/** Does with Band Monitor, all at once and again and again, what its users and its surroundings do. */
class SoakDriver final : public QObject, public PYXRuntime::IBroadcastParser
{
    Q_OBJECT
    Q_INTERFACES(PYXRuntime::IBroadcastParser)
public:
    /** @param directory for files; exists */
    SoakDriver(BandMonitor::MainWindow &window, PYXRuntime::PYXAppInternalsSimple &internals,
               std::shared_ptr<const LoopedBand::Samples> band, const QString &directory);
    ~SoakDriver() override;

    /** @param speed seconds of the band per second */
    void start(double speed);
    void stop();

    /** How many seconds of the band have been processed. */
    double playedSeconds() const;
    /** How often each activity has come so far. */
    QMap<QString, int> counts() const { return m_counts; }
    double secondsSincePopUpQueueWasEmpty() const;

    void parseBroadcastDatagram(const QByteArray &datagram, const QHostAddress &sender,
                                quint16 port) override;

private Q_SLOTS:
    void _sl_popUps_queueEmpty() { m_sinceQueueEmpty.restart(); }

private:
    void _every(int milliseconds, const QString &name, const std::function<void()> &work);
    void _playAnew();
    void _keepPace();
    void _switchLanguage();
    void _switchModes();
    void _syncSettings();
    void _transferSettings();
    void _changeStations();
    void _restartReceiver();
    void _restartRecorder();
    void _changeRegistrations();
    void _applyProxy();
    void _drawIcons();
    void _startWorker();
    void _ask();
    void _openOwnDialog();
    void _openNewDialog();
    void _whileOpen(int milliseconds, const std::function<bool(QDialog &)> &step);
    void _visitPages();
    static void _deleteOldResults();

    BandMonitor::MainWindow &m_window;
    PYXRuntime::PYXAppInternalsSimple &m_internals;
    const QString m_directory;
    const std::shared_ptr<const LoopedBand::Samples> m_band;
    PYXRuntime::PYXFileTracer m_tracer;
    PYXRuntime::PYXRetainingFileSet m_sampleFiles;
    PYXRuntime::PYXRetainingFileSet m_lineFiles;
    PYXRuntime::BroadcastReceiver m_receiver;
    std::deque<std::unique_ptr<PYXRuntime::BroadcastSender>> m_stations;
    std::deque<std::unique_ptr<QObject>> m_registered;
    std::unique_ptr<PYXRuntime::PYXSettingsWatcher> m_watcher;
    QThread *m_worker = nullptr;
    QMap<QString, int> m_counts;
    QElapsedTimer m_sinceStart;
    QElapsedTimer m_sinceQueueEmpty;
    double m_speed = 1;
    double m_playedBefore = 0; ///< of sources that have been replaced, in seconds
    int m_blocks = 0;
    bool m_bDialogOpen = false;
};
