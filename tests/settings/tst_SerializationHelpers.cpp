// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "SerializationHelpers.h"

#include <QtCore/QRandomGenerator>
#include <QtCore/QXmlStreamWriter>
#include <QtTest/QTest>
#include <QtXml/QDomDocument>

#include <limits>

using PYXRuntime::SerializationHelpers;

namespace {

template <typename T>
QString written(const T &value)
{
    QString xml;
    QXmlStreamWriter writer(&xml);
    SerializationHelpers::toXmlStream(writer, value);
    return xml;
}

template <typename T>
bool read(const QString &xml, T &value)
{
    QDomDocument document;
    if (!document.setContent(xml))
        return false;
    QDomElement element = document.documentElement();
    return SerializationHelpers::fromXml(element, value);
}

template <typename T>
bool survives(const T &value)
{
    T back;
    return read(written(value), back) && back == value;
}

int anyInt()
{
    return int(QRandomGenerator::global()->generate());
}

/** Exactly what ten decimals can hold. */
double anyDouble()
{
    return anyInt() / 1024.0;
}

template <typename T>
bool isRefused(const QString &xml, const T &before)
{
    T value = before;
    return !read(xml, value) && value == before;
}

} // namespace

class tst_SerializationHelpers : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void writesElements_data();
    void writesElements();
    void namesTypesWithoutTheirQ();
    void readsBackWhatItWrote();
    void refusesIncompleteElements_data();
    void refusesIncompleteElements();
    void readsPartsInAnyOrder();
};

void tst_SerializationHelpers::writesElements_data()
{
    QTest::addColumn<QString>("actual");
    QTest::addColumn<QString>("expected");
    QTest::newRow("point") << written(QPoint(-1, 2)) << "<Point><X>-1</X><Y>2</Y></Point>";
    QTest::newRow("point of doubles")
        << written(QPointF(0.1, -2)) << "<PointF><X>0.1000000000</X><Y>-2.0000000000</Y></PointF>";
    QTest::newRow("size") << written(QSize(3, 4)) << "<Size><Width>3</Width><Height>4</Height></Size>";
    QTest::newRow("size of doubles")
        << written(QSizeF(1e10, 1.0 / 3))
        << "<SizeF><Width>10000000000.0000000000</Width><Height>0.3333333333</Height></SizeF>";
    QTest::newRow("rectangle") << written(QRect(5, 6, 7, 8))
                               << "<Rect><Point><X>5</X><Y>6</Y></Point>"
                                  "<Size><Width>7</Width><Height>8</Height></Size></Rect>";
    QTest::newRow("rectangle of doubles")
        << written(QRectF(0.5, 1.5, 2.25, 3))
        << "<RectF><PointF><X>0.5000000000</X><Y>1.5000000000</Y></PointF>"
           "<SizeF><Width>2.2500000000</Width><Height>3.0000000000</Height></SizeF></RectF>";
    QTest::newRow("line") << written(QLine(1, 2, 3, 4))
                          << "<Line><Point1><Point><X>1</X><Y>2</Y></Point></Point1>"
                             "<Point2><Point><X>3</X><Y>4</Y></Point></Point2></Line>";
    QTest::newRow("line of doubles")
        << written(QLineF(1, 2, 3, 4.5))
        << "<LineF><Point1><PointF><X>1.0000000000</X><Y>2.0000000000</Y></PointF></Point1>"
           "<Point2><PointF><X>3.0000000000</X><Y>4.5000000000</Y></PointF></Point2></LineF>";
}

void tst_SerializationHelpers::writesElements()
{
    QFETCH(QString, actual);
    QFETCH(QString, expected);
    QCOMPARE(actual, expected);
}

void tst_SerializationHelpers::namesTypesWithoutTheirQ()
{
    QCOMPARE(SerializationHelpers::elementTag<QPoint>(), QString("Point"));
    QCOMPARE(SerializationHelpers::elementTag<QSizeF>(), QString("SizeF"));
    QCOMPARE(SerializationHelpers::elementTag<QRect>(), QString("Rect"));
    QCOMPARE(SerializationHelpers::elementTag<QLineF>(), QString("LineF"));
}

void tst_SerializationHelpers::readsBackWhatItWrote()
{
    for (int i = 0; i < 200; ++i) {
        QVERIFY(survives(QPoint(anyInt(), anyInt())));
        QVERIFY(survives(QPointF(anyDouble(), anyDouble())));
        QVERIFY(survives(QSize(anyInt(), anyInt())));
        QVERIFY(survives(QSizeF(anyDouble(), anyDouble())));
        QVERIFY(survives(QRect(QPoint(anyInt(), anyInt()), QPoint(anyInt(), anyInt()))));
        QVERIFY(survives(QRectF(anyDouble(), anyDouble(), anyDouble(), anyDouble())));
        QVERIFY(survives(QLine(anyInt(), anyInt(), anyInt(), anyInt())));
        QVERIFY(survives(QLineF(anyDouble(), anyDouble(), anyDouble(), anyDouble())));
    }
    constexpr int Least = std::numeric_limits<int>::min();
    constexpr int Most = std::numeric_limits<int>::max();
    QVERIFY(survives(QRect(QPoint(Least, Least), QPoint(Most, Most))));
    QVERIFY(survives(QRect()));
}

void tst_SerializationHelpers::refusesIncompleteElements_data()
{
    QTest::addColumn<QString>("xml");
    QTest::newRow("another type") << "<Size><Width>1</Width><Height>2</Height></Size>";
    QTest::newRow("nothing in it") << "<Point/>";
    QTest::newRow("one part") << "<Point><X>1</X></Point>";
    QTest::newRow("no number") << "<Point><X>1</X><Y>two</Y></Point>";
    QTest::newRow("fraction") << "<Point><X>1</X><Y>2.5</Y></Point>";
    QTest::newRow("beyond int") << "<Point><X>1</X><Y>4294967296</Y></Point>";
    QTest::newRow("no text") << "<Point><X>1</X><Y><Z>2</Z></Y></Point>";
    QTest::newRow("a level too deep") << "<Point><P><X>1</X><Y>2</Y></P></Point>";
    QTest::newRow("rectangle of doubles") << "<Rect><PointF><X>1</X><Y>2</Y></PointF>"
                                             "<SizeF><Width>1</Width><Height>2</Height></SizeF></Rect>";
    QTest::newRow("line with one end") << "<Line><Point1><Point><X>1</X><Y>2</Y></Point></Point1></Line>";
    QTest::newRow("line without points") << "<Line><Point1/><Point2/></Line>";
}

void tst_SerializationHelpers::refusesIncompleteElements()
{
    QFETCH(QString, xml);
    QVERIFY(isRefused(xml, QPoint(8, 9)));
    QVERIFY(isRefused(xml, QRect(1, 2, 3, 4)));
    QVERIFY(isRefused(xml, QLine(1, 2, 3, 4)));
    QVERIFY(
        isRefused(QString(xml).replace("Point>", "PointF>").replace("Line", "LineF"), QLineF(1, 2, 3, 4)));
}

void tst_SerializationHelpers::readsPartsInAnyOrder()
{
    QRectF rect;
    QVERIFY(
        read("<RectF><!-- by hand --><SizeF> <Height> 4e1 </Height><Depth>9</Depth><Width>3</Width></SizeF>\n"
             "<PointF><Y>2</Y><X>1</X></PointF></RectF>",
             rect));
    QCOMPARE(rect, QRectF(1, 2, 3, 40));
}

QTEST_GUILESS_MAIN(tst_SerializationHelpers)
#include "tst_SerializationHelpers.moc"
