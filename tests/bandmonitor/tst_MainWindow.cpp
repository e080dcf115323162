// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "MainWindow.h"

#include "DetectionModel.h"
#include "DetectorDialog.h"
#include "LogDock.h"
#include "RecentRecordings.h"
#include "SignalMonitor.h"

#include "SettingsHome.h"
#include "WavBytes.h"

#include <PYXTraceWrapper.h>

#include <QtCore/QLocale>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>
#include <QtWidgets/QAction>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QTableView>

#include <cmath>
#include <thread>

using namespace BandMonitor;
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
        QVERIFY(WavBytes::write(m_path, recording()));
    }
    void showsWhatIsInARecording();
    void playsInTime();
    void complainsAboutWhatIsNoRecording();
    void goesOnAsItWasClosed();
    void keepsTheNewestRecordings();
    void refusesOddDetectorParameters();
    void tellsWhereItsSettingsAre();
    void savesTheSignals();
    void logsTracesOfOtherThreads();
    void keepsTheLogBounded();
    void keepsRowsOfKnownSignals();

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

void tst_MainWindow::complainsAboutWhatIsNoRecording()
{
    MainWindow window;
    window.openOwnBand();
    const SignalMonitor *const before = window.monitor();
    QVERIFY(!window.openRecording(m_directory.filePath("missing.wav")));
    const auto *const box = window.findChild<QMessageBox *>();
    QVERIFY(box != nullptr);
    QVERIFY(box->informativeText().contains("missing.wav"));
    QCOMPARE(window.monitor(), before);
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
        window.setDark(true);
        window.findChild<LogDock *>()->hide();
        QVERIFY(window.openRecording(m_path));
        QTimer::singleShot(0, &window, [&window] {
            auto *const dialog = window.findChild<DetectorDialog *>();
            dialog->findChild<QSpinBox *>("gapBox")->setValue(struDetectorParameters::WidestGap);
            dialog->accept();
        });
        window.findChild<QAction *>("detectorAction")->trigger();
        window.playToEnd();
        QCOMPARE(tableOf(window).rowCount(), 1); // two tones are no longer two signals
        window.close();
        window.setDark(false);
    }
    MainWindow window;
    window.restoreSettings();
    QVERIFY(isDark());
    QCOMPARE(window.size(), QSize(700, 500));
    QVERIFY(window.findChild<LogDock *>()->isHidden());
    window.setDark(false);

    auto *const recent = window.findChild<RecentRecordings *>();
    Q_EMIT recent->aboutToShow();
    QVERIFY(recent->actions().constFirst()->text().contains("tones.wav"));
    recent->actions().constFirst()->trigger();
    window.playToEnd();
    QCOMPARE(tableOf(window).rowCount(), 1);
}

void tst_MainWindow::keepsTheNewestRecordings()
{
    const SettingsHome home;
    const auto path = [&home](int number) { return home.path(QString("%1 & more.wav").arg(number)); };
    for (int i = 0; i < 2 * RecentRecordings::MaximumCount; ++i)
        RecentRecordings::add(path(i));
    RecentRecordings::add(path(12));
    QCOMPARE(RecentRecordings::paths().size(), RecentRecordings::MaximumCount);
    QCOMPARE(RecentRecordings::paths().mid(0, 3), QList<QString>({path(12), path(15), path(14)}));
    RecentRecordings menu;
    QCOMPARE(menu.actions().constFirst()->text(), "&1  12 && more.wav");
    QVERIFY(!menu.actions().constFirst()->isEnabled()); // the file is gone
    menu.actions().constLast()->trigger();
    QVERIFY(RecentRecordings::paths().isEmpty());
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

void tst_MainWindow::tellsWhereItsSettingsAre()
{
    const SettingsHome home;
    MainWindow window;
    window.findChild<QAction *>("aboutAction")->trigger();
    const auto *const box = window.findChild<QMessageBox *>("aboutBox");
    QVERIFY(box != nullptr);
    QVERIFY(box->informativeText().contains(QDir::toNativeSeparators(home.path("user"))));
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
    QFile saved(home.path("signals.csv"));
    QVERIFY(saved.open(QIODevice::ReadOnly));
    const QByteArrayList lines = saved.readAll().split('\n');
    QCOMPARE(lines.size(), 4); // headings, two signals, nothing after the last end of line
    QVERIFY(lines.at(1).startsWith("1.000 kHz,"));
}

void tst_MainWindow::logsTracesOfOtherThreads()
{
    const int before = PYXTraceWrapper::tracers().size();
    {
        const LogDock dock;
        std::thread([] {
            PYXTraceWrapper::staticTraceWarn(QString("antenna lost"), "source\\Rotor", 7);
        }).join();
        QTRY_VERIFY(logOf(dock).contains("Rotor  antenna lost"));
        QVERIFY(!logOf(dock).contains("source"));
    }
    QCOMPARE(PYXTraceWrapper::tracers().size(), before);
}

void tst_MainWindow::keepsTheLogBounded()
{
    const LogDock dock;
    const auto flood = [] {
        for (int i = 0; i < 5 * LogDock::MaximumLines; ++i)
            PYXTraceWrapper::staticTraceInfo(QString::number(i), nullptr, 0);
    };
    std::thread first(flood);
    std::thread second(flood);
    first.join();
    second.join();
    PYXTraceWrapper::staticTraceInfo(QString("the end"), nullptr, 0);
    QTRY_VERIFY(logOf(dock).contains("the end"));
    QVERIFY(dock.findChild<QPlainTextEdit *>()->blockCount() <= LogDock::MaximumLines);
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

QTEST_MAIN(tst_MainWindow)
#include "tst_MainWindow.moc"
