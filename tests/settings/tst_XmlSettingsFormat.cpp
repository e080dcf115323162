// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "SampleValues.h"
#include "WarningRecorder.h"
#include "XmlSettingsNode.h"
#include "XmlSettingsReader.h"
#include "XmlSettingsScanner.h"
#include "XmlSettingsWriter.h"
#include "XmlValueCodec.h"

#include <QtTest/QtTest>

using namespace PYXRuntime;
using Map = QSettings::SettingsMap;

namespace {

const QByteArray
    Head("\xEF\xBB\xBF<?xml version=\"1.0\" encoding=\"UTF-8\" ?>\n<PYXXmlSettings version = \"1.0\">\n");
const QByteArray Tail("</PYXXmlSettings>\n");

QByteArray written(const Map &map)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    return XmlSettingsWriter::write(buffer, map) ? buffer.data() : QByteArray();
}

bool read(QByteArray file, Map &map)
{
    QBuffer buffer(&file);
    buffer.open(QIODevice::ReadOnly);
    return XmlSettingsReader::read(buffer, map);
}

QByteArray xml(const QByteArray &content)
{
    return "<PYXXmlSettings>" + content + "</PYXXmlSettings>";
}

QByteArray entry(const QByteArray &name, const QByteArray &value)
{
    return "<entry><name>" + name + "</name><value>" + value + "</value></entry>";
}

Map randomMap(QRandomGenerator &random)
{
    Map map;
    for (int count = random.bounded(30); count > 0; --count) {
        QStringList segments;
        for (int length = 1 + random.bounded(4); length > 0; --length) {
            const QString names[] = {"a",
                                     "a b",
                                     "1",
                                     "2",
                                     "07",
                                     "size",
                                     "k-" + QString::number(count),
                                     randomText(random).remove('/') + 'x'};
            segments.append(names[random.bounded(8)]);
        }
        map.insert(segments.join('/'), segments.last() == "size" ? QVariant(count) : randomValue(random, 0));
    }
    return map;
}

} // namespace

class tst_XmlSettingsFormat : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void writesExactly();
    void warnsOfBrokenTrees();
    void readsWhatIsThere();
    void bringsRandomMapsBack();
    void bringsDeepKeysBack();
    void survivesDamage();
    void refusesDepthAndEntities();
};

void tst_XmlSettingsFormat::writesExactly()
{
    const auto check = [](const Map &map, const QByteArray &lines) {
        QCOMPARE(written(map), Head + lines + Tail);
    };
    check({}, "");
    // Value at a group's own key.
    check({{"a", 1}, {"a/b", 2}}, R"(    <group name = "a">
        <value>1</value>
        <entry>
            <name>b</name>
            <value>2</value>
        </entry>
    </group>
)");
    // Size alone makes an array; ten comes before two.
    check({{"bare/size", -3}, {"list/size", 2}, {"list/2/x", "b"}, {"list/10", "c"}, {"list/10/x", "a"}},
          R"(    <array name = "bare" size = "-3">
    </array>
    <array name = "list" size = "2">
        <item index = "10">
            <value>c</value>
            <entry>
                <name>x</name>
                <value>a</value>
            </entry>
        </item>
        <item index = "2">
            <entry>
                <name>x</name>
                <value>b</value>
            </entry>
        </item>
    </array>
)");
    // The same layout, written here without it.
    const auto checkFlat = [](const Map &map, const QByteArray &elements) {
        QCOMPARE(written(map).simplified(), (Head + elements + Tail).simplified());
    };
    // As a text, and beside words, it makes none.
    checkFlat({{"text/size", "2"}, {"words/size", 1}, {"words/x", 2}}, R"(
        <group name = "text"> <entry> <name>size</name> <value>2</value> </entry> </group>
        <group name = "words"> <entry> <name>size</name> <value>1</value> </entry>
            <entry> <name>x</name> <value>2</value> </entry> </group>
    )");
    // Children of arrays that are no items.
    checkFlat({{"l/size", 1}, {"l/1", 5}, {"l/07/x", 1}, {"l/3/size", 0}, {"l/n/x", 1}}, R"(
        <array name = "l" size = "1">
            <group name = "07"> <entry> <name>x</name> <value>1</value> </entry> </group>
            <entry> <name>1</name> <value>5</value> </entry>
            <array name = "3" size = "0"> </array>
            <group name = "n"> <entry> <name>x</name> <value>1</value> </entry> </group> </array>
    )");
    // Escaped names, an empty name, an invalid value.
    checkFlat({{"a?\"/b?<", ""}, {"x/", QVariant()}}, R"(
        <group name = "a~#x3F;~#x22;"> <entry> <name>b?~#x3C;</name> <value></value> </entry> </group>
        <group name = "x"> <entry> <name>unnamed</name> </entry> </group>
    )");
}

void tst_XmlSettingsFormat::warnsOfBrokenTrees()
{
    WarningRecorder recorder;
    XmlSettingsNode root;
    root.insert("a/b/c", 1);
    root.insert("a/b", 2); // only maps that are not sorted have it in this order
    const QByteArray lines = XmlSettingsWriter::document(root); // not classified
    QCOMPARE(recorder.texts(), QStringList({"Node [a] already contains [b]", "There is still a <Node> Node",
                                            "There is still a <Node> Node"}));
    QVERIFY(
        lines.contains("\n    <node>\n        <name>a</name>\n        <node>\n            <name>b</name>\n"));
    // A value that cannot be stored is left out, which the trace tells.
    Map back;
    QVERIFY(read(written({{"g/a", 1}, {"g/b", QVariant::fromValue<QObject *>(this)}, {"g/c", 3}}), back));
    QCOMPARE(back, Map({{"g/a", "1"}, {"g/c", "3"}}));
    QBuffer closed; // takes nothing
    QVERIFY(!XmlSettingsWriter::write(closed, {{"a", 1}}));
}

void tst_XmlSettingsFormat::readsWhatIsThere()
{
    const auto check = [](const char *name, const QByteArray &file, const QStringList &warnings, bool bGood,
                          const Map &map) {
        WarningRecorder recorder;
        Map found;
        QVERIFY2(read(file, found) == bGood, name);
        QCOMPARE(recorder.texts(), warnings);
        QCOMPARE(found.keys(), map.keys());
        for (auto it = map.cbegin(); it != map.cend(); ++it) {
            QCOMPARE(found.value(it.key()), it.value());
            QCOMPARE(found.value(it.key()).userType(), it.value().userType());
        }
    };
    const auto good = [&](const char *name, const QByteArray &file, const Map &map,
                          const QStringList &warnings = {}) { check(name, file, warnings, true, map); };
    const auto bad = [&](const char *name, const QByteArray &file, const QString &warning) {
        check(name, file, {warning}, false, {});
    };
    const QString prefix("PYXXmlSettingsPrivate::readXmlFile: ");
    const QString noXml = prefix + "error setting content";
    const QByteArray a1 = entry("a", "1");
    good("root in any case, no declaration", "<pyxXMLsettings>" + a1 + "</pyxXMLsettings>", {{"a", "1"}});
    good("byte-order mark and version", Head + a1 + Tail, {{"a", "1"}});
    good("UTF-16",
         QByteArray("\xFF\xFE") + QByteArray(reinterpret_cast<const char *>(u"<PYXXmlSettings/>"), 34), {});
    good("document type without declarations", "<!DOCTYPE PYXXmlSettings>" + xml(a1), {{"a", "1"}});
    good("tags in any case, comments", xml("<!-- c --><ENTRY><Value>1</Value><?pi?><nAme>a</nAme></ENTRY>"),
         {{"a", "1"}});
    good("a later entry replaces an earlier one", xml(a1 + entry("a", "2")), {{"a", "2"}});
    good("only the first name and the first value",
         xml("<entry><name>a</name><name>b</name><value>1</value><value>2</value></entry>"), {{"a", "1"}});
    good("only the first text", xml(entry("a<!-- c -->b", "1<b>2</b>3") + entry("c", "\n <!-- c --> 4")),
         {{"a", "1"}, {"c", " 4"}});
    good("CDATA and entities", xml(entry("<![CDATA[a]]>b", "&lt;&#65;&amp;#66;")), {{"a", "<AB"}});
    good("empty and absent values",
         xml("<entry><name>a</name><value/></entry><entry><name>b</name></entry>" + entry("c", "@Invalid()")),
         {{"a", ""}});
    good("a value and a name of blanks", xml(entry(" ", "  ")), {{" ", "  "}});
    good("own values, wherever they stand",
         xml("<group name='g'>" + a1 +
             "<value>v</value><value>w</value></group><array name='l'><value>x</value></array>"
             "<array name='m'><item "
             "index='1'><value>@Invalid()</value><entry><name>y</name><value>z</value></entry></item></"
             "array>"),
         {{"g", "v"}, {"g/a", "1"}, {"l", "x"}, {"l/size", 0}, {"m/size", 0}, {"m/1/y", "z"}});
    good("sizes, names and indices as they stand",
         xml("<array name='a~#x2F;b' size='x'><item index='0~#49;'>" + a1 + "</item><item>" + a1 +
             "</item></array>"
             "<array size='99999999999'/><group Name='n'>" +
             a1 + "</group>"),
         {{"a/b/size", 0}, {"a/b/0~#49;/a", "1"}, {"a/b//a", "1"}, {"/size", 0}, {"/a", "1"}});
    good("misplaced elements",
         xml("<Item/><value>1</value><x:y/><array name='l'><name/><item><item/></item></array><group "
             "name='g'><item><entry/></item></group>"),
         {{"l/size", 0}},
         {"skipping misplaced element [item]", "skipping misplaced element [value]",
          "skipping misplaced element [x:y]", "array skipping misplaced element [name]",
          "item: skipping misplaced element [item]", "group: skipping misplaced element [item]"});
    bad("entry without a name",
        xml("<group name='g%1'>" + a1 + "<entry><value>1</value></entry></group><x/>"),
        "entry @[g%1] node is missing name");
    bad("entry with an empty name", xml(entry("", "1")), "entry @[] node is missing name");
    bad("another root", "<settings/>", prefix + "not a PYXXml settings file");
    bad("version 1.00", "<PYXXmlSettings version='1.00'/>", prefix + "cannot read this version (1.00)");
    bad("empty version", "<PYXXmlSettings version=''/>", prefix + "cannot read this version ()");
    bad("no XML", "[General]\na=1\n", noXml);
    bad("nothing", "", noXml);
    bad("error behind other faults", xml("<entry/><stray/>") + "<again/>", noXml);
    bad("no UTF-8", xml(entry("a", "\xFF\xFE")), noXml);
}

/** A value is not written as another one is: what reads back as something else would be written otherwise. */
void tst_XmlSettingsFormat::bringsRandomMapsBack()
{
    const quint32 seed = QRandomGenerator::global()->generate();
    QRandomGenerator random(seed);
    for (int round = 0; round < 300; ++round) {
        const Map map = randomMap(random);
        const QByteArray file = written(map);
        Map scanned;
        Map general;
        const bool bSame = XmlSettingsScanner::read(file, scanned) && scanned.keys() == map.keys() &&
                           written(scanned) == file && XmlSettingsReader::readAnyXml(file, general) &&
                           written(general) == file;
        QVERIFY2(bSame, qPrintable(QString("seed %1, round %2").arg(seed).arg(round)));
    }
}

void tst_XmlSettingsFormat::bringsDeepKeysBack()
{
    Map map;
    for (int levels : {508, 509, 510, 511, 2000})
        map.insert(QString("k/").repeated(levels) + QString::number(levels), QString::number(levels));
    Map back;
    QVERIFY(read(written(map), back));
    QCOMPARE(back, map);
    QVERIFY(XmlSettingsReader::readAnyXml(written(map), back));
    QCOMPARE(back, map);
}

void tst_XmlSettingsFormat::survivesDamage()
{
    WarningRecorder recorder;
    const QByteArray file =
        written({{"a/size", 1}, {"a/1/x", QStringList{"y", "z"}}, {"u", QUuid::createUuid()}, {"v", ","}});
    for (int length = 0; length < file.size(); ++length) {
        Map map;
        const bool bOnlyLineEndIsMissing = length == file.size() - 1;
        QCOMPARE(read(file.left(length), map), bOnlyLineEndIsMissing);
    }
    const quint32 seed = QRandomGenerator::global()->generate();
    QRandomGenerator random(seed);
    for (int round = 0; round < 2000; ++round) {
        QByteArray damaged = file;
        for (int i = 0; i < 3; ++i)
            damaged[random.bounded(damaged.size())] = char(random.bounded(256));
        Map scanned;
        Map general;
        const bool bGood = XmlSettingsReader::readAnyXml(damaged, general);
        const bool bSame =
            !XmlSettingsScanner::read(damaged, scanned) || (bGood && written(scanned) == written(general));
        QVERIFY2(bSame, qPrintable(QString("seed %1, round %2").arg(seed).arg(round)));
    }
}

void tst_XmlSettingsFormat::refusesDepthAndEntities()
{
    const auto deep = [](int levels, const QByteArray &open, const QByteArray &close) {
        return open.repeated(levels) + close.repeated(levels);
    };
    QByteArray bomb("<!DOCTYPE r [<!ENTITY e0 \"0123456789\">");
    for (int i = 1; i < 30; ++i)
        bomb +=
            QString("<!ENTITY e%1 \"%2\">").arg(i).arg(QString("&e%1;").arg(i - 1).repeated(10)).toLatin1();
    const QByteArray parameter = "<!DOCTYPE r [<!ENTITY % p \"<!-- " + QByteArray(4000, 'c') + " -->\">";
    const std::pair<const char *, QByteArray> files[] = {
        {"too deep by one", xml(deep(512, "<group name=\"g\">", "</group>"))},
        {"100 000 levels", xml(deep(100'000, "<group name=\"g\">", "</group>"))},
        {"100 000 levels as written", Head + deep(100'000, "<group name = \"g\">\n", "</group>\n") + Tail},
        {"100 000 levels of strangers", xml(deep(100'000, "<x>", ""))},
        {"entities that multiply", bomb + "]>" + xml(entry("a", "&e29;"))},
        {"parameter entities", parameter + QByteArray("%p;").repeated(10'000) + "]>" + xml("")},
        {"default attributes", "<!DOCTYPE r [<!ATTLIST x y CDATA '1'>]>" + xml("<x/>")}};
    for (const auto &[name, file] : files) {
        WarningRecorder recorder;
        Map map;
        QElapsedTimer timer;
        timer.start();
        QVERIFY2(!read(file, map), name);
        // Some milliseconds; the bound leaves room for sanitizers and busy machines.
        QVERIFY2(timer.elapsed() < 1000, qPrintable(name + QString::number(timer.elapsed())));
        QCOMPARE(recorder.texts(), QStringList("PYXXmlSettingsPrivate::readXmlFile: error setting content"));
    }
}

QTEST_MAIN(tst_XmlSettingsFormat)
#include "tst_XmlSettingsFormat.moc"
