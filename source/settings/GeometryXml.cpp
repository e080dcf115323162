// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "GeometryXml.h"

#include "SerializationHelpers.h"
#include "XmlElementCursor.h"

namespace PYXRuntime::GeometryXml {
namespace {

bool readNumber(XmlElementCursor &cursor, int &number)
{
    bool bOk = false;
    number = cursor.takeText().toInt(&bOk);
    return bOk;
}

bool readNumber(XmlElementCursor &cursor, double &number)
{
    bool bOk = false;
    number = cursor.takeText().toDouble(&bOk);
    return bOk;
}

/** Reads the two children that make up a value, in whatever order they stand; others are passed over. */
template <typename ReadFirst, typename ReadSecond>
bool readParts(XmlElementCursor &cursor, const QString &firstTag, ReadFirst readFirst,
               const QString &secondTag, ReadSecond readSecond)
{
    bool bFirst = false;
    bool bSecond = false;
    while (cursor.enterChild()) {
        const QString tag = cursor.tag();
        if (!bFirst && tag == firstTag)
            bFirst = readFirst();
        else if (!bSecond && tag == secondTag)
            bSecond = readSecond();
        else
            cursor.skip();
    }
    return bFirst && bSecond;
}

template <typename Value, typename Number>
bool readPair(XmlElementCursor &cursor, const QString &firstTag, const QString &secondTag, Value &value)
{
    Number first = 0;
    Number second = 0;
    const bool bOk = readParts(
        cursor, firstTag, [&] { return readNumber(cursor, first); }, secondTag,
        [&] { return readNumber(cursor, second); });
    if (bOk)
        value = Value(first, second);
    return bOk;
}

template <typename Point, typename Size>
bool readCornerAndSize(XmlElementCursor &cursor, Point &corner, Size &size)
{
    return readParts(
        cursor, SerializationHelpers::elementTag<Point>(), [&] { return read(cursor, corner); },
        SerializationHelpers::elementTag<Size>(), [&] { return read(cursor, size); });
}

/** The one point within "Point1" or "Point2". */
template <typename Point>
bool readEnd(XmlElementCursor &cursor, Point &point)
{
    bool bRead = false;
    while (cursor.enterChild()) {
        if (!bRead && cursor.tag() == SerializationHelpers::elementTag<Point>())
            bRead = read(cursor, point);
        else
            cursor.skip();
    }
    return bRead;
}

template <typename Line, typename Point>
bool readLine(XmlElementCursor &cursor, Line &line)
{
    Point first;
    Point second;
    const bool bOk = readParts(
        cursor, QStringLiteral("Point1"), [&] { return readEnd(cursor, first); }, QStringLiteral("Point2"),
        [&] { return readEnd(cursor, second); });
    if (bOk)
        line = Line(first, second);
    return bOk;
}

/** The last coordinate of a span, wrapped as the writer's subtraction wraps: huge rectangles come back. */
int lastCoordinate(int first, int length)
{
    return int(quint32(first) + quint32(length) - 1U);
}

} // namespace

bool read(XmlElementCursor &cursor, QPoint &point)
{
    return readPair<QPoint, int>(cursor, QStringLiteral("X"), QStringLiteral("Y"), point);
}

bool read(XmlElementCursor &cursor, QPointF &point)
{
    return readPair<QPointF, double>(cursor, QStringLiteral("X"), QStringLiteral("Y"), point);
}

bool read(XmlElementCursor &cursor, QSize &size)
{
    return readPair<QSize, int>(cursor, QStringLiteral("Width"), QStringLiteral("Height"), size);
}

bool read(XmlElementCursor &cursor, QSizeF &size)
{
    return readPair<QSizeF, double>(cursor, QStringLiteral("Width"), QStringLiteral("Height"), size);
}

bool read(XmlElementCursor &cursor, QRect &rect)
{
    QPoint corner;
    QSize size;
    if (!readCornerAndSize(cursor, corner, size))
        return false;
    rect.setCoords(corner.x(), corner.y(), lastCoordinate(corner.x(), size.width()),
                   lastCoordinate(corner.y(), size.height()));
    return true;
}

bool read(XmlElementCursor &cursor, QRectF &rect)
{
    QPointF corner;
    QSizeF size;
    const bool bOk = readCornerAndSize(cursor, corner, size);
    if (bOk)
        rect = QRectF(corner, size);
    return bOk;
}

bool read(XmlElementCursor &cursor, QLine &line)
{
    return readLine<QLine, QPoint>(cursor, line);
}

bool read(XmlElementCursor &cursor, QLineF &line)
{
    return readLine<QLineF, QPointF>(cursor, line);
}

} // namespace PYXRuntime::GeometryXml
