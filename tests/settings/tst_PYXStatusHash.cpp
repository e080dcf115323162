// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXStatusHash.h"

#include "PYXXmlSettings.h"
#include "RecordingTracer.h"
#include "SampleValues.h"

#include <QtTest/QTest>
#include <QtXml/QDomDocument>

using PYXRuntime::PYXStatusHash;

struct struUnstreamable
{
    int number = 0;
};
Q_DECLARE_METATYPE(struUnstreamable)

namespace {

constexpr int DeepLevels = 50000;
constexpr quint32 UserType = 127; // in streams before Qt 5
constexpr quint32 NewUserType = 1024;
const QByteArray TypeName("PYXRuntime::PYXStatusHash",
                          int(sizeof "PYXRuntime::PYXStatusHash")); // with its NUL

/** Numbers and texts in the form of QDataStream, one after the other. */
template <typename... Parts>
QByteArray bytesOf(const Parts &...parts)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    (stream << ... << parts);
    return bytes;
}

constexpr quint8 NotNull = 0;

/** Begin of a form with one entry "a". */
QByteArray oneEntry(quint32 magic = 0)
{
    return bytesOf(magic, 1U, 1U, QString("a"));
}

/** Begin of a value that is a status hash. */
QByteArray nestedBegin(quint32 type = UserType)
{
    return bytesOf(type, NotNull, TypeName);
}

PYXStatusHash hashOf(const QVariantHash &entries, quint32 magic = 0)
{
    PYXStatusHash hash;
    if (magic != 0)
        hash = PYXStatusHash(magic);
    for (auto entry = entries.cbegin(); entry != entries.cend(); ++entry)
        hash.insert(entry.key(), entry.value());
    return hash;
}

QVariant nested(const PYXStatusHash &hash)
{
    return QVariant::fromValue(hash);
}

/** Only characters that XML has. */
QString randomKey(QRandomGenerator &random)
{
    QString key;
    for (int length = random.bounded(12); length > 0; --length)
        key += QChar(random.bounded(2) == 0 ? random.bounded(' ', 0x80) : random.bounded(0x80, 0xD800));
    return key;
}

} // namespace

class tst_PYXStatusHash : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void writesTheBinaryForm();
    void serializesWhatHasChanged();
    void takesOnlyItsMagicNumber();
    void refusesHostileBytes();
    void takesZonesThatCanBeWritten();
    void writesTheXmlForm();
    void keepsAnyKeyAndText();
    void readsXmlByHand();
    void refusesHostileXml();
    void refusesTruncatedForms();
    void isPartOfADocument();
    void leavesOutWhatCouldNotBeRestored();
    void roundTripsRandomContent();
    void comparesByContent();
    void streamsInsideOtherData();
};

void tst_PYXStatusHash::writesTheBinaryForm()
{
    const auto v4_6 = QDataStream::Qt_4_6;
    const QByteArray inner = bytesOf(5U, 1U, 1U, QString("b"), 1U, NotNull, quint8(1));
    const std::tuple<QDataStream::Version, QVariant, QByteArray> values[] = {
        {v4_6, 5, bytesOf(2U, NotNull, 5)},
        {v4_6, "xy", bytesOf(10U, NotNull) + QByteArray("\0\0\0\4\0x\0y", 8)},
        {v4_6, QVariant(), bytesOf(0U, quint8(1), 0xFFFFFFFFU)},
        {v4_6, nested(hashOf({{"b", true}}, 5)), nestedBegin() + inner},
        {v4_6, nested(PYXStatusHash(5)), nestedBegin() + bytesOf(5U, 1U, 0U)}, // never changed
        {QDataStream::Qt_5_15, nested(hashOf({{"b", true}}, 5)), nestedBegin(NewUserType) + inner},
        {QDataStream::Qt_4_0, 5, bytesOf(2U, 5)},
    };
    for (const auto &[version, value, bytes] : values) {
        PYXStatusHash hash(0x01020304, version);
        hash.insert("a", value);
        QCOMPARE(hash.serialize(), oneEntry(0x01020304) + bytes);
        PYXStatusHash restored(version);
        QVERIFY(restored.restoreFrom(hash.serialize()));
        QVERIFY(restored == hash);
    }
    PYXStatusHash cleared(7);
    cleared.clear();
    QCOMPARE(cleared.serialize(), bytesOf(7U, 1U, 0U));
}

void tst_PYXStatusHash::serializesWhatHasChanged()
{
    PYXStatusHash hash(0x1234, QDataStream::Qt_5_6);
    QCOMPARE(hash.serialize(), QByteArray());
    QVERIFY(hash.restoreFrom(QByteArray()));
    QVERIFY(hash.isEmpty());
    QCOMPARE(hash.datastreamVersion(), QDataStream::Qt_5_6);

    const QByteArray form = oneEntry() + bytesOf(2U, NotNull, 5);
    const QByteArray input = form + "more"; // shows whether the input is kept
    hash = PYXStatusHash();
    QVERIFY(hash.restoreFrom(input));
    hash.remove("missing");
    QCOMPARE(hash.serialize(), input);
    hash.insert("a", 5);
    QCOMPARE(hash.serialize(), form);
    QVERIFY(hash.restoreFrom(input));
    QVERIFY(hash.restoreFromXml("<StatusHash><a type='Int'>5</a></StatusHash>"));
    QCOMPARE(hash.serialize(), form);
    QVERIFY(!hash.restoreFrom("rubbish"));
    QVERIFY(hash.isEmpty());
    QCOMPARE(hash.serialize(), QByteArray());
}

void tst_PYXStatusHash::takesOnlyItsMagicNumber()
{
    const PYXStatusHash other = hashOf({{"a", 1}}, 0x4321);
    for (const bool bXml : {false, true}) {
        const auto restore = [&](PYXStatusHash &hash) {
            return bXml ? hash.restoreFromXml(other.toXml()) : hash.restoreFrom(other.serialize());
        };
        PYXStatusHash hash(0x1234);
        QCOMPARE(tracesOf([&] { QVERIFY(!restore(hash)); }), QStringList());
        QVERIFY(hash.isEmpty());
        QCOMPARE(hash.magicNumber(), 0x1234U);
        hash.unsetMagicNumber();
        QVERIFY(restore(hash));
        QVERIFY(hash == other);
        PYXStatusHash same(0x4321);
        QVERIFY(restore(same));
    }
}

void tst_PYXStatusHash::refusesHostileBytes()
{
    const QByteArray five = bytesOf(2U, NotNull, 5);
    const QByteArray hashInHash = nestedBegin() + oneEntry();
    const QString damaged = "restoreFrom: the entries are damaged";
    const std::tuple<const char *, QByteArray, QString> forms[] = {
        {"unknown version", bytesOf(0U, 2U, 0U), "restoreFrom: unknown version [2]"},
        {"no entries", bytesOf(0U, 1U), damaged},
        {"more entries than bytes", bytesOf(0U, 1U, 0xFFFFFFFFU), damaged},
        {"one entry too few", bytesOf(0U, 1U, 2U, QString("a")) + five, damaged},
        {"long key", bytesOf(0U, 1U, 1U, 0x7FFFFFFEU, 0U), damaged},
        {"half a character", bytesOf(0U, 1U, 1U, 3U) + "abc" + five, damaged},
        {"nameless type", oneEntry() + bytesOf(UserType, NotNull, QByteArray()), damaged},
        {"nested, unknown version", oneEntry() + nestedBegin() + bytesOf(0U, 2U, 0U), damaged},
        {"lists in lists", oneEntry() + bytesOf(9U, NotNull, 1U).repeated(DeepLevels) + five, damaged},
        {"hashes in hashes", oneEntry() + hashInHash.repeated(DeepLevels) + five, damaged},
        {"one hash in hashes too many", oneEntry() + hashInHash.repeated(99) + five, damaged}};
    for (const auto &[name, bytes, report] : forms) {
        QElapsedTimer timer;
        timer.start();
        PYXStatusHash hash = hashOf({{"old", 1}});
        bool bRestored = true;
        const QStringList traces = tracesOf([&, &form = bytes] { bRestored = hash.restoreFrom(form); });
        QVERIFY2(!bRestored && hash.isEmpty(), name);
        const QString address = QString::number(quintptr(&hash), 16).rightJustified(8, '0');
        QCOMPARE(traces.join('\n'),
                 "Warn|PYXRuntime::PYXStatusHash[0x" + address + "]: %3: " + report + "|PYXRuntime|0");
        // The same bytes as the text of a value in XML.
        const QByteArray text = (nestedBegin() + bytes).toPercentEncoding();
        QVERIFY2(!hash.restoreFromXml("<StatusHash><a type='Variant'>" + text + "</a></StatusHash>"), name);
        QVERIFY2(timer.elapsed() < 2000, name);
    }
}

void tst_PYXStatusHash::takesZonesThatCanBeWritten()
{
    const auto isRestored = [](const QByteArray &zone, int spec = Qt::TimeZone) {
        const QByteArray moment =
            bytesOf(quint32(QMetaType::QDateTime), NotNull, Q_INT64_C(2461000), 1000, qint8(spec));
        return PYXStatusHash(QDataStream::Qt_5_15).restoreFrom(oneEntry() + moment + zone);
    };
    const bool bNamedZones = QTimeZone("Europe/Berlin").isValid(); // not every system has a table of them
    QCOMPARE(isRestored(bytesOf(QString("Europe/Berlin"))), bNamedZones);
    const QString name("n");
    QVERIFY(isRestored(bytesOf(QString("OffsetFromUtc"), name, 3600, name, name, 0, QString(""))));
    QVERIFY(!isRestored(bytesOf(QString("Europe/Nowhere")))); // QTimeZone reads it but cannot write it
    QVERIFY(isRestored(QByteArray(), Qt::UTC));
    QVERIFY(!isRestored(QByteArray(), -1));
    QVERIFY(!isRestored(bytesOf(QString("../zoneinfo/Europe/Berlin"))));
}

void tst_PYXStatusHash::writesTheXmlForm()
{
    PYXStatusHash hash(42);
    hash.insert("b", true);
    hash.insert("a", -1);
    hash.insert("Z", 4000000000U);
    hash.insert("long", Q_INT64_C(-5000000000));
    hash.insert("ulong", Q_UINT64_C(18446744073709551615));
    hash.insert("double", 0.1);
    hash.insert("empty", "");
    hash.insert("text", "<x & \"b\"> ");
    hash.insert("size", QSizeF(0.5, 1));
    hash.insert("hash", QVariantHash{{"y", 1}, {"x", QVariantHash()}});
    hash.insert("inner", hashOf({{"c", false}}, 7));
    hash.insert("bytes", QByteArray("a%\xff"));
    const QByteArray expected = R"(
<StatusHash magic="42">
    <Z type="UInt">4000000000</Z>
    <a type="Int">-1</a>
    <b type="Bool">true</b>
    <bytes type="Variant">%00%00%00%0C%00%00%00%00%03a%25%FF</bytes>
    <double type="Double">0.10000000000000000555</double>
    <empty type="String"></empty>
    <hash type="Hash">
        <x type="Hash"/>
        <y type="Int">1</y>
    </hash>
    <inner type="StatusHash">
        <StatusHash magic="7">
            <c type="Bool">false</c>
        </StatusHash>
    </inner>
    <long type="LongLong">-5000000000</long>
    <size type="SizeF">
        <SizeF>
            <Width>0.5000000000</Width>
            <Height>1.0000000000</Height>
        </SizeF>
    </size>
    <text type="String">&lt;x &amp; &quot;b&quot;&gt; </text>
    <ulong type="ULongLong">18446744073709551615</ulong>
</StatusHash>)";
    QCOMPARE(hash.toXml(), expected);
    QVERIFY(PYXStatusHash::fromXml(expected) == hash);

    // Rectangles are rounded, and take any number.
    const auto roundTrip = [](const QRectF &rect) {
        const QByteArray xml = hashOf({{"r", rect}}).toXml();
        return xml.contains("<r type=\"RectF\">\n        <Rect>") ? PYXStatusHash::fromXml(xml).value("r")
                                                                  : QVariant("no rectangle");
    };
    QCOMPARE(roundTrip(QRectF(0.5, 0.5, 10.4, 10.4)), QVariant(QRectF(1, 1, 10, 10)));
    QCOMPARE(roundTrip(QRectF(-1e300, qQNaN(), 1e300, qInf())).userType(), int(QMetaType::QRectF));
}

void tst_PYXStatusHash::keepsAnyKeyAndText()
{
    const QStringList names = {"a.b-c_1", "n:m", "Entry", "xml", QString::fromUtf8("Stra\u00dfe")};
    const QStringList others = {
        "",        "::PYXRuntime::/x",          "1st", "a b", "a:b:c", "a/b='c'", "n:", "-x",
        "<a><b/>", QString::fromUtf8("a\u20ac")};
    PYXStatusHash hash;
    for (const QString &key : names + others)
        hash.insert(key, key.size());
    QByteArray xml;
    const QStringList traces = tracesOf([&] { xml = hash.toXml(); });
    QCOMPARE(traces.size(), others.size());
    QVERIFY(traces.first().startsWith("Warn|PYXStatusHash: the key '' is no name in XML|"
                                      "source\\PYXStatusHash|"));
    QVERIFY(xml.contains("<Entry key=\"a b\" type=\"Int\">3</Entry>"));
    QVERIFY(xml.contains("<Entry type=\"Int\">5</Entry>"));
    QVERIFY(PYXStatusHash::fromXml(xml) == hash);

    PYXStatusHash texts; // some with characters that XML cannot hold
    const QChar units[] = {QChar(0), QChar(1), QChar(0xD800), QChar(0xFFFF), QChar(0xDC00), QChar(0xD800)};
    for (const QString &text :
         QStringList{"", "a\r\nb\rc", "  ", "\n", "]]>", QString::fromUtf8("\U0001F4E1"), QString(units, 6)})
        texts.insert("t" + QString::number(texts.keys().size()), text);
    const PYXStatusHash restored = PYXStatusHash::fromXml(texts.toXml());
    QVERIFY(restored == texts);
    QVERIFY(!restored.value("t0").isNull());
}

void tst_PYXStatusHash::readsXmlByHand()
{
    PYXStatusHash hash = hashOf({{"old", 1}});
    QVERIFY(hash.restoreFromXml(QByteArray()));
    QVERIFY(hash.contains("old"));
    const QByteArray xml = "<?xml version='1.0'?><!DOCTYPE StatusHash>\n<!-- by hand -->"
                           "<StatusHash><s type='String'>a<!-- b -->b<![CDATA[<c>]]>&#100;</s>"
                           "<u type='Colour'><deep><deeper>1</deeper></deep></u><n>5</n>"
                           "<b1 type='Bool'>TRUE</b1><b2 type='Bool'>true</b2>"
                           "<i type='Int'> 12 </i><j type='Int'>twelve</j><d type='Double'>1e3</d>"
                           "<v type='Variant'>\n  %00%00%00%02%00%00%00%00%07\n</v>"
                           "<p type='Point'><Other/><Point><X>1</X><Y>2</Y></Point></p>"
                           "<i type='Int'>13</i></StatusHash>";
    QVERIFY(hash.restoreFromXml(xml));
    QVERIFY(hash.hasSameContentsAs(hashOf({{"s", "ab<c>d"},
                                           {"b1", false},
                                           {"b2", true},
                                           {"i", 13},
                                           {"j", 0},
                                           {"d", 1000.0},
                                           {"v", 7},
                                           {"p", QPoint(1, 2)}})));
}

void tst_PYXStatusHash::refusesHostileXml()
{
    const auto deep = [](const QByteArray &open, const QByteArray &close, int levels = DeepLevels) {
        return open.repeated(levels) + close.repeated(levels);
    };
    // Between <StatusHash> and its end; and how the report begins.
    const QString parsing = "Error parsing PYXStatusHash XML : ";
    const QString reading = "Error reading PYXStatusHash XML: ";
    const QString tooDeep = reading + "Elements are nested too deeply. [1:";
    const std::tuple<QByteArray, QString> contents[] = {
        {"<a type='Int'>1", reading},
        {"<a type='String'>\xff\xfe</a>", reading},
        {deep("<a type='Hash'>", "</a>"), tooDeep},
        {deep("<a type='StatusHash'><StatusHash>", "</StatusHash></a>"), tooDeep},
        {deep("<a>", "</a>"), tooDeep},
        {deep("<a type='Hash'>", "</a>", 99), parsing + "hashes are nested too deeply|"},
        {"<p type='Point'><Point><X>1</X></Point></p>", parsing + "the value of 'p' (Point) cannot be read|"},
        {"<a type='StatusHash'/>", parsing},
        {"<a type='Variant'>%00%00%00%09%00%7F%FF%FF%FF</a>", parsing}, // a list with a lying count
    };
    QList<QPair<QByteArray, QString>> files = {
        {"<StatusHash magic='x'/>", parsing},
        {"<Status><StatusHash/></Status>", parsing + "root tag missing|source\\PYXStatusHash|"},
        {"<!DOCTYPE s [<!ENTITY a 'aaaaaaaaaa'><!ENTITY b '&a;&a;&a;&a;&a;'>]>"
         "<StatusHash><a type='String'>&b;</a></StatusHash>",
         reading}};
    for (const auto &[content, report] : contents)
        files.append({"<StatusHash>" + content + "</StatusHash>", report});
    for (const auto &[xml, report] : qAsConst(files)) {
        QElapsedTimer timer;
        timer.start();
        PYXStatusHash hash = hashOf({{"old", 1}});
        const QStringList traces =
            tracesOf([&, &file = xml] { QVERIFY2(!hash.restoreFromXml(file), file.left(80)); });
        QCOMPARE(traces.size(), 1);
        QVERIFY2(traces.first().startsWith("X_Error|Invalid Xml/" + report), qPrintable(traces.first()));
        QCOMPARE(hash.keys(), QStringList("old"));
        QVERIFY2(timer.elapsed() < 2000, xml.left(80));
    }
}

void tst_PYXStatusHash::refusesTruncatedForms()
{
    const PYXStatusHash whole = hashOf({{"h", QVariantHash{{"b", true}}},
                                        {"v", QVariantList{1, QUrl("http://a/")}},
                                        {"s", nested(hashOf({{"x", QPoint(1, 2)}}))}});
    const RecordingTracer quiet;
    PYXStatusHash hash;
    for (int length = whole.serialize().size() - 1; length > 0; --length)
        QVERIFY2(!hash.restoreFrom(whole.serialize().left(length)) && hash.isEmpty(),
                 qPrintable(QString::number(length)));
    for (int length = whole.toXml().size() - 1; length > 0; --length)
        QVERIFY2(!hash.restoreFromXml(whole.toXml().left(length)) && hash.isEmpty(),
                 qPrintable(QString::number(length)));
}

void tst_PYXStatusHash::isPartOfADocument()
{
    const PYXStatusHash whole =
        hashOf({{"a", "x"}, {"line", QLineF(1, 2, 3, 4)}, {"s", nested(hashOf({{"x", 1}}, 4))}}, 5);
    QString xml;
    QXmlStreamWriter writer(&xml);
    writer.writeStartElement("State");
    whole.toXmlStream(writer);
    hashOf({{"b", 1}}, 6).toXmlStream(writer);
    writer.writeEndElement();
    QVERIFY(xml.endsWith("<StatusHash magic=\"6\"><b type=\"Int\">1</b></StatusHash></State>"));
    QDomDocument document;
    QVERIFY(document.setContent(xml));
    QDomElement root = document.documentElement();
    QDomElement first = root.firstChildElement();
    QDomElement second = root.lastChildElement();
    PYXStatusHash hash(5);
    QVERIFY(!hash.restoreFromXml(root) && hash.restoreFromXml(first) && !hash.restoreFromXml(second));
    QVERIFY(hash == whole);
}

void tst_PYXStatusHash::leavesOutWhatCouldNotBeRestored()
{
    QVariant deep = 1;
    for (int i = 0; i < 150; ++i)
        deep = QVariantHash{{"d", deep}};
    PYXStatusHash hash = hashOf({{"good", 1}});
    hash.insert("unstreamable", QVariant::fromValue(struUnstreamable()));
    hash.insert("deep", deep);
    for (int i = 0; i < 3; ++i)
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("QVariant::save"));
    PYXStatusHash restored;
    const QStringList traces = tracesOf([&] {
        QVERIFY(restored.restoreFrom(hash.serialize()));
        QCOMPARE(restored.keys(), QStringList("good"));
        QVERIFY(restored.restoreFromXml(hash.toXml()));
        QVERIFY(restored.contains("good") && !restored.contains("unstreamable"));
    });
    QCOMPARE(traces.filter("could not be restored and is not saved").size(), 4);
}

void tst_PYXStatusHash::roundTripsRandomContent()
{
    const RecordingTracer quiet;
    const quint32 seed = QRandomGenerator::global()->generate();
    QRandomGenerator random(seed);
    for (int i = 0; i < 200; ++i) {
        PYXStatusHash hash;
        QVariantHash inner;
        for (int entries = 0; entries < 8; ++entries) {
            hash.insert(randomKey(random), randomValue(random, 1));
            inner.insert(randomKey(random), randomValue(random, 1));
        }
        hash.insert("hash", inner);
        hash.insert("status", hashOf(inner, 9));
        const QByteArray xml = hash.toXml();
        const bool bSame = PYXStatusHash::fromSerialized(hash.serialize()).toXml() == xml &&
                           PYXStatusHash::fromXml(xml).toXml() == xml;
        QVERIFY2(bSame, qPrintable(QString("seed %1, round %2").arg(seed).arg(i)));
    }
}

void tst_PYXStatusHash::comparesByContent()
{
    const PYXStatusHash one = hashOf({{"n", nested(hashOf({{"a", 1}}, 2))}});
    const PYXStatusHash same = PYXStatusHash::fromXml(one.toXml());
    const PYXStatusHash other = hashOf({{"n", nested(hashOf({{"a", 2}}, 2))}});
    QVERIFY(one.hasSameContentsAs(same) && !one.hasSameContentsAs(other));
    QVERIFY(nested(one) == nested(same) && nested(one) != nested(other));
    QVERIFY(hashOf({{"a", 1}}, 1).hasSameContentsAs(hashOf({{"a", 1}}, 2)));
    QVERIFY(hashOf({{"a", 1}}, 1) != hashOf({{"a", 1}}, 2));

    PYXStatusHash inner;
    QVERIFY(one.value("n", inner));
    QVERIFY(!inner.value("a", inner) && !one.value("missing", inner));
    QCOMPARE(inner.value("a"), QVariant(1));
}

void tst_PYXStatusHash::streamsInsideOtherData()
{
    const PYXStatusHash whole = hashOf({{"r", QRectF(0, 0, .1, 1)}, {"s", nested(hashOf({{"x", 1}}, 3))}});
    QBuffer buffer;
    buffer.open(QIODevice::ReadWrite);
    QDataStream stream(&buffer);
    stream.setByteOrder(QDataStream::LittleEndian);
    stream.setFloatingPointPrecision(QDataStream::SinglePrecision);
    stream << 1 << whole << whole << 2;
    buffer.seek(0);
    int first = 0;
    int last = 0;
    PYXStatusHash one(0); // this one takes number 0 only
    PYXStatusHash two;
    stream >> first >> one >> two >> last;
    QCOMPARE(first, 1);
    QCOMPARE(last, 2);
    QVERIFY(one == whole && two == whole);
    QVERIFY(buffer.atEnd());
    QCOMPARE(stream.byteOrder(), QDataStream::LittleEndian);
    QVERIFY(!two.serialize().isEmpty());

    QDataStream other(hashOf({{"a", 1}}, 5).serialize());
    other >> one;
    QCOMPARE(other.status(), QDataStream::ReadCorruptData);
    QVERIFY(one.isEmpty());
}

QTEST_MAIN(tst_PYXStatusHash)
#include "tst_PYXStatusHash.moc"
