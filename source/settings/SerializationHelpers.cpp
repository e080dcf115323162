// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "SerializationHelpers.h"

#include "DomElementCursor.h"
#include "GeometryXml.h"

#include <QtCore/QXmlStreamWriter>

namespace PYXRuntime {
namespace {

constexpr int Decimals = 10;

QString numberText(int number)
{
    return QString::number(number);
}

QString numberText(double number)
{
    return QString::number(number, 'f', Decimals);
}

template <typename Number>
void writePair(QXmlStreamWriter &writer, const QString &tag, const QString &firstTag, Number first,
               const QString &secondTag, Number second)
{
    writer.writeStartElement(tag);
    writer.writeTextElement(firstTag, numberText(first));
    writer.writeTextElement(secondTag, numberText(second));
    writer.writeEndElement();
}

template <typename T>
void writePoint(QXmlStreamWriter &writer, const T &point)
{
    writePair(writer, SerializationHelpers::elementTag<T>(), QStringLiteral("X"), point.x(),
              QStringLiteral("Y"), point.y());
}

template <typename T>
void writeSize(QXmlStreamWriter &writer, const T &size)
{
    writePair(writer, SerializationHelpers::elementTag<T>(), QStringLiteral("Width"), size.width(),
              QStringLiteral("Height"), size.height());
}

template <typename T>
void writeLine(QXmlStreamWriter &writer, const T &line)
{
    writer.writeStartElement(SerializationHelpers::elementTag<T>());
    writer.writeStartElement(QStringLiteral("Point1"));
    SerializationHelpers::toXmlStream(writer, line.p1());
    writer.writeEndElement();
    writer.writeStartElement(QStringLiteral("Point2"));
    SerializationHelpers::toXmlStream(writer, line.p2());
    writer.writeEndElement();
    writer.writeEndElement();
}

/** Wraps where the span exceeds an int; reading wraps it back. */
int spanLength(int first, int last)
{
    return int(quint32(last) - quint32(first) + 1U);
}

template <typename T>
bool readElement(const QDomElement &element, T &value)
{
    if (element.tagName() != SerializationHelpers::elementTag<T>())
        return false;
    DomElementCursor cursor(element);
    return GeometryXml::read(cursor, value);
}

} // namespace

void SerializationHelpers::toXmlStream(QXmlStreamWriter &writer, const QPoint &point)
{
    writePoint(writer, point);
}

void SerializationHelpers::toXmlStream(QXmlStreamWriter &writer, const QPointF &point)
{
    writePoint(writer, point);
}

void SerializationHelpers::toXmlStream(QXmlStreamWriter &writer, const QSize &size)
{
    writeSize(writer, size);
}

void SerializationHelpers::toXmlStream(QXmlStreamWriter &writer, const QSizeF &size)
{
    writeSize(writer, size);
}

void SerializationHelpers::toXmlStream(QXmlStreamWriter &writer, const QRect &rect)
{
    writer.writeStartElement(elementTag<QRect>());
    writePoint(writer, rect.topLeft());
    writeSize(writer, QSize(spanLength(rect.left(), rect.right()), spanLength(rect.top(), rect.bottom())));
    writer.writeEndElement();
}

void SerializationHelpers::toXmlStream(QXmlStreamWriter &writer, const QRectF &rect)
{
    writer.writeStartElement(elementTag<QRectF>());
    writePoint(writer, rect.topLeft());
    writeSize(writer, rect.size());
    writer.writeEndElement();
}

void SerializationHelpers::toXmlStream(QXmlStreamWriter &writer, const QLine &line)
{
    writeLine(writer, line);
}

void SerializationHelpers::toXmlStream(QXmlStreamWriter &writer, const QLineF &line)
{
    writeLine(writer, line);
}

bool SerializationHelpers::fromXml(QDomElement &element, QPoint &point)
{
    return readElement(element, point);
}

bool SerializationHelpers::fromXml(QDomElement &element, QPointF &point)
{
    return readElement(element, point);
}

bool SerializationHelpers::fromXml(QDomElement &element, QSize &size)
{
    return readElement(element, size);
}

bool SerializationHelpers::fromXml(QDomElement &element, QSizeF &size)
{
    return readElement(element, size);
}

bool SerializationHelpers::fromXml(QDomElement &element, QRect &rect)
{
    return readElement(element, rect);
}

bool SerializationHelpers::fromXml(QDomElement &element, QRectF &rect)
{
    return readElement(element, rect);
}

bool SerializationHelpers::fromXml(QDomElement &element, QLine &line)
{
    return readElement(element, line);
}

bool SerializationHelpers::fromXml(QDomElement &element, QLineF &line)
{
    return readElement(element, line);
}

} // namespace PYXRuntime
