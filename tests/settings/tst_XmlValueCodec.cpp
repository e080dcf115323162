// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "WarningRecorder.h"
#include "XmlTextCodec.h"
#include "XmlValueCodec.h"

#include <QtGui/QColor>
#include <QtGui/QKeySequence>
#include <QtTest/QtTest>

using namespace PYXRuntime;

class tst_XmlValueCodec : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void escapes();
    void unescapes();
    void encodesAndDecodes();
    void decodesTextsOfOthers();
    void keepsWhatReadableFormsCannotHold();
};

void tst_XmlValueCodec::escapes()
{
    QString every;
    for (ushort c = 0; c < 0x102; ++c)
        every.append(QChar(c));
    QByteArray value;
    QByteArray key;
    XmlTextCodec::appendEscapedValue(value, every);
    XmlTextCodec::appendEscapedKey(key, every);
    QVERIFY(value.startsWith("~#x00;~#x01;"));
    QVERIFY(value.endsWith("~#xFF;~#x0100;~#x0101;"));
    const auto literals = [&every](void (*append)(QByteArray &, QStringView)) {
        QByteArray found;
        for (const QChar c : qAsConst(every)) {
            QByteArray one;
            append(one, QString(c));
            found += one.size() == 1 ? one : QByteArray();
        }
        return found;
    };
    const QByteArray letters("ABCDEFGHIJKLMNOPQRSTUVWXYZ[]_abcdefghijklmnopqrstuvwxyz{}");
    QCOMPARE(literals(XmlTextCodec::appendEscapedValue), " !#()*+-./0123456789:;=?@" + letters);
    QCOMPARE(literals(XmlTextCodec::appendEscapedKey), " #()*+-.0123456789:@" + letters);
    QCOMPARE(XmlTextCodec::unescaped(QString::fromLatin1(value)), every);
    QCOMPARE(XmlTextCodec::unescaped(QString::fromLatin1(key)), every);
}

void tst_XmlValueCodec::unescapes()
{
    const QString arabicDigit(QChar(0x0661));
    const QString rows[][2] = {
        {"~#x3C;~#XaF;~#x20AC;~#x9;", QString("<") + QChar(0xAF) + QChar(0x20AC) + '\t'},
        {"&#x41;&#66;", "AB"},
        {"~#65535;~#0065;", QString(QChar(0xFFFF)) + 'A'},
        {"~#65536;~#99999999999999999999;", "~#65536;~#99999999999999999999;"},
        {"~#x00041;", "~#x00041;"},
        {"~#;~#x;~#x41~#65 ~#xG;~~# &#", "~#;~#x;~#x41~#65 ~#xG;~~# &#"},
        {"~#x4~#x41;~~#65;", "~#x4A~A"},
        {"~#x7E;#x41;~#x26;#65;", "~#x41;&#65;"}, // nothing twice
        {"~#" + arabicDigit + ';', "~#" + arabicDigit + ';'},
    };
    for (const auto &[text, expected] : rows)
        QCOMPARE(XmlTextCodec::unescaped(text), expected);
}

void tst_XmlValueCodec::encodesAndDecodes()
{
    const auto check = [](const QVariant &value, const QByteArray &text, const QVariant &back) {
        QByteArray encoded;
        QVERIFY(XmlValueCodec::appendEncoded(encoded, value));
        QCOMPARE(encoded, text);
        // Compared with their types: QVariant takes a number and its text for equal.
        const QVariant decoded = XmlValueCodec::decoded(QString::fromLatin1(text));
        QCOMPARE(decoded.userType(), back.userType());
        QCOMPARE(decoded, back);
    };
    const auto same = [&](const QVariant &value, const QByteArray &text) { check(value, text, value); };
    const auto asText = [&](const QVariant &value, const QByteArray &text) {
        check(value, text, QString::fromLatin1(text));
    };
    asText(true, "true");
    asText(-7, "-7");
    asText(4000000000U, "4000000000");
    asText(Q_INT64_C(-9000000000), "-9000000000");
    asText(Q_UINT64_C(18000000000000000000), "18000000000000000000");
    asText(0.1, "0.1");
    check(QKeySequence("Ctrl+O"), "Ctrl+O", "Ctrl+O");
    same("a<b", "a~#x3C;b");
    same("", "");
    same("   ", "   ");
    same("a,b", "a~#x2C;b");
    same("@home", "@@home");
    same("@Point(1 2)", "@@Point(1 2)");
    same(QString::fromUtf8("\xF0\x9F\x98\x80") + QChar(0xD800), "~#xD83D;~#xDE00;~#xD800;");
    same(QByteArray("\0)\xFF", 3), "@ByteArray(~#x00;)~#xFF;)");
    same(QDate(2020, 2, 29), "@ISODate(2020-02-29)");
    same(QDate(), "@ISODate()");
    same(QTime(1, 2, 3, 4), "@Time(01:02:03.004)");
    same(QTime(), "@Time()");
    same(QDateTime(QDate(2020, 1, 2), QTime(3, 4, 5, 6)), "@ISODateTime(2020-01-02 03:04:05.006 0)");
    same(QDateTime(QDate(2020, 1, 2), QTime(3, 4), Qt::UTC), "@ISODateTime(2020-01-02 03:04:00.000 1)");
    same(QDateTime(), "@ISODateTime(  0)");
    same(QDateTime(QDate(2020, 1, 2), QTime(3, 4), Qt::OffsetFromUTC, -3600),
         "@ISODateTime(2020-01-02 03:04:00.000 2 -3600)");
    same(QDateTime(QDate(2020, 7, 2), QTime(3, 4), QTimeZone("Europe/Berlin")),
         "@ISODateTime(2020-07-02 03:04:00.000 3 Europe/Berlin)");
    same(QLocale("de_AT"), "@Locale(de_AT)");
    same(QRect(1, -2, 3, 4), "@Rect(1 -2 3 4)");
    same(QSize(-1, 2), "@Size(-1 2)");
    same(QPoint(1, 2), "@Point(1 2)");
    same(QRectF(0.5, 1, 2, 3),
         "@RectF(0.5000000000000000 1.0000000000000000 2.0000000000000000 3.0000000000000000)");
    same(QSizeF(0.25, 1e20), "@SizeF(0.2500000000000000 100000000000000000000.0000000000000000)");
    same(QPointF(-0.5, 0), "@PointF(-0.5000000000000000 0.0000000000000000)");
    same(QColor(1, 2, 3, 4), "@Color(1 2 3 4)");
    same(QStringList{"a", "b,c", "@d"}, "a , b~#x2C;c , @@d");
    same(QStringList{" a ", "", "  "}, " a  ,  ,   ");
    same(QStringList{"", "", ""}, " ,  , ");
    check(QStringList{"@a"}, "@@a", "@a");
    same(QStringList(), "@EmptyStringList()");
    check(QVariantList(), "@EmptyStringList()", QStringList());
    check(QVariantList{1, "b", 2.5}, "1 , b , 2.5", QStringList{"1", "b", "2.5"});
    same(QVariantList{"a", QPoint(1, 2), QVariant()}, "a , @Point(1 2) , @Invalid()");
}

void tst_XmlValueCodec::decodesTextsOfOthers()
{
    QList<QPair<QString, QVariant>> rows = {
        {"a,b", QStringList{"a", "b"}},
        {"a ,b ,  c", QStringList{"a", "b", "c"}},
        {"a,", QStringList{"a", ""}},
        {"\n  a ,\n  b\n", QStringList{"a", "b"}},
        {"1,@Size(1 2)", QVariantList{"1", QSize(1, 2)}},
        {"@Invalid()", QVariant()},
        {"~#64;Point(1 2)", QPoint(1, 2)},
        {"@ISODateTime(2020-01-02 03:04:05.006 2)", QDateTime(QDate(2020, 1, 2), QTime(3, 4, 5, 6))}};
    // No forms, though they look like some.
    for (const char *text : {"@Point(1)",
                             "@Point(1 2 3)",
                             "@Point(1 99999999999)",
                             "@Point(a b)",
                             "@Point(1 2",
                             "@Nothing(1)",
                             "@",
                             "@)",
                             "@Rect(2147483647 0 2 1)",
                             "@Color(1 2 3 256)",
                             "@ISODate(2021-02-29)",
                             "@Time(25:00:00.000)",
                             "@ISODateTime(2020-01-02 03:04:05.006 4)",
                             "@ISODateTime(2020-01-02 03:04:05.006 2 x)",
                             "@ISODateTime(2020-01-02 03:04:05.006 3 Nowhere/Else)",
                             "@Locale(no such place)",
                             "@Invalid(x)",
                             "@EmptyStringList(x)",
                             "@Variant()",
                             "@Variant(abc)"})
        rows.append({text, QString(text)});
    for (const auto &[text, expected] : qAsConst(rows)) {
        const QVariant value = XmlValueCodec::decoded(text);
        QVERIFY2(value.userType() == expected.userType(), qPrintable(text));
        QCOMPARE(value, expected);
    }
}

void tst_XmlValueCodec::keepsWhatReadableFormsCannotHold()
{
    const QVariantList values = {
        QDate(12345, 6, 7), QDate(-44, 3, 15), QRect(QPoint(INT_MIN, INT_MIN), QPoint(INT_MAX, INT_MAX)),
        QColor(),           QVariantList{"a"}, QVariantList{QStringList{"a", "b"}, QVariantList()}};
    const auto throughText = [](const QVariant &value) {
        QByteArray text;
        const bool bVariant = XmlValueCodec::appendEncoded(text, value) && text.contains("@Variant(");
        return bVariant ? XmlValueCodec::decoded(QString::fromLatin1(text)) : QVariant("no variant");
    };
    for (const QVariant &value : values)
        QCOMPARE(throughText(value), value);
    // Of nested times at least the moment is kept.
    const QDateTime time(QDate(2020, 7, 2), QTime(3, 4), QTimeZone("Europe/Berlin"));
    const QVariant back = throughText(QVariantMap{{"k", QVariantList{time}}}).toMap().value("k");
    QCOMPARE(back.toList().value(0).toDateTime(), time);
}

QTEST_GUILESS_MAIN(tst_XmlValueCodec)
#include "tst_XmlValueCodec.moc"
