// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PrintfLine.h"

#include <QtTest/QtTest>

class tst_PrintfLine : public QObject
{
    Q_OBJECT
private slots:
    void consumesConversions();
};

void tst_PrintfLine::consumesConversions()
{
    const std::tuple<const char *, QByteArray, QByteArray> formats[] = {
        {"plain text", "no conversion", "no conversion"},
        {"percent", "50%% of %%", "50% of %"},
        {"integers", "[%d %5i %-4u| %04x %ld %lld %zu %hhd]", "[0     0 0   | 0000 0 0 0 0]"},
        {"signs", "[%+d]", "[+0]"},
        {"precision", "[%.3d %.*d]", "[000 ]"},
        {"star width takes zero", "[%*d]", "[0]"},
        {"argument numbers", "[%2$d %1$-3d|]", "[0 0  |]"},
        {"sizes of Windows", "[%I64d %I32u]", "[0 0]"},
        {"floats", "[%f %.2f %g %e]", "[0.000000 0.00 0 0.000000e+00]"},
        {"texts", "[%s %8s %ls %S]", QByteArray("[") + " " + QByteArray(8, ' ') + "  ]"},
        {"character is a NUL", "[%c]", QByteArray("[\0]", 3)},
        {"stores nothing", "[%n%ln]", "[]"},
        {"no conversion letter", "[%y %] %", "[%y %] %"},
        {"percent at the end", "100%", "100%"},
        {"cut off in mid-conversion", "x%-08.3l", "x%-08.3l"},
        {"multi-byte text stays", "\xC3\xA9 %d \xE2\x82\xAC", "\xC3\xA9 0 \xE2\x82\xAC"},
        {"huge width is cut", "%999999999999d", QByteArray(4094, ' ') + '0'},
        {"huge precision is cut", "%.999999999999f", "0." + QByteArray(4095, '0')},
    };
    for (const auto &[name, format, line] : formats)
        QVERIFY2(PYXRuntime::printfLine(format) == line, name);
}

QTEST_APPLESS_MAIN(tst_PrintfLine)
#include "tst_PrintfLine.moc"
