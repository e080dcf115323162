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
    void writesElements();
    void readsBackWhatItWrote();
    void refusesIncompleteElements();
};

void tst_SerializationHelpers::writesElements()
{
    const QString size = "<Size><Width>3</Width><Height>4</Height></Size>";
    const QString realPoint = "<PointF><X>0.1000000000</X><Y>-2.0000000000</Y></PointF>";
    const QString realSize =
        "<SizeF><Width>10000000000.0000000000</Width><Height>0.3333333333</Height></SizeF>";
    QCOMPARE(written(QRect(-1, 2, 3, 4)), "<Rect><Point><X>-1</X><Y>2</Y></Point>" + size + "</Rect>");
    QCOMPARE(written(QRectF(0.1, -2, 1e10, 1.0 / 3)), "<RectF>" + realPoint + realSize + "</RectF>");
    QCOMPARE(written(QLine(1, 2, 3, 4)), "<Line><Point1>" + written(QPoint(1, 2)) + "</Point1><Point2>" +
                                             written(QPoint(3, 4)) + "</Point2></Line>");
    QCOMPARE(written(QLineF(1, 2, 3, 4)), "<LineF><Point1>" + written(QPointF(1, 2)) + "</Point1><Point2>" +
                                              written(QPointF(3, 4)) + "</Point2></LineF>");
}

void tst_SerializationHelpers::readsBackWhatItWrote()
{
    QRandomGenerator random(4711);
    const auto anyInt = [&random] { return int(random.generate()); };
    const auto anyDouble = [&] { return anyInt() / 1024.0; }; // exactly what ten decimals can hold
    for (int i = 0; i < 200; ++i) {
        QVERIFY(survives(QPoint(anyInt(), anyInt())));
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

void tst_SerializationHelpers::refusesIncompleteElements()
{
    const char *const elements[] = {
        "<Size><Width>1</Width><Height>2</Height></Size>",
        "<Point/>",
        "<Point><X>1</X></Point>",
        "<Point><X>1</X><Y>two</Y></Point>",
        "<Point><X>1</X><Y>2.5</Y></Point>",
        "<Point><X>1</X><Y>4294967296</Y></Point>",
        "<Point><X>1</X><Y><Z>2</Z></Y></Point>",
        "<Point><P><X>1</X><Y>2</Y></P></Point>",
        "<Rect><PointF><X>1</X><Y>2</Y></PointF><SizeF><Width>1</Width><Height>2</Height></SizeF></Rect>",
        "<Line><Point1><Point><X>1</X><Y>2</Y></Point></Point1></Line>",
        "<Line><Point1/><Point2/></Line>"};
    for (const char *const xml : elements) {
        QVERIFY2(isRefused(xml, QPoint(8, 9)), xml);
        QVERIFY2(isRefused(xml, QRect(1, 2, 3, 4)), xml);
        QVERIFY2(isRefused(xml, QLine(1, 2, 3, 4)), xml);
    }
    // Whatever the order, and whatever else is there.
    QRectF rect;
    QVERIFY(
        read("<RectF><!-- by hand --><SizeF> <Height> 4e1 </Height><Depth>9</Depth><Width>3</Width></SizeF>"
             "\n<PointF><Y>2</Y><X>1</X></PointF></RectF>",
             rect));
    QCOMPARE(rect, QRectF(1, 2, 3, 40));
}

QTEST_GUILESS_MAIN(tst_SerializationHelpers)
#include "tst_SerializationHelpers.moc"
