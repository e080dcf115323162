// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXIPv4Validator.h"

#include <QtTest/QtTest>

using PYXRuntime::PYXIPv4Validator;

class tst_PYXIPv4Validator : public QObject
{
    Q_OBJECT
private slots:
    void texts_data();
    void texts();
};

void tst_PYXIPv4Validator::texts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("state");
    QTest::addColumn<QString>("fixed");
    const auto row = [](const QString &text, QValidator::State state, const QString &fixed) {
        QTest::addRow("\"%s\"", qPrintable(text)) << text << int(state) << fixed;
    };
    row("", QValidator::Intermediate, "0.0.0.0");
    row(".", QValidator::Intermediate, "0.0.0.0");
    row("10", QValidator::Intermediate, "10.0.0.0");
    row("10.", QValidator::Intermediate, "10.0.0.0");
    row("10.1", QValidator::Intermediate, "10.1.0.0");
    row("10.1.2.", QValidator::Intermediate, "10.1.2.0");
    row("10.0..1", QValidator::Intermediate, "10.0.0.1");
    row(".1.2.3", QValidator::Intermediate, "0.1.2.3");
    row("192.168.1.300", QValidator::Intermediate, "192.168.1.255");
    row("1.2.3.99999999999999999999", QValidator::Intermediate, "1.2.3.255");
    row("0.0.0.0", QValidator::Acceptable, "0.0.0.0");
    row("255.255.255.255", QValidator::Acceptable, "255.255.255.255");
    row("010.001.2.3", QValidator::Acceptable, "10.1.2.3");
    row("1.2.3.4.5", QValidator::Invalid, "1.2.3.4.5");
    row("1.2.3.4\n", QValidator::Invalid, "1.2.3.4\n");
    row(" 1.2.3.4", QValidator::Invalid, " 1.2.3.4");
    row("1.2.3.a", QValidator::Invalid, "1.2.3.a");
    row("-1.2.3.4", QValidator::Invalid, "-1.2.3.4");
    row(QString::fromUtf8("1.2.3.\u0664"), QValidator::Invalid, QString::fromUtf8("1.2.3.\u0664"));
}

void tst_PYXIPv4Validator::texts()
{
    QFETCH(QString, text);
    PYXIPv4Validator validator(nullptr);
    int position = 0;
    QTEST(int(validator.validate(text, position)), "state");
    validator.fixup(text);
    QTEST(text, "fixed");
}

QTEST_APPLESS_MAIN(tst_PYXIPv4Validator)
#include "tst_PYXIPv4Validator.moc"
