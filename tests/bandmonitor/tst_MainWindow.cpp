// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "MainWindow.h"

#include "Colours.h"
#include "DetectionModel.h"
#include "LogDock.h"
#include "SecondStart.h"
#include "SignalMonitor.h"
#include "SignalPopups.h"

#include "DataRows.h"
#include "FileContents.h"
#include "SettingsHome.h"
#include "WavBytes.h"

#include <PYXAppInternalsSimple.h>
#include <PYXNotification.h>
#include <PYXRecentFilesMenu.h>
#include <PYXSingleInstance.h>
#include <PYXTraceWrapper.h>

#include <QtTest/QtTest>
#include <QtWidgets/QtWidgets>

#include <cmath>
#include <thread>

using namespace BandMonitor;
using PYXRuntime::PYXAppInternalsSimple;
using PYXRuntime::PYXNotification;
using PYXRuntime::PYXTraceWrapper;

namespace {

/** Two seconds with tones at 1 and 3 kHz. */
QByteArray recording()
{
    QByteArray samples;
    for (int i = 0; i < 16000; ++i) {
        const double phase = i * 6.283185307179586 / 8000;
        samples += WavBytes::number16(int(3000 * std::sin(1000 * phase) + 300 * std::sin(3000 * phase)));
    }
    return WavBytes::riff(WavBytes::formatChunk(1, 1, 16, 8000) + WavBytes::chunk("data", samples));
}

QString logOf(const QWidget &parent)
{
    return parent.findChild<QPlainTextEdit *>("logView")->toPlainText();
}

const QAbstractItemModel &tableOf(const QWidget &parent)
{
    return *parent.findChild<QTableView *>("detectionTable")->model();
}

} // namespace

class tst_MainWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QLocale::setDefault(QLocale::c());
        m_path = m_directory.filePath("tones.wav");
        put(m_path, recording());
    }
    void showsWhatIsInARecording();
    void playsInTime();
    void goesOnAsItWasClosed();
    void refusesOddDetectorParameters();
    void savesTheSignals();
    void logsTracesOfAllThreads();
    void keepsRowsOfKnownSignals();
    void keepsDeveloperDocksToDebugMode();
    void asksBeforeARecordingEnds();
    void announcesNewSignals();
    void takesTheRecordingOfASecondStart();

private:
    QTemporaryDir m_directory;
    QString m_path;
};

void tst_MainWindow::showsWhatIsInARecording()
{
    MainWindow window;
    window.resize(800, 600);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QVERIFY(window.openRecording(m_path));
    window.playToEnd();

    auto *const table = window.findChild<QTableView *>("detectionTable");
    const QAbstractItemModel &model = *table->model();
    QCOMPARE(model.rowCount(), 2);
    QVERIFY(model.index(0, 0).data().toString().startsWith("1.000"));
    table->sortByColumn(0, Qt::DescendingOrder);
    QVERIFY(model.index(0, 0).data().toString().startsWith("3.000"));
    QTRY_VERIFY(logOf(window).contains("tones.wav: 8 kHz real, 16 bit"));
    QVERIFY(!window.grab().isNull());
}

void tst_MainWindow::playsInTime()
{
    MainWindow window;
    QVERIFY(window.openRecording(m_path));
    QTRY_VERIFY(window.monitor()->time() > 0.2);
    window.setPlaying(false);
    const double paused = window.monitor()->time();
    QVERIFY(paused < 2);
    auto *const play = window.findChild<QAction *>("playAction");
    QVERIFY(play != nullptr);
    play->trigger();
    QTRY_VERIFY(window.monitor()->time() > paused);
    window.playToEnd();
    play->trigger(); // from the beginning again
    QVERIFY(window.monitor()->time() < 2);
}

void tst_MainWindow::goesOnAsItWasClosed()
{
    const SettingsHome home;
    const auto isDark = [] { return QApplication::palette().color(QPalette::Base).lightness() < 128; };
    {
        MainWindow window;
        window.restoreSettings();
        QVERIFY(!isDark());
        window.resize(700, 500);
        window.findChild<QAction *>("darkAction")->trigger();
        QVERIFY(window.findChild<QAction *>("popUpsAction")->isChecked());
        window.findChild<QAction *>("popUpsAction")->trigger();
        window.findChild<LogDock *>()->hide();
        QVERIFY(window.openRecording(m_path));
        QTimer::singleShot(0, &window, [&window] {
            window.findChild<QSpinBox *>("gapBox")->setValue(struDetectorParameters::WidestGap);
            auto *const buttons = window.findChild<QDialogButtonBox *>("m_ButtonBoxDialog");
            buttons->button(QDialogButtonBox::Ok)->click();
        });
        window.findChild<QAction *>("detectorAction")->trigger();
        window.playToEnd();
        QCOMPARE(tableOf(window).rowCount(), 1); // two tones are no longer two signals
        window.close();
        setDarkColours(false);
    }
    MainWindow window;
    window.restoreSettings();
    QVERIFY(isDark());
    QCOMPARE(window.size(), QSize(700, 500));
    QVERIFY(window.findChild<LogDock *>()->isHidden());
    QVERIFY(!window.findChild<QAction *>("popUpsAction")->isChecked());
    window.setDark(false);

    auto *const recent = window.findChild<PYXRuntime::PYXRecentFilesMenu *>();
    QVERIFY(recent->actions().constFirst()->text().contains("tones.wav"));
    recent->actions().constFirst()->trigger();
    QTRY_VERIFY(window.monitor() != nullptr);
    window.playToEnd();
    QCOMPARE(tableOf(window).rowCount(), 1);
    const SignalMonitor *const before = window.monitor();
    QVERIFY(!window.openRecording(m_directory.filePath("missing.wav")));
    QVERIFY(window.findChild<QMessageBox *>()->informativeText().contains("missing.wav"));
    QCOMPARE(window.monitor(), before);
}

void tst_MainWindow::refusesOddDetectorParameters()
{
    const struDetectorParameters usual;
    const auto restored = [](quint32 magic, const QVariant &threshold, const QVariant &gap) {
        PYXRuntime::PYXStatusHash hash(magic);
        hash.insert("Threshold", threshold);
        hash.insert("LargestGap", gap);
        return struDetectorParameters::fromStatusHash(hash);
    };
    const quint32 ours = usual.toStatusHash().magicNumber();
    QVERIFY(restored(ours + 1, 20, 20) == usual);
    QVERIFY(restored(ours, "loud", qQNaN()) == usual);
    const struDetectorParameters clamped = restored(ours, -5, 1e12);
    QCOMPARE(clamped.threshold, struDetectorParameters::SmallestThreshold);
    QCOMPARE(clamped.hysteresis, clamped.threshold);
    QCOMPARE(clamped.largestGap, struDetectorParameters::WidestGap);
}

void tst_MainWindow::savesTheSignals()
{
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    const SettingsHome home;
    MainWindow window;
    QVERIFY(window.openRecording(m_path));
    window.playToEnd();
    QTimer::singleShot(0, &window, [&window, &home] {
        auto *const dialog = window.findChild<QFileDialog *>();
        dialog->findChild<QLineEdit *>("fileNameEdit")->setText(home.path("signals"));
        static_cast<QDialog *>(dialog)->accept();
    });
    window.findChild<QAction *>("saveAction")->trigger();
    const QByteArrayList lines = get(home.path("signals.csv")).split('\n');
    QCOMPARE(lines.size(), 4); // headings, two signals, nothing after the last end of line
    QVERIFY(lines.at(1).startsWith("1.000 kHz,"));
}

void tst_MainWindow::logsTracesOfAllThreads()
{
    const int before = PYXTraceWrapper::tracers().size();
    {
        const LogDock dock;
        const auto flood = [] {
            for (int i = 0; i < 5 * LogDock::MaximumLines; ++i)
                PYXTraceWrapper::staticTraceInfo(QString::number(i), nullptr, 0);
            PYXTraceWrapper::staticTraceWarn(QString("antenna lost"), "source\\Rotor", 7);
        };
        std::thread first(flood);
        std::thread second(flood);
        first.join();
        second.join();
        QTRY_VERIFY(logOf(dock).contains("Rotor  antenna lost"));
        QVERIFY(!logOf(dock).contains("source"));
        QVERIFY(dock.findChild<QPlainTextEdit *>()->blockCount() <= LogDock::MaximumLines);
    }
    QCOMPARE(PYXTraceWrapper::tracers().size(), before);
}

void tst_MainWindow::keepsRowsOfKnownSignals()
{
    DetectionModel model;
    QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
    QSignalSpy insertions(&model, &QAbstractItemModel::rowsInserted);
    struDetection first;
    first.id = 1;
    struDetection second;
    second.id = 2;
    model.setDetections({first});
    const QPersistentModelIndex row = model.index(0, DetectionModel::ekColumn_Level);
    first.level = -12.5;
    model.setDetections({first, second});
    QCOMPARE(row.data().toString(), "-12.5 dBFS");
    QCOMPARE(insertions.size(), 2);
    QCOMPARE(resets.size(), 0);
    model.setDetections({second});
    QCOMPARE(resets.size(), 1);
    QCOMPARE(model.rowCount(), 1);
}

void tst_MainWindow::keepsDeveloperDocksToDebugMode()
{
    const SettingsHome home;
    {
        PYXAppInternalsSimple internals;
        internals.setAppModes(PYXAppInternalsSimple::ekAppMode_Debug);
        internals.initialize_PYXAppInternalsImpl();
        MainWindow window;
        window.followModes(&internals);
        window.restoreSettings();
        window.show();
        QVERIFY(window.windowTitle().endsWith(" [debug]"));
        const auto isHidden = [&window](const char *name) {
            const auto *const dock = window.findChild<QDockWidget *>(name);
            return dock->isHidden() && !dock->toggleViewAction()->isVisible();
        };
        auto *const broker = window.findChild<QDockWidget *>("brokerDock");
        QTRY_COMPARE(broker->findChild<QTableView *>()->model()->rowCount() > 0, true);
        window.addDockWidget(Qt::LeftDockWidgetArea, broker);
        window.findChild<QDockWidget *>("scopeDock")->close();
        internals.setAppModes(PYXAppInternalsSimple::ekAppMode_Expert);
        QVERIFY(window.findChild<QDockWidget *>("scopeDock")->isHidden()); // the user does not want it
        QVERIFY(!isHidden("poolDock"));
        internals.overrideAppModes(PYXAppInternalsSimple::ekAppMode_Expert);
        QVERIFY(isHidden("brokerDock") && isHidden("scopeDock") && isHidden("poolDock"));
        QVERIFY(window.windowTitle().endsWith(" [expert]"));
        internals.setAppModes(PYXAppInternalsSimple::ekAppMode_Debug);
        QVERIFY(!isHidden("poolDock"));
        internals.overrideAppModes(0);
        QVERIFY(!window.windowTitle().contains('['));
        window.close();
    }
    MainWindow window;
    window.restoreSettings();
    auto *const broker = window.findChild<QDockWidget *>("brokerDock");
    QVERIFY(broker->isHidden());
    QCOMPARE(window.dockWidgetArea(broker), Qt::LeftDockWidgetArea);
}

void tst_MainWindow::asksBeforeARecordingEnds()
{
    using Box = QDialogButtonBox;
    const SettingsHome home;
    qputenv("HOME", home.path("").toLocal8Bit()); // for the results
    PYXNotification::showAllMessagesAgain();
    MainWindow window;
    QVERIFY(window.openRecording(m_path));
    for (const auto answer : {Box::No, Box::Yes}) {
        window.show();
        window.setRecording(true);
        QTimer::singleShot(0, &window, [&window, answer] {
            window.findChild<PYXNotification *>()->findChild<Box *>()->button(answer)->click();
        });
        QCOMPARE(window.close(), answer == Box::Yes);
        QCOMPARE(window.isHidden(), answer == Box::Yes);
        QCOMPARE(window.findChild<QAction *>("recordAction")->isChecked(), answer == Box::No);
    }
    // "No, and never ask again" must not keep the window open for ever.
    for (const auto stored : {Box::Yes, Box::No}) {
        PYXNotification::setWillShowMessage("BandMonitor", "CloseWhileRecording", false, stored);
        window.show();
        window.setRecording(true);
        bool bAsked = false;
        QTimer::singleShot(0, &window, [&] {
            auto *const question = window.findChild<PYXNotification *>();
            bAsked = question != nullptr;
            if (bAsked)
                question->findChild<Box *>()->button(Box::Yes)->click();
        });
        QVERIFY(window.close());
        QCOMPARE(bAsked, stored == Box::No);
    }
    PYXNotification::showAllMessagesAgain();
}

void tst_MainWindow::announcesNewSignals()
{
    const Rows<QList<int>, QList<int>, QString> rows = {
        {"one", {}, {1}, "New signal at 1.000 kHz"},
        {"one after another", {1}, {1, 2}, "New signals at 1.000 kHz, 2.000 kHz"},
        {"fragment", {1, 2}, {2}, "New signal at 2.000 kHz"},
        {"many",
         {},
         {1, 2, 3, 4, 5, 6},
         "New signals at 1.000 kHz, 2.000 kHz, 3.000 kHz, 4.000 kHz and 2 more"}};
    const auto detections = [](const QList<int> &ids) {
        std::vector<struDetection> list(std::size_t(ids.size()));
        for (std::size_t i = 0; i < list.size(); ++i) {
            list[i].id = ids.at(int(i));
            list[i].frequency = 1000 * list[i].id;
        }
        return list;
    };
    forRows(rows, [&](const QList<int> &first, const QList<int> &then, const QString &text) {
        QWidget window;
        SignalPopups popups(&window);
        popups.setIntervals(50, 600'000);
        QSignalSpy announced(&popups, &SignalPopups::si_announced);
        popups.setDetections(detections({9})); // while it is disabled: no news
        popups.setEnabled(true);
        popups.setDetections(detections(QList<int>{9} + first));
        popups.setDetections(detections(QList<int>{9} + then));
        QTRY_COMPARE(announced.size(), 1);
        QCOMPARE(announced.at(0).at(0).toString().replace(QChar(QChar::Nbsp), ' '), text);
        popups.setDetections(detections({7, 8})); // too soon after
        QVERIFY(!announced.wait(150));
    });
}

void tst_MainWindow::takesTheRecordingOfASecondStart()
{
    const QTemporaryDir runtimeDirectory;
    qputenv("XDG_RUNTIME_DIR", runtimeDirectory.path().toLocal8Bit());
    PYXRuntime::PYXSingleInstance instance("PYXRuntime/Band Monitor"); // as the program calls itself
    QCOMPARE(instance.start(), PYXRuntime::PYXSingleInstance::ekFirst);
    PYXAppInternalsSimple internals;
    MainWindow window;
    takeSecondStarts(&instance, &internals, &window);
    window.showMinimized();

    QProcess second;
    second.setWorkingDirectory(m_directory.path());
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert("PATH", QDir::toNativeSeparators(QCoreApplication::applicationDirPath()) +
                                   QDir::listSeparator() + environment.value("PATH"));
    second.setProcessEnvironment(environment);
    second.start(QCoreApplication::applicationDirPath() + "/bandmonitor",
                 {"++expert", "--dark", "tones.wav"});
    QTRY_COMPARE_WITH_TIMEOUT(second.state(), QProcess::NotRunning, 30'000);
    QCOMPARE(second.exitCode(), 0);
    QTRY_VERIFY(window.monitor() != nullptr);
    QCOMPARE(window.monitor()->source().name(), "tones.wav");
    QVERIFY(!window.isMinimized());
    QCOMPARE(internals.appIsInExpertMode(), true);
}

QTEST_MAIN(tst_MainWindow)
#include "tst_MainWindow.moc"
