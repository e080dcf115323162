// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PeBytes.h"
#include "PYXFixedFileInfo.h"
#include "PYXWinResVersion.h"
#include "RecordingTracer.h"

#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
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
    void picksOneLanguage_data();
    void picksOneLanguage();
    void damage_data();
    void damage();
    void everyTruncation_data();
    void everyTruncation();
    void reportsMissingParts();
    void runningProgram();

private:
    QString written(const QByteArray &bytes)
    {
        QFile file(m_directory.filePath("sample.exe"));
        return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() ? file.fileName() : "";
    }

    QTemporaryDir m_directory;
};

void tst_PYXWinResVersion::readsBothKinds_data()
{
    QTest::addColumn<bool>("plus");
    QTest::newRow("PE32") << false;
    QTest::newRow("PE32+") << true;
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

void tst_PYXWinResVersion::picksOneLanguage_data()
{
    QTest::addColumn<QVector<int>>("languages");
    QTest::addColumn<int>("picked");
    QTest::newRow("neutral") << QVector<int>{0x0000, 0x0409, 0x0452} << 0x0000;
    QTest::newRow("American English") << QVector<int>{0x0401, 0x0409, 0x0452} << 0x0409;
    QTest::newRow("the first") << QVector<int>{0x0452, 0x0481} << 0x0452;
}

void tst_PYXWinResVersion::picksOneLanguage()
{
    QFETCH(QVector<int>, languages);
    QVector<QPair<int, QByteArray>> versions;
    for (const int language : languages)
        versions.append({language, sampleBlock(QString("1.0.%1").arg(language))});
    const PYXWinResVersion file(written(PeBytes::file(true, resources(versions))));
    QTEST(int(file.getPYXVersion(PYXWinResVersion::ekProductVersion).build()), "picked");
}

void tst_PYXWinResVersion::damage_data()
{
    QTest::addColumn<int>("offset"); // in a PE32+ file
    QTest::addColumn<QByteArray>("bytes");
    const auto row = [](const char *name, int offset, const QVector<quint32> &numbers) {
        QTest::newRow(name) << offset << numbers32(numbers);
    };
    const int optional = 64 + 24;
    row("no DOS signature", 0, {0x5A4E});
    row("header far away", 60, {0xFFFFFFF0});
    row("no PE signature", 64, {0x4550 + 1});
    row("unknown kind", optional, {0x30B});
    row("no data directories", optional + 108, {2});
    row("resources nowhere", optional + 128, {0xFFFFFFFF});
    row("65535 sections", 64 + 4, {0xFFFF8664});
    row("section outside of the file", optional + 240 + 20, {0xFFFFFFFF});
    row("data across the end of the section", optional + 240 + 16, {120});
    const int root = SectionOffset;
    row("65535 entries", root + 12, {0xFFFFFFFF});
    row("no version", root + 24, {15});
    row("data where a directory is due", root + 28, {32});
    row("directory that is its own child", root + 28, {Child});
    row("directory where data is due", root + 56 + 20, {Child | 56});
    row("data of 4 GB", root + 84, {0xFFFFFFFF});
    row("data outside", root + 80, {0xFFFFFFF0});
    row("empty data", root + 84, {0});
    row("empty block", root + 96, {0});
}

void tst_PYXWinResVersion::damage()
{
    QFETCH(int, offset);
    QFETCH(QByteArray, bytes);
    QByteArray image = PeBytes::file(true, resources({{0x0409, sampleBlock()}}));
    QVERIFY(PYXWinResVersion(written(image)).didLoad());
    image.replace(offset, bytes.size(), bytes);
    const PYXWinResVersion file(written(image));
    QCOMPARE(tracesOf([&file] { QVERIFY(!file.didLoad()); }), QStringList());
    PYXVersion version;
    QVERIFY(file.fixedFileInfo() == nullptr && file.locales().isEmpty());
    QVERIFY(!file.getFixedFileInfoVersion(PYXWinResVersion::ekFileVersion, version));
    QVERIFY(!file.getVersion(PYXWinResVersion::ekFileVersion, version));
}

void tst_PYXWinResVersion::everyTruncation_data()
{
    QTest::addColumn<QString>("foreign");
    QTest::newRow("our own") << QString();
    QTest::newRow("foreign") << "/usr/lib/x86_64-linux-gnu/wine/x86_64-windows/stdole32.tlb";
}

void tst_PYXWinResVersion::everyTruncation()
{
    QFETCH(QString, foreign);
    if (!QFile::exists(foreign) && !foreign.isEmpty())
        QSKIP("needs the package libwine");
    QFile source(foreign);
    const bool bOwn = foreign.isEmpty() || !source.open(QIODevice::ReadOnly);
    QFile file(written(bOwn ? PeBytes::file(false, resources({{0, sampleBlock()}})) : source.readAll()));
    const PYXWinResVersion whole(file.fileName());
    const QString expected = whole.getStringInFirstLanguage("ProductVersion");
    QVERIFY(file.open(QIODevice::ReadWrite) && !expected.isEmpty());
    for (qint64 size = file.size(); --size >= 0;) {
        QVERIFY(file.resize(size));
        const PYXWinResVersion part(file.fileName());
        const QString found = part.getStringInFirstLanguage("ProductVersion");
        QVERIFY2(part.didLoad() ? found == expected : found.isEmpty(), qPrintable(QString::number(size)));
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
