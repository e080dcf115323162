// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PrintfLine.h"

#include <QtTest/QtTest>

class tst_PrintfLine : public QObject
{
    Q_OBJECT
private slots:
    void consumesConversions_data();
    void consumesConversions();
};

void tst_PrintfLine::consumesConversions_data()
{
    QTest::addColumn<QByteArray>("format");
    QTest::addColumn<QByteArray>("line");
    const auto row = [](const char *name, const char *format, const QByteArray &line) {
        QTest::newRow(name) << QByteArray(format) << line;
    };
    row("plain text", "no conversion", "no conversion");
    row("percent", "50%% of %%", "50% of %");
    row("integers", "[%d %5i %-4u| %04x %ld %lld %zu %hhd]", "[0     0 0   | 0000 0 0 0 0]");
    row("signs", "[%+d]", "[+0]");
    row("precision", "[%.3d %.*d]", "[000 ]");
    row("star width takes zero", "[%*d]", "[0]");
    row("argument numbers", "[%2$d %1$-3d|]", "[0 0  |]");
    row("sizes of Windows", "[%I64d %I32u]", "[0 0]");
    row("floats", "[%f %.2f %g %e]", "[0.000000 0.00 0 0.000000e+00]");
    row("texts", "[%s %8s %ls %S]", QByteArray("[") + " " + QByteArray(8, ' ') + "  ]");
    row("character is a NUL", "[%c]", QByteArray("[\0]", 3));
    row("stores nothing", "[%n%ln]", "[]");
    row("no conversion letter", "[%y %] %", "[%y %] %");
    row("percent at the end", "100%", "100%");
    row("cut off in mid-conversion", "x%-08.3l", "x%-08.3l");
    row("multi-byte text stays", "\xC3\xA9 %d \xE2\x82\xAC", "\xC3\xA9 0 \xE2\x82\xAC");
    row("huge width is cut", "%999999999999d", QByteArray(4094, ' ') + '0');
    row("huge precision is cut", "%.999999999999f", "0." + QByteArray(4095, '0'));
}

void tst_PrintfLine::consumesConversions()
{
    QFETCH(QByteArray, format);
    QTEST(PYXRuntime::printfLine(format), "line");
}

QTEST_APPLESS_MAIN(tst_PrintfLine)
#include "tst_PrintfLine.moc"
