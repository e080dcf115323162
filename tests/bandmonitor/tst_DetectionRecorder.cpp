// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "BandGenerator.h"
#include "DataRows.h"
#include "DetectionRecorder.h"
#include "FileContents.h"
#include "FileModel.h"
#include "SignalMonitor.h"
#include "WavReader.h"

#include <PYXFileListImpl.h>

#include <QtTest/QtTest>

#include <cmath>

using namespace BandMonitor;
using PYXRuntime::PYXFileListImpl;

namespace {

constexpr double SampleRate = 8000;
constexpr double Frequency = 1000;

/** Silence, with a tone from the third second to the seventh. */
class Source final : public SampleSource
{
public:
    explicit Source(bool bComplex)
        : m_bComplex(bComplex)
    {}
    QString name() const override { return "test"; }
    QString coding() const override { return "test"; }
    double sampleRate() const override { return SampleRate; }
    bool isComplex() const override { return m_bComplex; }
    double duration() const override { return 10; }
    std::size_t read(Sample *samples, std::size_t count) override
    {
        std::size_t read = 0;
        for (; read < count && m_time < duration(); ++read, m_time += 1 / SampleRate) {
            const double phase = 6.283185307179586 * Frequency * m_time;
            const float level = m_time >= 3 && m_time < 7 ? 0.5F : 0.0F;
            samples[read] = {level * float(std::cos(phase)), m_bComplex ? level * float(std::sin(phase)) : 0};
        }
        return read;
    }

private:
    const bool m_bComplex;
    double m_time = 0;
};

} // namespace

class tst_DetectionRecorder : public QObject
{
    Q_OBJECT
private slots:
    void init() { m_directory.reset(new QTemporaryDir); }
    void writesTableAndSnippet_data();
    void writesTableAndSnippet();
    void complainsOnce();

private:
    QStringList files(const QString &pattern) const
    {
        return QDir(m_directory->path()).entryList({pattern}, QDir::Files);
    }

    QScopedPointer<QTemporaryDir> m_directory;
};

void tst_DetectionRecorder::writesTableAndSnippet_data()
{
    addRows({"complex"}, Rows<bool>{{"real", false}, {"I/Q", true}});
}

void tst_DetectionRecorder::writesTableAndSnippet()
{
    QFETCH(bool, complex);
    PYXFileListImpl::getInstance()->clear("Detections");
    PYXFileListImpl::getInstance()->clear("Snippets");
    SignalMonitor monitor(std::make_unique<Source>(complex));
    {
        DetectionRecorder recorder(m_directory->path());
        recorder.setMonitor(&monitor);
        while (monitor.advance(0.05))
            continue;
    }
    QCOMPARE(files("detections_*.csv").size(), 1);
    const QByteArrayList lines = get(m_directory->filePath(files("detections_*.csv").first())).split('\n');
    QCOMPARE(lines.size(), 4); // headings, on, off, and the end of the last line
    QVERIFY(lines.at(1).contains(",on,1,1000."));
    QVERIFY(lines.at(2).contains(",off,1,1000."));

    QCOMPARE(files("snippet_*.wav"), files("snippet_1000Hz_*.wav"));
    QCOMPARE(files("snippet_*.wav").size(), 1);
    QString error;
    const auto snippet = WavReader::open(m_directory->filePath(files("snippet_*.wav").first()), &error);
    QVERIFY2(snippet != nullptr, qPrintable(error));
    QCOMPARE(snippet->isComplex(), complex);
    QCOMPARE(snippet->sampleRate(), SampleRate);
    QVERIFY2(std::abs(snippet->duration() - 3) < 0.1, qPrintable(QString::number(snippet->duration())));
    std::vector<Sample> samples(std::size_t(3 * SampleRate));
    samples.resize(snippet->read(samples.data(), samples.size()));
    QCOMPARE(samples.front(), Sample(0, 0)); // the time before the signal
    QVERIFY(std::abs(std::abs(samples.back()) - (complex ? 0.5F : std::abs(samples.back().real()))) < 1e-3F);

    const FileModel model;
    QCOMPARE(model.rowCount(), 2);
    QCOMPARE(model.index(1, FileModel::ekColumn_Component).data().toString(), "Snippets");
    QCOMPARE(model.path(1), m_directory->filePath(files("snippet_*.wav").first()));
}

void tst_DetectionRecorder::complainsOnce()
{
    SignalMonitor monitor(std::make_unique<Source>(true));
    DetectionRecorder recorder(m_directory->filePath("missing"));
    QSignalSpy failed(&recorder, &DetectionRecorder::si_failed);
    recorder.setMonitor(&monitor);
    while (monitor.advance(0.05))
        continue;
    QCOMPARE(failed.size(), 1);
}

QTEST_GUILESS_MAIN(tst_DetectionRecorder)
#include "tst_DetectionRecorder.moc"
