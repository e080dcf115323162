// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "BandGenerator.h"
#include "HeadlessRun.h"
#include "SignalMonitor.h"
#include "WavReader.h"

#include "DataRows.h"

#include <QtTest/QtTest>

#include <algorithm>
#include <cmath>
#include <map>

using namespace BandMonitor;

namespace {

constexpr double SpectrumTime = 0.13; // in seconds, rounded up

using Band = BandGenerator::struSettings;
using Transmitter = BandGenerator::struTransmitter;

std::vector<struDetection> detectionsOf(const Band &band, double seconds)
{
    SignalMonitor monitor(std::make_unique<BandGenerator>(band));
    monitor.advance(seconds);
    std::vector<struDetection> detections = monitor.detector().detections();
    std::sort(detections.begin(), detections.end(),
              [](const auto &a, const auto &b) { return a.frequency < b.frequency; });
    return detections;
}

QString listOf(const std::vector<struDetection> &detections)
{
    QStringList frequencies;
    for (const struDetection &detection : detections)
        frequencies += QString::number(detection.frequency);
    return frequencies.join(' ');
}

bool isNear(double value, double expected, double tolerance)
{
    const bool bNear = std::abs(value - expected) <= tolerance;
    if (!bNear)
        qWarning("%f instead of %f", value, expected);
    return bNear;
}

Band carriers(double rate, bool complex, const std::vector<std::pair<double, double>> &frequenciesAndLevels,
              double noise = -40)
{
    Band band{rate, complex, noise, 3, {}};
    for (const auto &[frequency, level] : frequenciesAndLevels)
        band.transmitters.push_back({BandGenerator::ekModulation_None, frequency, level, 0, 0, 0, 0});
    return band;
}

/** Equal spectra, one a second: the powers of bins in multiples of the floor. */
struct struSpectra
{
    int count;
    std::map<int, double> bins;
};
using Course = std::vector<struSpectra>;

std::vector<struDetection> detectionsAfter(const Course &course, double floor)
{
    SignalDetector detector;
    struSpectrum spectrum;
    spectrum.binWidth = 1;
    for (const auto &[count, bins] : course) {
        spectrum.power.assign(512, float(floor));
        for (const auto &[bin, ratio] : bins)
            spectrum.power[std::size_t(bin)] = float(floor * ratio);
        for (int i = 0; i < count; ++i, spectrum.time += 1)
            detector.process(spectrum);
    }
    return detector.detections();
}

} // namespace

class tst_SignalDetector : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QLocale::setDefault(QLocale::c()); }
    void findsCarriers();
    void decidesAtItsLimits();
    void measuresBinByBin();
    void findsNothingInNoise();
    void measuresTheWidthOfASignal();
    void followsASignalThatComesAndGoes();
    void printsATable();
    void findsWhatSoxHasMade();
};

void tst_SignalDetector::findsCarriers()
{
    const Rows<Band> rows = {
        {"real", carriers(48000, false, {{1000, -60}, {5003, -10}, {12345, -45}, {23000, -30}})},
        {"I/Q", carriers(96000, true, {{-45000, -30}, {-333, -55}, {20005, 0}, {20505, -50}})},
        {"low rate", carriers(8000, false, {{700, -20}, {1900, -40}})},
        {"without noise", carriers(48000, false, {{6000, -10}}, -400)},
        {"high rate", carriers(250000, true, {{-31234, -40}, {62500, -10}})}};
    forRows(rows, [](const Band &band) {
        const std::vector<struDetection> detections = detectionsOf(band, 2);
        QVERIFY2(detections.size() == band.transmitters.size(), qPrintable(listOf(detections)));
        SpectrumAnalyzer analyzer(band.sampleRate, band.bComplex);
        const double bin = band.sampleRate / double(analyzer.transformSize());
        for (std::size_t i = 0; i < detections.size(); ++i) {
            QVERIFY(isNear(detections[i].frequency, band.transmitters[i].frequency, bin));
            QVERIFY(isNear(detections[i].level, band.transmitters[i].level, 1));
            QVERIFY(detections[i].bandwidth < 8 * bin);
            QVERIFY(isNear(detections[i].firstSeen, 0, SpectrumTime));
            QVERIFY(isNear(detections[i].lastSeen, 2, 2 * SpectrumTime));
            QVERIFY(detections[i].bOnAir);
        }
    });
}

void tst_SignalDetector::decidesAtItsLimits()
{
    const struSpectra strong{20, {{100, 20}}};
    const struSpectra silence{20, {}};
    const struSpectra wide{20, {{100, 20}, {116, 20}, {132, 20}, {148, 20}, {164, 20}, {180, 20}}};
    // Floor; what comes; what is found: bin, whether it is on air, begin.
    const Rows<double, Course, QString> rows = {
        {"below 10 dB", 1e-8, {{20, {{100, 9.9}}}}, ""},
        {"above 10 dB", 1e-8, {{20, {{100, 10.1}}}}, "100+0"},
        {"too short", 1e-8, {{2, {{100, 20}}}}, ""},
        {"just long enough", 1e-8, {{3, {{100, 20}}}}, "100+0"},
        {"weak but kept", 1e-8, {strong, {20, {{100, 5.2}}}, {1, {{100, 11}}}}, "100+0"},
        {"weak and lost", 1e-8, {strong, {20, {{100, 4.8}}}, {1, {{100, 11}}}}, "100-0"},
        {"kept over a short pause", 1e-8, {strong, {7, {}}, {1, {{100, 20}}}}, "100+0"},
        {"lost in a longer pause", 1e-8, {strong, {8, {}}, {1, {{100, 20}}}}, "100-0"},
        {"begin with a flash before", 1e-8, {{1, {{100, 20}}}, {5, {}}, {3, {{100, 20}}}}, "100+0"},
        {"begin after a flash", 1e-8, {{1, {{100, 20}}}, {6, {}}, {3, {{100, 20}}}}, "100+7"},
        {"one signal with a gap", 1e-8, {{20, {{100, 20}, {117, 20}}}}, "109+0"},
        {"two signals", 1e-8, {{20, {{100, 20}, {118, 20}}}}, "100+0 118+0"},
        {"moved a little",
         1e-8,
         {strong, silence, {20, {{116, 20}}}},
         "111+0"}, // of what it was and what it is
        {"another beside it", 1e-8, {strong, silence, {20, {{117, 20}}}}, "100-0 117+40"},
        {"a part of a wide one", 1e-8, {wide, silence, {20, {{200, 20}}}}, "163+0"},
        {"another beside a wide one", 1e-8, {wide, silence, {20, {{201, 20}}}}, "140-0 201+40"},
        {"weaker than what the window leaks", 1e-12, {{20, {{100, 1e12}, {300, 2900}}}}, "100+0"},
        {"stronger than that", 1e-12, {{20, {{100, 1e12}, {300, 3100}}}}, "100+0 300+0"},
        {"below the last bit", 1e-15, {{20, {{100, 900}}}}, ""},
        {"above the last bit", 1e-15, {{20, {{100, 1100}}}}, "100+0"}};
    forRows(rows, [](double floor, const Course &course, const QString &expected) {
        QStringList found;
        for (const struDetection &detection : detectionsAfter(course, floor))
            found += QString("%1%2%3")
                         .arg(qRound(detection.frequency))
                         .arg(detection.bOnAir ? '+' : '-')
                         .arg(detection.firstSeen);
        QCOMPARE(found.join(' '), expected);
    });
}

void tst_SignalDetector::measuresBinByBin()
{
    // What the window spreads is part of the signal, up to three bins away.
    const struSpectra carrier{1000, {{100, 101}, {97, 6}, {104, 6}}};
    const struSpectra louder{1, {{100, 1101}, {97, 6}, {104, 6}}};
    const struDetection steady = detectionsAfter({carrier}, 1e-8).at(0);
    QVERIFY(isNear(steady.frequency, 100 - 3.0 * 5 / 105, 1e-3));
    QVERIFY(isNear(steady.level, levelOfPower(105e-8), 0.01));
    const struDetection alone = detectionsAfter({{20, {{100, 101}}}}, 1e-8).at(0);
    QVERIFY(isNear(alone.bandwidth, 0.99, 1e-4));
    // A new spectrum counts for 6 %.
    QVERIFY(isNear(detectionsAfter({carrier, louder}, 1e-8).at(0).level, levelOfPower(165e-8), 0.01));
}

void tst_SignalDetector::findsNothingInNoise()
{
    const Band bands[] = {{48000, false, -20, 1, {}}, {48000, true, -60, 2, {}}, {48000, false, -400, 1, {}}};
    for (const Band &band : bands) {
        const std::vector<struDetection> detections = detectionsOf(band, 8);
        QVERIFY2(detections.empty(), qPrintable(listOf(detections)));
    }
}

void tst_SignalDetector::measuresTheWidthOfASignal()
{
    const struct
    {
        BandGenerator::eModulation modulation;
        double deviation;
        double least;
        double most;
    } cases[] = {
        // Two tones 850 Hz apart, switched 100 times a second, take a little more than their distance.
        {BandGenerator::ekModulation_Data, 425, 850, 1250},
        // Carson's rule, 2 (deviation + highest frequency of the voice), is for the loudest moments.
        {BandGenerator::ekModulation_Voice, 2500, 2500, 7000},
    };
    for (const auto &[modulation, deviation, least, most] : cases) {
        for (unsigned seed = 1; seed <= 3; ++seed) {
            const Transmitter transmitter{modulation, -7000, -15, deviation, 0, 0, 0};
            const auto detections = detectionsOf({48000, true, -40, seed, {transmitter}}, 6);
            QVERIFY2(detections.size() == 1, qPrintable(listOf(detections)));
            QVERIFY(isNear(detections[0].frequency, -7000, deviation / 10));
            QVERIFY(isNear(detections[0].level, -15, 1));
            QVERIFY(isNear(detections[0].bandwidth, (least + most) / 2, (most - least) / 2));
        }
    }
}

void tst_SignalDetector::followsASignalThatComesAndGoes()
{
    // On from 2 to 3.5 s and from 7 to 8.5 s.
    Band band = carriers(48000, false, {{4000, -30}, {9000, -25}});
    band.transmitters[1].firstStart = 2;
    band.transmitters[1].onTime = 1.5;
    band.transmitters[1].period = 5;
    SignalMonitor monitor(std::make_unique<BandGenerator>(band));
    int id = 0;
    const auto check = [&](double time, bool bOnAir, double lastSeen) {
        monitor.advance(time - monitor.time());
        const auto detections = monitor.detector().detections();
        QVERIFY2(detections.size() == 2, qPrintable(listOf(detections)));
        const struDetection &detection = detections[1];
        id = id == 0 ? detection.id : id;
        QCOMPARE(detection.id, id);
        QCOMPARE(detection.bOnAir, bOnAir);
        QVERIFY(isNear(detection.frequency, 9000, 12));
        QVERIFY(isNear(detection.level, -25, 1));
        QVERIFY(isNear(detection.firstSeen, 2, SpectrumTime));
        QVERIFY(isNear(detection.lastSeen, lastSeen, SpectrumTime));
        QVERIFY(detections[0].bOnAir);
    };
    monitor.advance(1.9);
    QCOMPARE(int(monitor.detector().detections().size()), 1);
    check(5, false, 3.5);
    check(8, true, 8 - SpectrumTime);
    check(11, false, 8.5);
}

void tst_SignalDetector::printsATable()
{
    const QStringList lines =
        detectionReport(std::make_unique<BandGenerator>(BandGenerator::ownBand())).split('\n');
    QCOMPARE(lines.size(), 10); // heading, columns, seven signals, and the end of the last line
    const QRegularExpression row(
        "^ *-?[0-9.]+ k?Hz +[0-9.]+ k?Hz +-[0-9.]+ dBFS +0:[0-9]{2}\\.[0-9] +0:[0-9]{2}\\.[0-9]$");
    for (int i = 2; i < 9; ++i)
        QVERIFY2(row.match(lines[i]).hasMatch() && lines[i].size() == lines[1].size(), qPrintable(lines[i]));
}

void tst_SignalDetector::findsWhatSoxHasMade()
{
    const QString sox = QStandardPaths::findExecutable("sox");
    if (sox.isEmpty())
        QSKIP("sox is not installed");
    const QTemporaryDir directory;
    const QString path = directory.filePath("sox.wav");
    const QString command = "-R -r 44100 -n -b 24 %1 synth 4 sine 1234 sine 15000 whitenoise "
                            "remix -p 1v0.1,2v0.01,3v0.003";
    QCOMPARE(QProcess::execute(sox, command.arg(path).split(' ')), 0);
    QString error;
    SignalMonitor monitor(WavReader::open(path, &error));
    QVERIFY2(error.isEmpty(), qPrintable(error));
    while (monitor.advance(1))
        continue;
    const auto detections = monitor.detector().detections();
    QVERIFY2(detections.size() == 2, qPrintable(listOf(detections)));
    QVERIFY(isNear(detections[0].frequency, 1234, 12) && isNear(detections[1].frequency, 15000, 12));
    QVERIFY(isNear(detections[0].level, -20, 1) && isNear(detections[1].level, -40, 1));
}

QTEST_GUILESS_MAIN(tst_SignalDetector)
#include "tst_SignalDetector.moc"
