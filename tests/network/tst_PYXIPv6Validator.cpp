// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXIPv6Validator.h"

#include <QtNetwork/QHostAddress>
#include <QtTest/QtTest>

using PYXRuntime::PYXIPv6Validator;

class tst_PYXIPv6Validator : public QObject
{
    Q_OBJECT
private slots:
    void texts_data();
    void texts();
    void whatQtReadsIsAcceptable();
};

void tst_PYXIPv6Validator::texts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("state");
    QTest::addColumn<QString>("fixed");
    const auto row = [](const char *text, QValidator::State state, const char *fixed) {
        QTest::addRow("\"%s\"", text) << QString(text) << int(state) << QString(fixed);
    };
    const auto acceptable = [&](const char *text, const char *fixed) {
        row(text, QValidator::Acceptable, fixed);
    };
    const auto intermediate = [&](const char *text, const char *fixed) {
        row(text, QValidator::Intermediate, fixed);
    };
    acceptable("::", "::");
    acceptable("::1", "::1");
    acceptable("FD00::0001", "fd00::1");
    acceptable("1:2:3:4:5:6:7:8", "1:2:3:4:5:6:7:8");
    acceptable("1:2:3:4:5:6:7::", "1:2:3:4:5:6:7:0");
    acceptable("2001:db8:0:0:0:0:0:1", "2001:db8::1");
    acceptable("::ffff:10.0.0.1", "::ffff:10.0.0.1");
    acceptable("1:2:3:4:5:6:010.0.0.1", "1:2:3:4:5:6:a00:1");
    acceptable("fe80::1%eth0", "fe80::1%eth0");
    intermediate("", "::");
    intermediate(":", "::");
    intermediate("1", "1::");
    intermediate("2001:db8", "2001:db8::");
    intermediate("2001:db8:", "2001:db8::");
    intermediate(":1", "::1");
    intermediate(":1:2:3:4:5:6:7", "0:1:2:3:4:5:6:7");
    intermediate("1::2:", "1::2:0");
    intermediate(":1::2", "0:1::2");
    intermediate("12345::", "ffff::");
    intermediate("00001::", "1::");
    intermediate("::ffff:10.0", "::ffff:10.0.0.0");
    intermediate("::ffff:10.0.0.256", "::ffff:10.0.0.255");
    intermediate("1:10.0.0.1", "1::a00:1");
    intermediate("fe80::1%", "fe80::1");
    intermediate("fe80%eth0", "fe80::%eth0");
    for (const char *text : {":::", "1::2::3", "1:2:3:4:5:6:7:8:", "1:2:3:4:5:6:7::8", "1:2:3:4:5:6:7:8:9",
                             "10.0.0.1", "::10.0.0.0.1", "::1.2:3", "::a.2", "::g", " ::1", "::1 ", "[::1]",
                             "::1/64", "%eth0%", "::1\n", "::1%a b"})
        row(text, QValidator::Invalid, text);
}

void tst_PYXIPv6Validator::texts()
{
    QFETCH(QString, text);
    PYXIPv6Validator validator(nullptr);
    int position = 0;
    QTEST(int(validator.validate(text, position)), "state");
    validator.fixup(text);
    QTEST(text, "fixed");
    if (validator.validate(text, position) == QValidator::Acceptable)
        QCOMPARE(QHostAddress(text).toString(), text);
}

/** Addresses with zeros here and there, written in full and as short as can be. */
void tst_PYXIPv6Validator::whatQtReadsIsAcceptable()
{
    PYXIPv6Validator validator;
    int position = 0;
    for (uint zeros = 0; zeros < 256; ++zeros) {
        QStringList groups;
        for (uint group = 0; group < 8; ++group)
            groups += (zeros >> group & 1) != 0 ? "0000" : QString::number(0xa0b0 + group, 16);
        QString full = groups.join(':');
        QString brief = QHostAddress(full).toString();
        QCOMPARE(validator.validate(brief, position), QValidator::Acceptable);
        QCOMPARE(validator.validate(full, position), QValidator::Acceptable);
        validator.fixup(full);
        QCOMPARE(full, brief);
    }
}

QTEST_APPLESS_MAIN(tst_PYXIPv6Validator)
#include "tst_PYXIPv6Validator.moc"
