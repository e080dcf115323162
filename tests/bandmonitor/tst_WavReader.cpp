// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "WavReader.h"

#include "DataRows.h"
#include "FileContents.h"
#include "WavBytes.h"

#include <QtTest/QtTest>

#include <cctype>
#include <cmath>
#include <limits>

using namespace BandMonitor;
using namespace WavBytes;

namespace {

QByteArray number24(int value)
{
    return number32(value).left(3);
}

QByteArray extensible(int subFormat, int bits, const QByteArray &tail)
{
    QByteArray content = formatChunk(0xfffe, 1, bits).mid(8);
    return chunk("fmt ", content + number16(22) + number16(bits) + number32(4) + number16(subFormat) + tail);
}

const QByteArray KnownTail = QByteArray::fromHex("000000001000800000aa00389b71");

std::vector<Sample> samplesOf(SampleSource &source)
{
    // One more than there are: the end must be noticed.
    std::vector<Sample> samples(std::size_t(std::lround(source.duration() * source.sampleRate())) + 1);
    samples.resize(source.read(samples.data(), samples.size()));
    return samples;
}

} // namespace

class tst_WavReader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsEveryFormat();
    void tellsWhatIsWrong();
    void survivesBeingCutAtEveryByte();
    void readsInBlocks();

private:
    std::unique_ptr<WavReader> _open(const QByteArray &bytes)
    {
        put(m_directory.filePath("test.wav"), bytes);
        m_error.clear();
        return WavReader::open(m_directory.filePath("test.wav"), &m_error);
    }

    QTemporaryDir m_directory;
    QString m_error;
};

void tst_WavReader::readsEveryFormat()
{
    const QByteArray pcm16 = formatChunk(1, 1, 16);
    const QByteArray two = number16(-16384) + number16(8192);
    const QByteArray ds64 = chunk("ds64", number(qint64(0)) + number(qint64(4)) + number(qint64(2)));
    const QVector<float> values{-0.5, 0.25};
    const auto noNumber = number(std::numeric_limits<float>::quiet_NaN());
    const Rows<QByteArray, QVector<float>> rows = {
        {"8 bit", formatChunk(1, 1, 8) + chunk("data", QByteArray("\x00\x80\xc0", 3)), {-1, 0, 0.5}},
        {"16 bit", pcm16 + chunk("data", number16(-32768) + two), {-1, -0.5, 0.25}},
        {"24 bit",
         formatChunk(1, 1, 24) + chunk("data", number24(-8388608) + number24(1) + number24(4194304)),
         {-1, 1 / 8388608.0F, 0.5}},
        {"32 bit",
         formatChunk(1, 1, 32) + chunk("data", number(qint32(INT_MIN)) + number(qint32(0x40000000))),
         {-1, 0.5}},
        {"32 bit float", formatChunk(3, 1, 32) + chunk("data", number(-0.25F) + number(1.5F)), {-0.25, 1.5}},
        {"64 bit float", formatChunk(3, 1, 64) + chunk("data", number(-0.25) + number(1e300)), {-0.25, 1e9F}},
        {"float that is none", formatChunk(3, 1, 32) + chunk("data", noNumber + number(0.5F)), {0, 0.5}},
        {"I/Q", formatChunk(1, 2, 16) + chunk("data", two + two), {-0.5, 0.25, -0.5, 0.25}},
        {"extensible PCM", extensible(1, 16, KnownTail) + chunk("data", two), values},
        {"extensible float", extensible(3, 32, KnownTail) + chunk("data", number(0.125F)), {0.125}},
        {"odd sizes", chunk("LIST", "odd") + pcm16 + chunk("fact", "x") + chunk("data", two), values},
        {"chunks after the data", pcm16 + chunk("data", two) + chunk("LIST", "abcd"), values},
        {"data length of zero", pcm16 + "data" + number32(0) + two, values},
        {"data length of the largest number", pcm16 + "data" + number32(0xffffffff) + two, values},
        {"data length beyond the end", pcm16 + "data" + number32(1000000000) + two, values},
        {"half a sample at the end", pcm16 + "data" + number32(5) + two + "x", values},
        {"RF64", ds64 + pcm16 + "data" + number32(0xffffffff) + two + chunk("LIST", "abcd"), values}};
    for (const auto &[name, chunks, expected] : rows) {
        const auto reader = _open(riff(chunks).replace(0, 4, qstrcmp(name, "RF64") == 0 ? "RF64" : "RIFF"));
        QVERIFY2(reader, qPrintable(name + m_error));
        QCOMPARE(reader->sampleRate(), 48000.0);
        QCOMPARE(reader->isComplex(), qstrcmp(name, "I/Q") == 0);
        if (std::isdigit(*name) != 0)
            QCOMPARE(reader->coding(), QString(name));
        QVector<float> found;
        for (const Sample &sample : samplesOf(*reader)) {
            found += sample.real();
            if (reader->isComplex())
                found += sample.imag();
            else
                QCOMPARE(sample.imag(), 0.0F);
        }
        QCOMPARE(found, expected);
    }
}

void tst_WavReader::tellsWhatIsWrong()
{
    const QByteArray samples = chunk("data", QByteArray(64, 'x'));
    const QByteArray pcm16 = formatChunk(1, 1, 16);
    const auto check = [&](const QByteArray &bytes, const QString &complaint) {
        QVERIFY2(!_open(bytes), qPrintable(complaint));
        QVERIFY(m_error.contains("test.wav"));
        QCOMPARE(m_error.section("\" ", 1), complaint + '.');
    };
    check("", "is empty");
    check("Dear Sir or Madam, ", "is not a WAV file");
    check(riff({}).replace(8, 4, "AVI "), "is a RIFF file of type \"AVI \", not a WAV file");
    check(riff({}).replace(0, 4, "RIFX"), "is a big-endian WAV file, which is not supported");
    check(riff({}).left(9), "is cut off within its first 12 bytes");
    check(riff({}), "has no format chunk");
    check(riff(pcm16), "has no data chunk");
    check(riff(pcm16 + chunk("data", {})), "holds no samples");
    check(riff(pcm16 + "data" + number32(1) + "x"), "holds no samples");
    check(riff(samples + pcm16), "has no format chunk before its samples");
    check(riff(pcm16).left(30), "ends inside its chunk \"fmt \", before any samples");
    check(riff(pcm16 + "LI\x01T" + number32(0xfffffff0) + "x"),
          "ends inside its chunk \"LI?T\", before any samples");
    check(riff(chunk("junk", {}).repeated(2000)), "has more than 1000 chunks before its samples");

    const auto checkFormat = [&](const QByteArray &format, const char *complaint) {
        check(riff(format + samples), complaint);
    };
    checkFormat(chunk("fmt ", "1234"), "has a format chunk of only 4 bytes");
    checkFormat(formatChunk(0xfffe, 1, 16), "has an extensible format chunk of only 16 bytes");
    checkFormat(extensible(1, 16, QByteArray(14, 'x')), "has samples in an unknown coding");
    checkFormat(formatChunk(0x55, 1, 16), "is compressed (MPEG); only PCM and float samples can be read");
    checkFormat(formatChunk(0x1234, 1, 16), "is compressed (0x1234); only PCM and float samples can be read");
    checkFormat(formatChunk(1, 0, 16), "has 0 channels; it takes one (real) or two (I/Q)");
    checkFormat(formatChunk(1, 6, 16), "has 6 channels; it takes one (real) or two (I/Q)");
    checkFormat(formatChunk(1, 1, 16, 0), "claims a sample rate of zero");
    checkFormat(formatChunk(1, 1, 12), "has PCM samples of 12 bits");
    checkFormat(formatChunk(3, 1, 16), "has float samples of 16 bits");
    checkFormat(QByteArray(pcm16).replace(20, 2, number16(7)), "claims 7 bytes for samples that take 2");

    QVERIFY(!WavReader::open(m_directory.path(), &m_error) && m_error.endsWith("\" is not a file."));
    QVERIFY(!WavReader::open(m_directory.filePath("missing.wav"), &m_error));
    QVERIFY(m_error.contains("\" cannot be opened: "));
}

void tst_WavReader::survivesBeingCutAtEveryByte()
{
    const QByteArray whole =
        riff(extensible(1, 16, KnownTail) + chunk("LIST", "abc") + chunk("data", "12345678"));
    const int dataStart = whole.size() - 8;
    for (int size = 0; size < whole.size(); ++size) {
        const auto reader = _open(whole.left(size));
        QCOMPARE(bool(reader), size >= dataStart + 2);
        QCOMPARE(m_error.isEmpty(), bool(reader));
        if (reader)
            QCOMPARE(int(samplesOf(*reader).size()), (size - dataStart) / 2);
    }
}

void tst_WavReader::readsInBlocks()
{
    QByteArray numbers;
    for (int i = 0; i < 1000; ++i)
        numbers += number16(i);
    const auto reader = _open(riff(formatChunk(1, 1, 16) + chunk("data", numbers)));
    QVERIFY(reader);
    std::array<Sample, 300> block;
    int expected = 0;
    for (const std::size_t count : {300U, 300U, 300U, 100U, 0U}) {
        QCOMPARE(reader->read(block.data(), block.size()), count);
        for (std::size_t i = 0; i < count; ++i)
            QCOMPARE(block[i].real() * 32768, float(expected++));
    }
}

QTEST_GUILESS_MAIN(tst_WavReader)
#include "tst_WavReader.moc"
