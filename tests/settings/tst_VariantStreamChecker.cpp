// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "SampleValues.h"
#include "VariantStreamChecker.h"
#include "WarningRecorder.h"

#include <QtTest/QtTest>

using PYXRuntime::VariantStreamChecker;

struct OwnType
{
    int number = 0;
};
Q_DECLARE_METATYPE(OwnType)
QDataStream &operator<<(QDataStream &stream, const OwnType &own)
{
    return stream << own.number;
}
QDataStream &operator>>(QDataStream &stream, OwnType &own)
{
    return stream >> own.number;
}

namespace {

QVariant nested(int levels)
{
    QVariant value = 1;
    for (int i = 0; i < levels; ++i)
        value = QVariantList{value};
    return value;
}

void writeImage(QDataStream &s, quint32 width, quint32 height)
{
    s << quint32(QMetaType::QImage) << qint32(1) << quint64(0x89504E470D0A1A0A) << quint32(13)
      << quint32(0x49484452) << width << height << quint8(8) << quint8(6) << quint8(0) << quint8(0)
      << quint8(0) << quint32(0) << quint32(0) << quint32(0x49454E44) << quint32(0);
}

} // namespace

class tst_VariantStreamChecker : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void walksExactlyWhatIsStreamed();
    void knowsTypesOfTheApplication();
    void refusesHostileBytes();
    void boundsNesting();
};

void tst_VariantStreamChecker::walksExactlyWhatIsStreamed()
{
    const QVariantList samples = streamedSamples();
    for (const auto version :
         {QDataStream::Qt_4_0, QDataStream::Qt_4_6, QDataStream::Qt_5_2, QDataStream::Qt_5_15}) {
        const VariantStreamChecker checker(version);
        for (const QVariant &value : samples) {
            const QByteArray bytes = streamed(value, version);
            const QString what = QString("%1 at version %2").arg(value.typeName()).arg(version);
            QVERIFY2(checker.accepts(bytes) && !checker.accepts(bytes + 'x'), qPrintable(what));
            QCOMPARE(checker.variantLength("before" + bytes + "behind", 6), bytes.size());
            // Large values need not be cut at each byte of their bulk.
            const int step = qMax(1, bytes.size() / 500);
            for (int cut = 0; cut < bytes.size(); cut += step)
                QVERIFY2(!checker.accepts(bytes.left(cut)), qPrintable(what));
        }
    }
}

void tst_VariantStreamChecker::knowsTypesOfTheApplication()
{
    const VariantStreamChecker checker(QDataStream::Qt_4_0);
    const QVariant value = QVariantList{QVariant::fromValue(OwnType{7}), 8};
    WarningRecorder recorder; // Qt cannot stream the type yet
    QVERIFY(!checker.accepts(streamed(value, QDataStream::Qt_4_0)));
    qRegisterMetaTypeStreamOperators<OwnType>("OwnType");
    const QByteArray bytes = streamed(value, QDataStream::Qt_4_0);
    QVERIFY(checker.accepts(bytes));
    QVERIFY(!checker.accepts(bytes.chopped(1)));
    QVERIFY(!VariantStreamChecker(QDataStream::Qt_5_15).accepts(bytes));
}

void tst_VariantStreamChecker::refusesHostileBytes()
{
    using Write = void (*)(QDataStream &);
    const std::pair<const char *, Write> hostile[] = {
        {"list of four thousand million",
         [](QDataStream &s) { s << quint32(QMetaType::QVariantList) << 0xFFFFFFF0U; }},
        {"map with a count it has not",
         [](QDataStream &s) { s << quint32(QMetaType::QVariantMap) << 1000U << 0U << 0U; }},
        {"text longer than the bytes",
         [](QDataStream &s) { s << quint32(QMetaType::QString) << 0x7FFFFFFEU; }},
        {"text of odd length", [](QDataStream &s) { s << quint32(QMetaType::QString) << 1U << quint8(0); }},
        {"polygon longer than the bytes",
         [](QDataStream &s) { s << quint32(QMetaType::QPolygon) << 0x10000000U; }},
        {"region that nests regions",
         [](QDataStream &s) { s << quint32(QMetaType::QRegion) << 12U << qint32(6) << 0U << 0U; }},
        {"region of more rectangles than it has",
         [](QDataStream &s) { s << quint32(QMetaType::QRegion) << 8U << qint32(10) << 0x7FFFFFFFU; }},
        {"function pointer", [](QDataStream &s) { s << QVariant(QEasingCurve(QEasingCurve::InQuad)); }},
        {"pointer to an object", [](QDataStream &s) { s << 136U << quint64(1); }},
        {"unknown type", [](QDataStream &s) { s << 119U << quint64(0); }},
        {"type by its number in this process", [](QDataStream &s) { s << 1025U << quint64(0); }},
        {"type of an unknown name", [](QDataStream &s) { s << 127U << "NoSuchType" << 1; }},
        {"pattern that multiplies", [](QDataStream &s) { s << QVariant(QRegExp("(a{9}){9}")); }},
        {"image of another format", [](QDataStream &s) { s << quint32(QMetaType::QImage) << 1 << "<svg/>"; }},
        {"image of many pixels in no bytes", [](QDataStream &s) { writeImage(s, 4000, 4000); }},
        {"image of too many pixels", [](QDataStream &s) { writeImage(s, 0x7FFFFFFF, 0x7FFFFFFF); }},
    };
    for (const auto &[name, write] : hostile) {
        QByteArray bytes;
        QDataStream stream(&bytes, QIODevice::WriteOnly);
        stream.setVersion(QDataStream::Qt_4_0);
        write(stream);
        QVERIFY2(!VariantStreamChecker(QDataStream::Qt_4_0).accepts(bytes), name);
    }
}

void tst_VariantStreamChecker::boundsNesting()
{
    const VariantStreamChecker checker(QDataStream::Qt_4_0);
    QVERIFY(checker.accepts(streamed(nested(99), QDataStream::Qt_4_0)));
    QVERIFY(!checker.accepts(streamed(nested(100), QDataStream::Qt_4_0)));
    const QByteArray endless = QByteArray::fromHex("0000000900000001").repeated(1'000'000);
    QVERIFY(!checker.accepts(endless));
}

QTEST_MAIN(tst_VariantStreamChecker)
#include "tst_VariantStreamChecker.moc"
