// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "DataRows.h"
#include "FileContents.h"
#include "PeBytes.h"
#include "PYXFixedFileInfo.h"
#include "PYXWinResVersion.h"
#include "RecordingTracer.h"

#include <QtTest/QtTest>

using namespace PYXRuntime;
using namespace PeBytes;
using Language = PYXWinResVersion::LanguageCodePage;

namespace {

QByteArray sampleBlock(const QString &product = "9.8.7.6")
{
    const QByteArray english = string("FileVersion", "1.2.3 (Debug)") + string("ProductVersion", product) +
                               string("Comments", QString::fromUtf8("Übermaß")) +
                               node("Empty", true, 0, wide("beyond its length"));
    return versionInfo(fixedInfo({0x00010002, 0x00030004, 0x00050006, 0x00070008}),
                       node("040904b0", true, 0, {}, english) +
                           node("040704B0", true, 0, {}, string("FileVersion", "v3.2_1")),
                       numbers16({0x0409, 0x04B0, 0x0407, 0x04B0}));
}

} // namespace

class tst_PYXWinResVersion : public QObject
{
    Q_OBJECT
private slots:
    void readsBothKinds_data();
    void readsBothKinds();
    void picksOneLanguage();
    void damage();
    void everyTruncation();
    void reportsMissingParts();
    void runningProgram();

private:
    QString written(const QByteArray &bytes)
    {
        put(m_directory.filePath("sample.exe"), bytes);
        return m_directory.filePath("sample.exe");
    }

    QTemporaryDir m_directory;
};

void tst_PYXWinResVersion::readsBothKinds_data()
{
    addRows({"plus"}, Rows<bool>{{"PE32", false}, {"PE32+", true}});
}

void tst_PYXWinResVersion::readsBothKinds()
{
    QFETCH(bool, plus);
    const PYXWinResVersion file(written(PeBytes::file(plus, resources({{0x0409, sampleBlock()}}))));
    QVERIFY(file.didLoad());
    QCOMPARE(file.fixedFileInfo()->dwSignature, 0xFEEF04BDU);
    QCOMPARE(file.fixedFileInfo()->dwFileDateLS, 5U);
    QCOMPARE(file.locales(), (QList<Language>{{0x0409, 0x04B0}, {0x0407, 0x04B0}}));
    QCOMPARE(file.getStringInFirstLanguage("comments"), QString::fromUtf8("Übermaß"));
    QCOMPARE(file.getStringInFirstLanguage("Empty"), QString());
    QCOMPARE(file.getString({0x0407, 0x04B0}, "ProductVersion"), QString());

    PYXVersion version;
    QVERIFY(file.getFixedFileInfoVersion(PYXWinResVersion::ekFileVersion, version));
    QCOMPARE(version, PYXVersion(1, 2, 3, 4));
    QVERIFY(file.getFixedFileInfoVersion(PYXWinResVersion::ekProductVersion, version));
    QCOMPARE(version, PYXVersion(5, 6, 7, 8));
    QVERIFY(file.getVersion(PYXWinResVersion::ekFileVersion, version) && version.maybeDebug());
    QVERIFY(file.getVersion(PYXWinResVersion::ekFileVersion, {0x0407, 0x04B0}, version));
    QCOMPARE(version, PYXVersion(3, 2, 1, 0));
    QVERIFY(!file.getVersion(PYXWinResVersion::ekProductVersion, {0x0407, 0x04B0}, version));
    QCOMPARE(version, PYXVersion(3, 2, 1, 0));
    quint16 numbers[4] = {};
    QVERIFY(
        file.getVersion(PYXWinResVersion::ekProductVersion, numbers[0], numbers[1], numbers[2], numbers[3]));
    QCOMPARE(PYXVersion(numbers[0], numbers[1], numbers[2], numbers[3]), PYXVersion(9, 8, 7, 6));
    QByteArray bytes;
    QVERIFY(file.getVersion(PYXWinResVersion::ekFileVersion, bytes));
    QCOMPARE(bytes, QByteArray("1.2.3 (Debug)"));
    bool bOk = false;
    QCOMPARE(file.getPYXVersion(PYXWinResVersion::ekProductVersion, &bOk), PYXVersion(9, 8, 7, 6));
    QVERIFY(bOk);
}

void tst_PYXWinResVersion::picksOneLanguage()
{
    // The neutral one, else American English, else the first.
    const std::pair<QVector<int>, int> rows[] = {
        {{0x0000, 0x0409, 0x0452}, 0x0000}, {{0x0401, 0x0409, 0x0452}, 0x0409}, {{0x0452, 0x0481}, 0x0452}};
    for (const auto &[languages, picked] : rows) {
        QVector<QPair<int, QByteArray>> versions;
        for (const int language : languages)
            versions.append({language, sampleBlock(QString("1.0.%1").arg(language))});
        const PYXWinResVersion file(written(PeBytes::file(true, resources(versions))));
        QCOMPARE(int(file.getPYXVersion(PYXWinResVersion::ekProductVersion).build()), picked);
    }
}

void tst_PYXWinResVersion::damage()
{
    constexpr int Optional = 64 + 24;
    constexpr int Root = SectionOffset;
    // Offset in a PE32+ file, and what is put there.
    const Rows<int, quint32> rows = {{"no DOS signature", 0, 0x5A4E},
                                     {"header far away", 60, 0xFFFFFFF0},
                                     {"no PE signature", 64, 0x4550 + 1},
                                     {"unknown kind", Optional, 0x30B},
                                     {"no data directories", Optional + 108, 2},
                                     {"resources nowhere", Optional + 128, 0xFFFFFFFF},
                                     {"65535 sections", 64 + 4, 0xFFFF8664},
                                     {"section outside of the file", Optional + 240 + 20, 0xFFFFFFFF},
                                     {"data across the end of the section", Optional + 240 + 16, 120},
                                     {"65535 entries", Root + 12, 0xFFFFFFFF},
                                     {"no version", Root + 24, 15},
                                     {"data where a directory is due", Root + 28, 32},
                                     {"directory that is its own child", Root + 28, Child},
                                     {"directory where data is due", Root + 56 + 20, Child | 56},
                                     {"data of 4 GB", Root + 84, 0xFFFFFFFF},
                                     {"data outside", Root + 80, 0xFFFFFFF0},
                                     {"empty data", Root + 84, 0},
                                     {"empty block", Root + 96, 0}};
    const QByteArray sound = PeBytes::file(true, resources({{0x0409, sampleBlock()}}));
    QVERIFY(PYXWinResVersion(written(sound)).didLoad());
    forRows(rows, [&](int offset, quint32 number) {
        const PYXWinResVersion file(written(QByteArray(sound).replace(offset, 4, numbers32({number}))));
        QCOMPARE(tracesOf([&file] { QVERIFY(!file.didLoad()); }), QStringList());
        PYXVersion version;
        QVERIFY(file.fixedFileInfo() == nullptr && file.locales().isEmpty());
        QVERIFY(!file.getFixedFileInfoVersion(PYXWinResVersion::ekFileVersion, version));
        QVERIFY(!file.getVersion(PYXWinResVersion::ekFileVersion, version));
    });
}

void tst_PYXWinResVersion::everyTruncation()
{
    const QByteArray whole = PeBytes::file(false, resources({{0, sampleBlock()}}));
    for (int size = whole.size(); size >= 0; --size) {
        const PYXWinResVersion part(written(whole.left(size)));
        const QString found = part.getStringInFirstLanguage("ProductVersion");
        QVERIFY2(found == (part.didLoad() ? "9.8.7.6" : ""), qPrintable(QString::number(size)));
        QVERIFY(part.didLoad() || size < whole.size());
    }
}

void tst_PYXWinResVersion::reportsMissingParts()
{
    const PYXWinResVersion file(written(PeBytes::file(false, resources({{0, versionInfo({}, {}, {})}}))));
    QStringList traces = tracesOf([&file] {
        QVERIFY(file.didLoad());
        QVERIFY(file.fixedFileInfo() == nullptr);
        QVERIFY(file.locales().isEmpty());
    });
    QCOMPARE(traces.replaceInStrings(QRegularExpression("\\|\\d+$"), ""),
             (QStringList{"Debug|PYXRuntime::WinVersionInfo::fixedFileInfo: VerQueryValue failed|"
                          "source\\PYXWinResVersion",
                          "Debug|PYXRuntime::WinVersionInfo::languages: VerQueryValue failed|"
                          "source\\PYXWinResVersion"}));
}

void tst_PYXWinResVersion::runningProgram()
{
    QCoreApplication::setApplicationVersion("build 3.4.5");
    const PYXWinResVersion program{QString()};
    QCOMPARE(program.filePath(), QCoreApplication::applicationFilePath());
    if (QSysInfo::kernelType() == "winnt")
        QSKIP("there the program itself tells");
    QCOMPARE(program.getStringInFirstLanguage("productversion"), QString("build 3.4.5"));
    PYXVersion version;
    QVERIFY(program.getFixedFileInfoVersion(PYXWinResVersion::ekProductVersion, version));
    QCOMPARE(version, PYXVersion(3, 4, 5, 0));
    QVERIFY(!PYXWinResVersion(m_directory.filePath("missing")).didLoad());
    QCoreApplication::setApplicationVersion("");
    QVERIFY(!PYXWinResVersion(QString()).didLoad());
}

QTEST_GUILESS_MAIN(tst_PYXWinResVersion)
#include "tst_PYXWinResVersion.moc"
