// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXVersion.h"

#include <QtTest/QtTest>

using PYXRuntime::PYXVersion;

class tst_PYXVersion : public QObject
{
    Q_OBJECT
private slots:
    // Where there is a compiler for expressions, it hides what they cost elsewhere.
    void initTestCase() { qputenv("QT_ENABLE_REGEXP_JIT", "0"); }
    void readsTexts();
    void badTextKeepsTheDebugFlag();
    void writesTexts();
    void packsFourNumbers();
    void comparesNumbersOnly();
    void longTextsAreReadInOneGo();
};

void tst_PYXVersion::readsTexts()
{
    // The text, its version (empty: not valid), whether it tells of a debug build.
    const std::tuple<const char *, const char *, bool> rows[] = {
        {"4.2_7", "04.02_07.00", false},
        {"4.2.7", "04.02_07.00", false},
        {"12.3_4", "12.03_04.00", false},
        {"v4.2.7.1 (Debug)", "04.02_07.01", true},
        {"(Debug) Build 4.2_7.1", "04.02_07.01", true},
        {"4.2.7 (debug)", "04.02_07.00", false},
        {"4.2_7_1", "04.02_07.00", false}, // only a point comes before the private part
        {"4.2.7.1.9", "04.02_07.01", false},
        {"1.2 then 3.4.5", "03.04_05.00", false},
        {"70000.1.2", "00.01_02.00", false},
        {"65535.65536.0.99999999999999999999", "65535.00_00.00", false},
        {"12.3", "", false},
        {"12_3_4", "", false},
        {"4.2.x (Debug)", "", false},
        {"", "", false}};
    for (const auto &[text, expected, bDebug] : rows) {
        const PYXVersion version = PYXVersion::fromString(text);
        QCOMPARE(version.isValid() ? version.toFullString() : QString(""), QString(expected));
        QVERIFY2(version.maybeDebug() == bDebug, text);
        QVERIFY2(version.isValid() || quint64(version) == 0, text);
    }
}

void tst_PYXVersion::badTextKeepsTheDebugFlag()
{
    PYXVersion version("1.2.3 (Debug)");
    version.setVersion("none");
    QVERIFY(!version.isValid() && version.maybeDebug() && quint64(version) == 0);
    version.clear();
    QVERIFY(version.isValid());
    QCOMPARE(version.toString(), QString("00.00_00"));
    version.setVersion("1.2.3");
    QVERIFY(!version.maybeDebug());
    QVERIFY(!PYXVersion().isValid());
}

void tst_PYXVersion::writesTexts()
{
    const PYXVersion version(4, 2, 7, 1);
    const std::pair<QString, QByteArray> texts[] = {
        {version.toString(), version.toByteArray()},
        {version.toFullString(), version.toFullByteArray()},
        {version.toDotString(), version.toDotByteArray()},
        {version.toFullDotString(), version.toFullDotByteArray()}};
    const char *const expected[] = {"04.02_07", "04.02_07.01", "04.02.07", "04.02.07.01"};
    for (int i = 0; i < 4; ++i)
        QVERIFY2(texts[i].first == expected[i] && texts[i].second == expected[i], expected[i]);
    QCOMPARE(PYXVersion(2026, 100, 0, 65535).toFullString(), QString("2026.100_00.65535"));
}

void tst_PYXVersion::packsFourNumbers()
{
    const PYXVersion version(0x0123456789ABCDEF);
    QVERIFY(version.isValid() && !version.maybeDebug());
    QCOMPARE(version.majorMinor(), 0x01234567U);
    QCOMPARE(version.buildPriv(), 0x89ABCDEFU);
    quint16 numbers[4] = {};
    version.components(numbers[0], numbers[1], numbers[2], numbers[3]);
    QCOMPARE(PYXVersion(numbers[0], numbers[1], numbers[2], numbers[3]), version);
    QCOMPARE(numbers[2], quint16(0x89AB));
    quint16 priv = 0;
    version.components(nullptr, nullptr, nullptr, &priv);
    QCOMPARE(priv, version.priv());
    QCOMPARE(quint64(version), 0x0123456789ABCDEFULL);
}

void tst_PYXVersion::comparesNumbersOnly()
{
    QCOMPARE(PYXVersion("4.2.7 (Debug)"), PYXVersion(4, 2, 7, 0));
    QCOMPARE(PYXVersion(), PYXVersion(0, 0, 0, 0));
    const PYXVersion ascending[] = {PYXVersion("4.9.9.9"), PYXVersion("4.10.0"), PYXVersion("4.10.0.1"),
                                    PYXVersion("40000.0.0")};
    for (int i = 1; i < 4; ++i) {
        const PYXVersion &a = ascending[i - 1];
        const PYXVersion &b = ascending[i];
        QVERIFY(a < b && a <= b && b > a && b >= a && a != b && !(b < a) && !(b <= a) && !(a == b));
    }
}

void tst_PYXVersion::longTextsAreReadInOneGo()
{
    QElapsedTimer timer;
    timer.start();
    QVERIFY(!PYXVersion(QString(200'000, '7') + ".x").isValid());
    QVERIFY2(timer.elapsed() < 5000, qPrintable(QString::number(timer.elapsed())));
}

QTEST_APPLESS_MAIN(tst_PYXVersion)
#include "tst_PYXVersion.moc"
