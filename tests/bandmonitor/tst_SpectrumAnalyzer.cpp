// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "SpectrumAnalyzer.h"

#include "BandGenerator.h"
#include "DataRows.h"

#include <QtTest/QtTest>

#include <algorithm>
#include <cmath>
#include <numeric>

using namespace BandMonitor;

namespace {

std::vector<struSpectrum> spectraOf(const BandGenerator::struSettings &settings, double seconds)
{
    BandGenerator band(settings);
    std::vector<Sample> samples(std::size_t(seconds * settings.sampleRate));
    band.read(samples.data(), samples.size());
    SpectrumAnalyzer analyzer(settings.sampleRate, settings.bComplex);
    return analyzer.feed(samples.data(), samples.size());
}

BandGenerator::struSettings tone(double rate, bool complex, double frequency, double level)
{
    return {rate, complex, -160, 1, {{BandGenerator::ekModulation_None, frequency, level, 0, 0, 0, 0}}};
}

} // namespace

class tst_SpectrumAnalyzer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showsAToneAtItsPlaceAndLevel();
    void showsNoiseAtItsLevel();
    void hidesNothingBesideAStrongTone();
    void finishesWhatIsLeft();
};

void tst_SpectrumAnalyzer::showsAToneAtItsPlaceAndLevel()
{
    const Rows<double, bool, double, double> rows = {
        {"real, full scale", 48000, false, 9000, 0}, {"real, -60 dBFS", 48000, false, 750, -60},
        {"real, low rate", 8000, false, 3000, -6},   {"I/Q, above", 96000, true, 12000, 0},
        {"I/Q, below", 96000, true, -30000, -20},    {"I/Q, high rate", 2048000, true, -600000, -3}};
    forRows(rows, [](double rate, bool bComplex, double frequency, double level) {
        const auto spectra = spectraOf(tone(rate, bComplex, frequency, level), 0.3);
        QVERIFY(!spectra.empty());
        for (const struSpectrum &spectrum : spectra) {
            QCOMPARE(spectrum.firstFrequency, bComplex ? -rate / 2 : 0.0);
            QVERIFY(std::abs(spectrum.frequency(double(spectrum.power.size()) - 1) - rate / 2) <=
                    spectrum.binWidth);
            const auto peak = std::max_element(spectrum.power.begin(), spectrum.power.end());
            const double bin = double(peak - spectrum.power.begin());
            QVERIFY(std::abs(spectrum.frequency(bin) - frequency) <= spectrum.binWidth / 2);
            // Half a bin away from the middle the window loses 0.83 dB.
            const double shown = levelOfPower(double(*peak));
            QVERIFY2(shown < level + 0.01 && shown > level - 0.84, qPrintable(QString::number(shown)));
        }
    });
}

void tst_SpectrumAnalyzer::showsNoiseAtItsLevel()
{
    for (const bool bComplex : {false, true}) {
        double sum = 0;
        const auto spectra = spectraOf({48000, bComplex, -20, 7, {}}, 3);
        for (const struSpectrum &spectrum : spectra) {
            const double power = std::accumulate(spectrum.power.begin(), spectrum.power.end(), 0.0);
            sum += power / spectrum.noiseBandwidth / double(spectra.size());
        }
        QVERIFY2(std::abs(levelOfPower(sum) + 20) < 0.1, qPrintable(QString::number(levelOfPower(sum))));
    }
}

void tst_SpectrumAnalyzer::hidesNothingBesideAStrongTone()
{
    const struSpectrum spectrum = spectraOf(tone(48000, false, 5003, 0), 0.3).back();
    for (std::size_t bin = 0; bin < spectrum.power.size(); ++bin) {
        if (std::abs(spectrum.frequency(double(bin)) - 5003) > 6 * spectrum.binWidth)
            QVERIFY(levelOfPower(double(spectrum.power[bin])) < -90);
    }
}

void tst_SpectrumAnalyzer::finishesWhatIsLeft()
{
    SpectrumAnalyzer analyzer(48000, false);
    const std::vector<Sample> samples(analyzer.transformSize(), Sample(0.5F, 0));
    QVERIFY(analyzer.feed(samples.data(), samples.size() - 1).empty());
    QVERIFY(analyzer.finish().empty());
    QVERIFY(analyzer.feed(samples.data(), samples.size()).empty());
    QCOMPARE(int(analyzer.finish().size()), 1);
}

QTEST_GUILESS_MAIN(tst_SpectrumAnalyzer)
#include "tst_SpectrumAnalyzer.moc"
