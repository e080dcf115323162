// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXStatusHash.h"

#include "PYXRuntimeCenter.h"
#include "PYXTraceWrapper.h"
#include "PYXXmlSettings.h"
#include "RecordingTracer.h"

#include <QtCore/QBitArray>
#include <QtCore/QBuffer>
#include <QtCore/QEasingCurve>
#include <QtCore/QElapsedTimer>
#include <QtCore/QLine>
#include <QtCore/QRandomGenerator>
#include <QtCore/QRect>
#include <QtCore/QRegularExpression>
#include <QtCore/QSettings>
#include <QtCore/QTemporaryDir>
#include <QtCore/QTimeZone>
#include <QtCore/QUrl>
#include <QtCore/QUuid>
#include <QtCore/QXmlStreamWriter>
#include <QtGui/QBrush>
#include <QtGui/QFont>
#include <QtGui/QIcon>
#include <QtGui/QImage>
#include <QtGui/QKeySequence>
#include <QtGui/QMatrix4x4>
#include <QtGui/QPalette>
#include <QtGui/QPen>
#include <QtGui/QPixmap>
#include <QtTest/QTest>
#include <QtXml/QDomDocument>

using PYXRuntime::PYXRuntimeCenter;
using PYXRuntime::PYXStatusHash;
using PYXRuntime::PYXTraceWrapper;

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

/** Puts bytes together by hand, numbers big-endian. */
class Bytes
{
public:
    Bytes &u8(int value)
    {
        m_data.append(char(value));
        return *this;
    }
    Bytes &u32(quint32 value)
    {
        return u8(int(value >> 24)).u8(int(value >> 16)).u8(int(value >> 8)).u8(int(value));
    }
    Bytes &raw(const QByteArray &bytes)
    {
        m_data.append(bytes);
        return *this;
    }
    Bytes &array(const QByteArray &bytes) { return u32(quint32(bytes.size())).raw(bytes); }
    Bytes &text(const QByteArray &ascii)
    {
        u32(quint32(ascii.size() * 2));
        for (const char c : ascii)
            u8(0).u8(c);
        return *this;
    }
    Bytes &repeated(const QByteArray &bytes, int times) { return raw(bytes.repeated(times)); }
    operator QByteArray() const { return m_data; }

private:
    QByteArray m_data;
};

/** Begin of a form with one entry "a". */
Bytes oneEntry(quint32 magic = 0)
{
    return Bytes().u32(magic).u32(1).u32(1).text("a");
}

/** Collects the traces while it lives. */
class Traces : public RecordingTracer
{
public:
    Traces() { PYXTraceWrapper::addTracer(this); }
    ~Traces() override { PYXTraceWrapper::removeTracer(this); }
};

/** No lines of the library's scope while it lives. */
class SilentScope
{
public:
    SilentScope() { PYXRuntimeCenter::setEnabled_pyxWarning("PYXRuntime", false); }
    ~SilentScope() { PYXRuntimeCenter::setEnabled_pyxWarning("PYXRuntime", true); }
};

PYXStatusHash hashOf(std::initializer_list<std::pair<QString, QVariant>> entries, quint32 magic = 0)
{
    PYXStatusHash hash;
    if (magic != 0)
        hash = PYXStatusHash(magic);
    for (const auto &entry : entries)
        hash.insert(entry.first, entry.second);
    return hash;
}

QVariant nested(const PYXStatusHash &hash)
{
    return QVariant::fromValue(hash);
}

QDateTime anyTime()
{
    return QDateTime(QDate(2026, 3, 1), QTime(12, 30, 15, 250), Qt::UTC);
}

/** Not every system has a table of zones. */
bool hasNamedZones()
{
    return QTimeZone("Europe/Berlin").isValid();
}

/** One value of every kind that has a form of its own in streams, but with the same result at all versions.
 */
QVariantHash coreValues()
{
    return {{"null", QVariant()},
            {"bool", true},
            {"int", -7},
            {"uint", 7U},
            {"long", Q_INT64_C(-5000000000)},
            {"ulong", Q_UINT64_C(1) << 63},
            {"double", 0.1},
            {"float", QVariant::fromValue(2.5F)},
            {"char", QChar('x')},
            {"text", QString::fromUtf8("Gr\u00f6\u00dfe \u20ac <&>")},
            {"texts", QStringList{"a", QString(), "c"}},
            {"bytes", QByteArray("\0\1\xff", 3)},
            {"bits", QBitArray(11, true)},
            {"date", QDate(1999, 12, 31)},
            {"time", QTime(1, 2, 3, 4)},
            {"date and time", anyTime()},
            {"url", QUrl("http://example.com/a?b#c")},
            {"uuid", QUuid(1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11)},
            {"expression", QRegularExpression("a+b", QRegularExpression::CaseInsensitiveOption)},
            {"point", QPoint(1, -2)},
            {"rect", QRectF(1.5, 2, 3, 4)},
            {"line", QLineF(1, 2, 3, 4)},
            {"list", QVariantList{1, "two", QVariantMap{{"three", 3}}}},
            {"hash", QVariantHash{{"inner", QSize(1, 2)}}},
            {"status", nested(hashOf({{"deep", nested(hashOf({{"x", 1}}, 3))}}, 0xFFFFFFFF))}};
}

QVariantHash guiValues()
{
    QFont font("Sans", 9);
    font.setBold(true);
    QImage image(3, 2, QImage::Format_RGB32);
    image.fill(Qt::blue);
    QLinearGradient gradient(0, 0, 1, 1);
    gradient.setColorAt(0.5, Qt::red);
    return {{"colour", QColor(1, 2, 3, 4)},
            {"font", font},
            {"brush", QBrush(gradient)},
            {"pen", QPen(Qt::green, 2.5, Qt::DashDotLine)},
            {"palette", QPalette(Qt::darkCyan)},
            {"image", image},
            {"pixmap", QPixmap::fromImage(image)},
            {"key", QKeySequence("Ctrl+K, Ctrl+L")},
            {"polygon", QPolygonF(QRectF(1, 2, 3, 4))},
            {"matrix", QMatrix4x4()},
            {"region", QRegion(1, 2, 3, 4)}};
}

QString anyText()
{
    QString text;
    for (int left = QRandomGenerator::global()->bounded(12); left > 0; --left) {
        const int kind = QRandomGenerator::global()->bounded(3);
        text += QChar(QRandomGenerator::global()->bounded(kind == 0 ? 0x10000 : kind == 1 ? 0x80 : 0x200));
    }
    return text;
}

/** Only characters that XML has. */
QString anyKey()
{
    const QString text = anyText();
    QString key;
    for (const QChar c : text) {
        if (c >= QChar(' ') && !c.isSurrogate() && c < QChar(0xFFFE))
            key += c;
    }
    return key;
}

QVariant anyValue(int level)
{
    auto *const random = QRandomGenerator::global();
    switch (random->bounded(level < 3 ? 12 : 9)) {
    case 0:
        return anyText();
    case 1:
        return int(random->generate());
    case 2:
        return quint64(random->generate64());
    case 3:
        return random->bounded(1.0e6);
    case 4:
        return QRect(QPoint(int(random->generate()), -1), QPoint(5, int(random->generate())));
    case 5:
        return QByteArray::number(random->generate());
    case 6:
        return QLine(1, 2, 3, int(random->generate()));
    case 7:
        return QStringList{anyText(), anyText()};
    case 8:
        return random->bounded(2) == 1;
    case 9:
        return QVariantHash{{anyKey(), anyValue(level + 1)}, {anyKey(), anyValue(level + 1)}};
    case 10:
        return QVariantList{anyValue(level + 1), anyValue(level + 1)};
    default:
        return nested(hashOf({{anyKey(), anyValue(level + 1)}, {anyKey(), anyValue(level + 1)}}, 9));
    }
}

PYXStatusHash anyHash()
{
    PYXStatusHash hash;
    for (int i = 0; i < 8; ++i)
        hash.insert(anyKey(), anyValue(0));
    return hash;
}

} // namespace

class tst_PYXStatusHash : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void newHashSerializesToNothing();
    void writesTheBinaryForm_data();
    void writesTheBinaryForm();
    void keepsItsCacheUntilItChanges();
    void takesOnlyItsMagicNumber_data();
    void takesOnlyItsMagicNumber();
    void warnsOfUnknownFormatVersion();
    void restoresEveryTypeAtEveryVersion_data();
    void restoresEveryTypeAtEveryVersion();
    void refusesHostileBytes_data();
    void refusesHostileBytes();
    void refusesZonesThatAreNone();
    void bearsDamagedBytes();
    void writesTheXmlForm();
    void writesAnyKey();
    void keepsTextsThatXmlCannotHold();
    void roundsRectanglesInXml();
    void readsXmlByHand();
    void refusesHostileXml_data();
    void refusesHostileXml();
    void bearsDamagedXml();
    void readsElementsOfADocument();
    void leavesOutWhatCouldNotBeRestored();
    void roundTripsRandomContent();
    void comparesByContent();
    void livesInSettings();
    void streamsInsideOtherData();
};

void tst_PYXStatusHash::newHashSerializesToNothing()
{
    PYXStatusHash hash(0x1234, QDataStream::Qt_5_6);
    QCOMPARE(hash.serialize(), QByteArray());
    QVERIFY(hash.restoreFrom(QByteArray()));
    QVERIFY(hash.isEmpty());
    QCOMPARE(hash.magicNumber(), 0x1234U);
    QCOMPARE(hash.datastreamVersion(), QDataStream::Qt_5_6);
    QCOMPARE(PYXStatusHash().magicNumber(), 0U);
    QVERIFY(!hash.value("missing").isValid());
}

void tst_PYXStatusHash::writesTheBinaryForm_data()
{
    QTest::addColumn<PYXStatusHash>("hash");
    QTest::addColumn<QByteArray>("bytes");
    const auto row = [](const char *name, QDataStream::Version version, const QVariant &value,
                        const QByteArray &bytes) {
        PYXStatusHash hash(0x01020304, version);
        hash.insert("a", value);
        QTest::newRow(name) << hash << bytes;
    };
    const auto v4_6 = QDataStream::Qt_4_6;
    const QByteArray inner = Bytes().u32(5).u32(1).u32(1).text("b").u32(1).u8(0).u8(1);
    row("int", v4_6, 5, oneEntry(0x01020304).u32(2).u8(0).u32(5));
    row("text", v4_6, "xy", oneEntry(0x01020304).u32(10).u8(0).text("xy"));
    row("invalid", v4_6, QVariant(), oneEntry(0x01020304).u32(0).u8(1).u32(0xFFFFFFFF));
    row("nested hash", v4_6, nested(hashOf({{"b", true}}, 5)),
        oneEntry(0x01020304).u32(UserType).u8(0).array(TypeName).raw(inner));
    row("nested hash, never changed", v4_6, nested(PYXStatusHash(5)),
        oneEntry(0x01020304).u32(UserType).u8(0).array(TypeName).u32(5).u32(1).u32(0));
    row("nested hash of Qt 5", QDataStream::Qt_5_15, nested(hashOf({{"b", true}}, 5)),
        oneEntry(0x01020304).u32(NewUserType).u8(0).array(TypeName).raw(inner));
    row("int of Qt 4.0", QDataStream::Qt_4_0, 5, oneEntry(0x01020304).u32(2).u32(5));
    PYXStatusHash cleared(7);
    cleared.clear();
    QTest::newRow("cleared") << cleared << QByteArray(Bytes().u32(7).u32(1).u32(0));
}

void tst_PYXStatusHash::writesTheBinaryForm()
{
    QFETCH(PYXStatusHash, hash);
    QFETCH(QByteArray, bytes);
    QCOMPARE(hash.serialize(), bytes);
    PYXStatusHash restored(hash.datastreamVersion());
    QVERIFY(restored.restoreFrom(bytes));
    QVERIFY(restored == hash);
}

void tst_PYXStatusHash::keepsItsCacheUntilItChanges()
{
    const QByteArray form = oneEntry().u32(2).u8(0).u32(5);
    const QByteArray input = form + "more"; // shows whether the input is kept
    PYXStatusHash hash;
    QVERIFY(hash.restoreFrom(input));
    hash.remove("missing");
    QCOMPARE(hash.serialize(), input);
    hash.insert("a", 5);
    QCOMPARE(hash.serialize(), form);

    QVERIFY(hash.restoreFrom(input));
    hash.remove("a");
    QCOMPARE(hash.serialize(), QByteArray(Bytes().u32(0).u32(1).u32(0)));

    QVERIFY(hash.restoreFrom(input));
    QVERIFY(hash.restoreFromXml("<StatusHash><a type='Int'>5</a></StatusHash>"));
    QCOMPARE(hash.serialize(), form);

    QVERIFY(!hash.restoreFrom("rubbish"));
    QVERIFY(hash.isEmpty());
    QCOMPARE(hash.serialize(), QByteArray());
    QVERIFY(PYXStatusHash::fromSerialized(form).hasSameContentsAs(hashOf({{"a", 5}})));
}

void tst_PYXStatusHash::takesOnlyItsMagicNumber_data()
{
    QTest::addColumn<bool>("xml");
    QTest::newRow("binary") << false;
    QTest::newRow("XML") << true;
}

void tst_PYXStatusHash::takesOnlyItsMagicNumber()
{
    QFETCH(bool, xml);
    const PYXStatusHash other = hashOf({{"a", 1}}, 0x4321);
    const auto restore = [&](PYXStatusHash &hash) {
        return xml ? hash.restoreFromXml(other.toXml()) : hash.restoreFrom(other.serialize());
    };
    Traces traces;
    PYXStatusHash hash(0x1234);
    QVERIFY(!restore(hash));
    QVERIFY(hash.isEmpty());
    QCOMPARE(hash.magicNumber(), 0x1234U);
    hash.unsetMagicNumber();
    QVERIFY(restore(hash));
    QCOMPARE(hash.magicNumber(), 0x4321U);
    QCOMPARE(hash.value("a"), QVariant(1));
    PYXStatusHash same(0x4321);
    QVERIFY(restore(same));
    QCOMPARE(traces.calls, QStringList());
}

void tst_PYXStatusHash::warnsOfUnknownFormatVersion()
{
    Traces traces;
    PYXStatusHash hash = hashOf({{"old", 1}});
    QVERIFY(!hash.restoreFrom(Bytes().u32(0).u32(2).u32(0)));
    QVERIFY(hash.isEmpty());
    const QString address = QString::number(quintptr(&hash), 16).rightJustified(8, '0');
    QCOMPARE(traces.calls, QStringList("Warn|PYXRuntime::PYXStatusHash[0x" + address +
                                       "]: %3: restoreFrom: unknown version [2]|PYXRuntime|0"));
}

void tst_PYXStatusHash::restoresEveryTypeAtEveryVersion_data()
{
    QTest::addColumn<int>("version");
    for (int version = QDataStream::Qt_4_0; version <= QDataStream::Qt_5_15; ++version)
        QTest::addRow("stream version %d", version) << version;
}

void tst_PYXStatusHash::restoresEveryTypeAtEveryVersion()
{
    QFETCH(int, version);
    const bool bGui = version <= QDataStream::Qt_4_1 || version >= QDataStream::Qt_4_6;
    QVariantHash values = coreValues();
    if (bGui) {
        const QVariantHash gui = guiValues();
        for (auto entry = gui.cbegin(); entry != gui.cend(); ++entry)
            values.insert(entry.key(), entry.value());
    }
    if (version >= QDataStream::Qt_5_2) {
        values.insert("offset", anyTime().toOffsetFromUtc(5400));
        if (hasNamedZones())
            values.insert("zone", anyTime().toTimeZone(QTimeZone("Europe/Berlin")));
        values.insert("zone of an offset", anyTime().toTimeZone(QTimeZone(5400)));
    }
    // Icons do not compare; this one only has to be read to its very end.
    if (bGui)
        values.insert("icon", QVariantList{QIcon(values.value("pixmap").value<QPixmap>()), "end"});
    PYXStatusHash hash{QDataStream::Version(version)};
    for (auto entry = values.cbegin(); entry != values.cend(); ++entry)
        hash.insert(entry.key(), entry.value());
    Traces traces;
    PYXStatusHash restored{QDataStream::Version(version)};
    QVERIFY(restored.restoreFrom(hash.serialize()));
    QCOMPARE(traces.calls.join('\n'), QString());
    QCOMPARE(restored.value("icon").toList().value(1), bGui ? QVariant("end") : QVariant());
    values.remove("icon");
    for (auto entry = values.cbegin(); entry != values.cend(); ++entry) {
        const QVariant &value = restored.value(entry.key());
        QCOMPARE(value.userType(), entry.value().userType());
        if (value.userType() == QMetaType::QPixmap)
            QCOMPARE(value.value<QPixmap>().toImage(), entry.value().value<QPixmap>().toImage());
        else if (value.userType() == QMetaType::QFont)
            QCOMPARE(value.value<QFont>().bold(), true);
        else
            QVERIFY2(value == entry.value(), qPrintable(entry.key()));
    }
}

void tst_PYXStatusHash::refusesHostileBytes_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const auto row = [](const char *name, const QByteArray &bytes) { QTest::newRow(name) << bytes; };
    const QByteArray listOfOne = Bytes().u32(9).u8(0).u32(1);
    const QByteArray hashInHash = Bytes().u32(UserType).u8(0).array(TypeName).u32(0).u32(1).u32(1).text("a");
    QEasingCurve curve(QEasingCurve::InBounce);
    QByteArray streamedCurve;
    QDataStream stream(&streamedCurve, QIODevice::WriteOnly);
    stream.setVersion(QDataStream::Qt_4_6);
    stream << QVariant(curve);
    row("no entries", Bytes().u32(0).u32(1));
    row("more entries than bytes", Bytes().u32(0).u32(1).u32(0xFFFFFFFF));
    row("one entry too few", Bytes().u32(0).u32(1).u32(2).text("a").u32(2).u8(0).u32(5));
    row("long key", Bytes().u32(0).u32(1).u32(1).u32(0x7FFFFFFE).u32(0));
    row("half a character", Bytes().u32(0).u32(1).u32(1).u32(3).raw("abc").u32(2).u8(0).u32(5));
    row("long list", oneEntry().u32(9).u8(0).u32(0x40000000));
    row("long list of texts", oneEntry().u32(11).u8(0).u32(0x7FFFFFFF).u32(0));
    row("long bit array", oneEntry().u32(13).u8(0).u32(0xFFFFFFFF));
    row("unknown type", oneEntry().u32(126).u8(0).u32(0));
    row("type beyond all", oneEntry().u32(0x7FFFFFFF).u8(0).u32(0));
    row("unknown named type", oneEntry().u32(UserType).u8(0).array(QByteArray("No::Such", 9)).u32(0));
    row("nameless type", oneEntry().u32(UserType).u8(0).u32(0xFFFFFFFF));
    row("object pointer", oneEntry().u32(UserType).u8(0).array(QByteArray("QObject*", 9)).u32(0).u32(0));
    row("address of a function", oneEntry().raw(streamedCurve));
    row("nested hash of another format", oneEntry().u32(UserType).u8(0).array(TypeName).u32(0).u32(2).u32(0));
    row("nested hash with a lying count",
        oneEntry().u32(UserType).u8(0).array(TypeName).u32(0).u32(1).u32(0x7FFFFFFF));
    row("lists in lists", oneEntry().repeated(listOfOne, DeepLevels).u32(2).u8(0).u32(5));
    row("hashes in hashes", oneEntry().repeated(hashInHash, DeepLevels).u32(2).u8(0).u32(5));
    row("hashes in hashes, one too many", oneEntry().repeated(hashInHash, 99).u32(2).u8(0).u32(5));
}

void tst_PYXStatusHash::refusesHostileBytes()
{
    QFETCH(QByteArray, bytes);
    QElapsedTimer timer;
    timer.start();
    Traces traces;
    PYXStatusHash hash = hashOf({{"old", 1}});
    QVERIFY(!hash.restoreFrom(bytes));
    QVERIFY(hash.isEmpty());
    QVERIFY(traces.calls.value(0).endsWith("]: %3: restoreFrom: the entries are damaged|PYXRuntime|0"));
    QCOMPARE(traces.calls.size(), 1);

    QDataStream stream(bytes);
    stream.setVersion(QDataStream::Qt_4_6);
    stream >> hash;
    QVERIFY(stream.status() != QDataStream::Ok);
    QVERIFY(hash.isEmpty());

    // The same bytes as the text of a value in XML.
    const QByteArray variant = Bytes().u32(UserType).u8(0).array(TypeName).raw(bytes);
    QVERIFY(!hash.restoreFromXml("<StatusHash><a type='Variant'>" + variant.toPercentEncoding() +
                                 "</a></StatusHash>"));
    QVERIFY(timer.elapsed() < 2000);
}

void tst_PYXStatusHash::refusesZonesThatAreNone()
{
    const SilentScope silence;
    const auto isRestored = [](const QByteArray &zone, int spec = Qt::TimeZone) {
        const QByteArray moment = Bytes().u32(0).u32(2461000).u32(1000).u8(spec);
        return PYXStatusHash(QDataStream::Qt_5_15)
            .restoreFrom(oneEntry().u32(QMetaType::QDateTime).u8(0).raw(moment).raw(zone));
    };
    const Bytes offset = Bytes().text("OffsetFromUtc");
    const Bytes names = Bytes().u32(3600).text("n").text("a").u32(0).text("");
    QCOMPARE(isRestored(Bytes().text("Europe/Berlin")), hasNamedZones());
    QVERIFY(isRestored(Bytes(offset).text("Own").raw(names)));
    QVERIFY(!isRestored(Bytes().text("Europe/Nowhere"))); // QTimeZone reads it but cannot write it
    QVERIFY(isRestored(QByteArray(), Qt::UTC));
    QVERIFY(!isRestored(QByteArray(), -1));
    QVERIFY(!isRestored(Bytes().text("../zoneinfo/Europe/Berlin")));
}

void tst_PYXStatusHash::bearsDamagedBytes()
{
    PYXStatusHash hash;
    const QVariantHash values = coreValues();
    for (auto entry = values.cbegin(); entry != values.cend(); ++entry)
        hash.insert(entry.key(), entry.value());
    const QByteArray whole = hash.serialize();
    const SilentScope silence;
    const Traces quiet;
    for (int length = 1; length < whole.size(); ++length)
        QVERIFY2(!hash.restoreFrom(whole.left(length)), QByteArray::number(length).constData());
    QVERIFY(hash.restoreFrom(whole));
    for (int i = 0; i < 3000; ++i) {
        QByteArray damaged = whole;
        for (int changes = QRandomGenerator::global()->bounded(1, 4); changes > 0; --changes)
            damaged[QRandomGenerator::global()->bounded(8, damaged.size())] =
                char(QRandomGenerator::global()->bounded(256));
        PYXStatusHash restored;
        if (restored.restoreFrom(damaged)) // what is accepted can be used
            QVERIFY(PYXStatusHash().restoreFromXml(restored.toXml()));
        else
            QVERIFY(restored.isEmpty());
    }
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
    hash.insert("text", QString::fromUtf8("<\u00e4 & \"b\">\n "));
    hash.insert("point", QPointF(0.5, 1));
    hash.insert("rect", QRect(1, 2, 3, 4));
    hash.insert("line", QLine(1, 2, 3, 4));
    hash.insert("hash", QVariantHash{{"y", 1}, {"x", QVariantHash()}});
    hash.insert("inner", hashOf({{"c", false}}, 7));
    hash.insert("bytes", QByteArray("a%\xff"));
    const QByteArray expected = "\n<StatusHash magic=\"42\">\n"
                                "    <Z type=\"UInt\">4000000000</Z>\n"
                                "    <a type=\"Int\">-1</a>\n"
                                "    <b type=\"Bool\">true</b>\n"
                                "    <bytes type=\"Variant\">%00%00%00%0C%00%00%00%00%03a%25%FF</bytes>\n"
                                "    <double type=\"Double\">0.10000000000000000555</double>\n"
                                "    <empty type=\"String\"></empty>\n"
                                "    <hash type=\"Hash\">\n"
                                "        <x type=\"Hash\"/>\n"
                                "        <y type=\"Int\">1</y>\n"
                                "    </hash>\n"
                                "    <inner type=\"StatusHash\">\n"
                                "        <StatusHash magic=\"7\">\n"
                                "            <c type=\"Bool\">false</c>\n"
                                "        </StatusHash>\n"
                                "    </inner>\n"
                                "    <line type=\"Line\">\n"
                                "        <Line>\n"
                                "            <Point1>\n"
                                "                <Point>\n"
                                "                    <X>1</X>\n"
                                "                    <Y>2</Y>\n"
                                "                </Point>\n"
                                "            </Point1>\n"
                                "            <Point2>\n"
                                "                <Point>\n"
                                "                    <X>3</X>\n"
                                "                    <Y>4</Y>\n"
                                "                </Point>\n"
                                "            </Point2>\n"
                                "        </Line>\n"
                                "    </line>\n"
                                "    <long type=\"LongLong\">-5000000000</long>\n"
                                "    <point type=\"PointF\">\n"
                                "        <PointF>\n"
                                "            <X>0.5000000000</X>\n"
                                "            <Y>1.0000000000</Y>\n"
                                "        </PointF>\n"
                                "    </point>\n"
                                "    <rect type=\"Rect\">\n"
                                "        <Rect>\n"
                                "            <Point>\n"
                                "                <X>1</X>\n"
                                "                <Y>2</Y>\n"
                                "            </Point>\n"
                                "            <Size>\n"
                                "                <Width>3</Width>\n"
                                "                <Height>4</Height>\n"
                                "            </Size>\n"
                                "        </Rect>\n"
                                "    </rect>\n"
                                "    <text type=\"String\">&lt;\xc3\xa4 &amp; &quot;b&quot;&gt;\n </text>\n"
                                "    <ulong type=\"ULongLong\">18446744073709551615</ulong>\n"
                                "</StatusHash>";
    QCOMPARE(hash.toXml(), expected);
    QVERIFY(PYXStatusHash::fromXml(expected) == hash);

    QString embedded;
    QXmlStreamWriter writer(&embedded);
    writer.writeStartElement("State");
    hashOf({{"a", 1}}).toXmlStream(writer);
    writer.writeEndElement();
    QCOMPARE(embedded, QString("<State><StatusHash magic=\"0\"><a type=\"Int\">1</a></StatusHash></State>"));
}

void tst_PYXStatusHash::writesAnyKey()
{
    const QStringList names = {"a.b-c_1", "n:m", "Entry", "xml", QString::fromUtf8("Stra\u00dfe")};
    const QStringList others = {
        "",        "::PYXRuntime::/x",          "1st", "a b", "a:b:c", "a/b='c'", "n:", "-x",
        "<a><b/>", QString::fromUtf8("a\u20ac")};
    PYXStatusHash hash;
    for (const QString &key : names + others)
        hash.insert(key, key.size());
    Traces traces;
    const QByteArray xml = hash.toXml();
    QCOMPARE(traces.calls.size(), others.size());
    QVERIFY(traces.calls.first().startsWith("Warn|PYXStatusHash: the key '' is no name in XML|"
                                            "source\\PYXStatusHash|"));
    QVERIFY(xml.contains("<Entry key=\"a b\" type=\"Int\">3</Entry>"));
    QVERIFY(xml.contains("<Entry type=\"Int\">5</Entry>"));
    QVERIFY(PYXStatusHash::fromXml(xml) == hash);
}

void tst_PYXStatusHash::keepsTextsThatXmlCannotHold()
{
    const QString zero(QChar(0));
    const QStringList texts = {"\r",
                               "a\r\nb\rc",
                               "  ",
                               "\n",
                               "\x01",
                               zero,
                               "a" + QString(QChar(0xD800)),
                               QString(QChar(0xDC00)) + QChar(0xD800),
                               QString(QChar(0xFFFF)),
                               "]]>",
                               QString::fromUtf8("\U0001F4E1")};
    PYXStatusHash hash;
    for (int i = 0; i < texts.size(); ++i)
        hash.insert(QString("t%1").arg(i), texts.at(i));
    QVERIFY(PYXStatusHash::fromXml(hash.toXml()) == hash);
}

void tst_PYXStatusHash::roundsRectanglesInXml()
{
    const double most = 1e300;
    const auto roundTrip = [](const QRectF &rect) {
        return PYXStatusHash::fromXml(hashOf({{"r", rect}}).toXml()).value("r");
    };
    QCOMPARE(roundTrip(QRectF(0.5, 0.5, 10.4, 10.4)), QVariant(QRectF(1, 1, 10, 10)));
    QCOMPARE(roundTrip(QRectF(-most, qQNaN(), most, qInf())).userType(), int(QMetaType::QRectF));
    QVERIFY(hashOf({{"r", QRectF(1, 2, 3, 4)}}).toXml().contains("<r type=\"RectF\">\n        <Rect>"));
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

void tst_PYXStatusHash::refusesHostileXml_data()
{
    QTest::addColumn<QByteArray>("xml");
    QTest::addColumn<QString>("report"); // begins so
    const auto row = [](const char *name, const QByteArray &xml, const char *report) {
        QTest::newRow(name) << xml << "X_Error|Invalid Xml/" + QString(report);
    };
    const char *const unreadable = "Error reading PYXStatusHash XML: ";
    const char *const parsing = "Error parsing PYXStatusHash XML : ";
    const char *const noRoot = "Error parsing PYXStatusHash XML : root tag missing|source\\PYXStatusHash|";
    const char *const tooDeep = "Error reading PYXStatusHash XML: Elements are nested too deeply. [1:";
    const auto deep = [](const QByteArray &open, const QByteArray &close) {
        return "<StatusHash>" + open.repeated(DeepLevels) + close.repeated(DeepLevels) + "</StatusHash>";
    };
    row("no XML", "rubbish", unreadable);
    row("not closed", "<StatusHash><a type='Int'>1</a>", unreadable);
    row("trailing rubbish", "<StatusHash/>more", unreadable);
    row("wrong encoding", "<StatusHash><a type='String'>\xff\xfe</a></StatusHash>", unreadable);
    row("other root", "<Status><StatusHash/></Status>", noRoot);
    row("deep hashes", deep("<a type='Hash'>", "</a>"), tooDeep);
    row("deep status hashes", deep("<a type='StatusHash'><StatusHash>", "</StatusHash></a>"), tooDeep);
    row("deep unknown elements", deep("<a>", "</a>"), tooDeep);
    row("a hundred hashes",
        "<StatusHash>" + QByteArray("<a type='Hash'>").repeated(99) + QByteArray("</a>").repeated(99) +
            "</StatusHash>",
        "Error parsing PYXStatusHash XML : hashes are nested too deeply|");
    row("entities",
        "<!DOCTYPE s [<!ENTITY a 'aaaaaaaaaa'><!ENTITY b '&a;&a;&a;&a;&a;'>]>"
        "<StatusHash><a type='String'>&b;</a></StatusHash>",
        unreadable);
    row("no magic number", "<StatusHash magic='x'/>", parsing);
    row("half a point", "<StatusHash><p type='Point'><Point><X>1</X></Point></p></StatusHash>",
        "Error parsing PYXStatusHash XML : the value of 'p' (Point) cannot be read|");
    row("no nested hash", "<StatusHash><a type='StatusHash'/></StatusHash>", parsing);
    row("list of a lying length",
        "<StatusHash><a type='Variant'>%00%00%00%09%00%7F%FF%FF%FF</a></StatusHash>", parsing);
    row("no variant", "<StatusHash><a type='Variant'/></StatusHash>", parsing);
}

void tst_PYXStatusHash::refusesHostileXml()
{
    QFETCH(QByteArray, xml);
    QFETCH(QString, report);
    QElapsedTimer timer;
    timer.start();
    Traces traces;
    PYXStatusHash hash = hashOf({{"old", 1}});
    QVERIFY(!hash.restoreFromXml(xml));
    QCOMPARE(traces.calls.size(), 1);
    QVERIFY2(traces.calls.first().startsWith(report), qPrintable(traces.calls.first()));
    QCOMPARE(hash.keys(), QStringList("old"));
    QVERIFY(timer.elapsed() < 2000);
}

void tst_PYXStatusHash::bearsDamagedXml()
{
    const PYXStatusHash whole = hashOf({{"a", "text"},
                                        {"p", QPoint(1, 2)},
                                        {"h", QVariantHash{{"b", true}}},
                                        {"v", QVariantList{1, 2}},
                                        {"s", nested(hashOf({{"x", 1}}))}});
    const QByteArray xml = whole.toXml();
    const Traces quiet;
    PYXStatusHash hash = hashOf({{"old", 1}});
    for (int length = 1; length < xml.size(); ++length)
        QVERIFY2(!hash.restoreFromXml(xml.left(length)), QByteArray::number(length).constData());
    QCOMPARE(hash.keys(), QStringList("old"));
    for (int i = 0; i < 2000; ++i) {
        QByteArray damaged = xml;
        damaged[QRandomGenerator::global()->bounded(damaged.size())] =
            char(QRandomGenerator::global()->bounded(256));
        PYXStatusHash restored;
        if (restored.restoreFromXml(damaged))
            QVERIFY(PYXStatusHash::fromXml(restored.toXml()) == restored);
        else
            QVERIFY(restored.isEmpty());
    }
}

void tst_PYXStatusHash::readsElementsOfADocument()
{
    const PYXStatusHash whole =
        hashOf({{"a", "x"}, {"line", QLineF(1, 2, 3, 4)}, {"s", nested(hashOf({{"x", 1}}, 4))}}, 5);
    QDomDocument document;
    QVERIFY(document.setContent("<State>" + whole.toXml() + "<StatusHash magic='6'/></State>"));
    QDomElement root = document.documentElement();
    QDomElement first = root.firstChildElement();
    QDomElement second = root.lastChildElement();
    PYXStatusHash hash(5);
    QVERIFY(!hash.restoreFromXml(root));
    QVERIFY(hash.restoreFromXml(first));
    QVERIFY(hash == whole);
    QVERIFY(!hash.restoreFromXml(second));
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
    Traces traces;
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("QVariant::save"));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("QVariant::save"));
    PYXStatusHash restored;
    QVERIFY(restored.restoreFrom(hash.serialize()));
    QCOMPARE(restored.keys(), QStringList("good"));
    QCOMPARE(traces.calls.filter("could not be restored and is not saved").size(), 2);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("QVariant::save"));
    QVERIFY(restored.restoreFromXml(hash.toXml()));
    QVERIFY(restored.contains("good"));
    QVERIFY(!restored.contains("unstreamable"));
    QCOMPARE(traces.calls.filter("could not be restored and is not saved").size(), 4);
}

void tst_PYXStatusHash::roundTripsRandomContent()
{
    const Traces quiet;
    for (int i = 0; i < 200; ++i) {
        const PYXStatusHash hash = anyHash();
        const PYXStatusHash fromBytes = PYXStatusHash::fromSerialized(hash.serialize());
        QVERIFY2(fromBytes == hash, hash.toXml().constData());
        const QByteArray xml = hash.toXml();
        QVERIFY2(PYXStatusHash::fromXml(xml) == hash, xml.constData());
        const QStringList keys = hash.keys();
        for (const QString &key : keys) // QVariant also takes a number for its text
            QCOMPARE(fromBytes.value(key).userType(), hash.value(key).userType());
    }
}

void tst_PYXStatusHash::comparesByContent()
{
    const PYXStatusHash one = hashOf({{"n", nested(hashOf({{"a", 1}}, 2))}});
    const PYXStatusHash same = PYXStatusHash::fromXml(one.toXml());
    const PYXStatusHash other = hashOf({{"n", nested(hashOf({{"a", 2}}, 2))}});
    QVERIFY(one.hasSameContentsAs(same));
    QVERIFY(!one.hasSameContentsAs(other));
    QVERIFY(nested(one) == nested(same));
    QVERIFY(nested(one) != nested(other));
    QVERIFY(hashOf({{"a", 1}}, 1).hasSameContentsAs(hashOf({{"a", 1}}, 2)));
    QVERIFY(hashOf({{"a", 1}}, 1) != hashOf({{"a", 1}}, 2));

    PYXStatusHash inner;
    QVERIFY(one.value("n", inner));
    QCOMPARE(inner.value("a"), QVariant(1));
    QVERIFY(!inner.value("a", inner));
    QVERIFY(!one.value("missing", inner));
    QCOMPARE(inner.value("a"), QVariant(1));
}

void tst_PYXStatusHash::livesInSettings()
{
    const QTemporaryDir directory;
    const PYXStatusHash whole =
        hashOf({{"a", "x"}, {"s", nested(hashOf({{"x", QRectF(0, 0, .5, .5)}}))}}, 77);
    for (const QSettings::Format format : {PYXRuntime::PYXXmlSettings::format(), QSettings::IniFormat}) {
        const QString file = directory.filePath(QString::number(format));
        QSettings(file, format).setValue("state", nested(whole));
        const QVariant read = QSettings(file, format).value("state");
        QCOMPARE(read.userType(), QMetaType::type("PYXRuntime::PYXStatusHash"));
        QVERIFY(read.value<PYXStatusHash>() == whole);
    }
}

void tst_PYXStatusHash::streamsInsideOtherData()
{
    const PYXStatusHash whole = anyHash();
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
