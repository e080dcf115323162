// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "StatusHashXmlWriter.h"

#include "PYXStatusHash.h"
#include "PYXTraceWrapper.h"
#include "SerializationHelpers.h"
#include "StatusHashXmlForms.h"
#include "StatusHashXmlReader.h"
#include "VariantStreamChecker.h"
#include "XmlCharacters.h"

#include <QtCore/QXmlStreamWriter>

#include <cmath>
#include <limits>

namespace PYXRuntime {
namespace {

constexpr const char *TraceFile = "source\\PYXStatusHash";
constexpr int Decimals = 20;
const QLatin1String CarriageReturn("#13");

QLatin1String geometryWord(int typeId)
{
    switch (typeId) {
    case QMetaType::QPoint:
        return StatusHashXmlForms::Point;
    case QMetaType::QPointF:
        return StatusHashXmlForms::PointF;
    case QMetaType::QSize:
        return StatusHashXmlForms::Size;
    case QMetaType::QSizeF:
        return StatusHashXmlForms::SizeF;
    case QMetaType::QRect:
        return StatusHashXmlForms::Rect;
    case QMetaType::QRectF:
        return StatusHashXmlForms::RectF;
    case QMetaType::QLine:
        return StatusHashXmlForms::Line;
    case QMetaType::QLineF:
        return StatusHashXmlForms::LineF;
    default:
        return StatusHashXmlForms::Variant;
    }
}

QLatin1String typeWord(const QVariant &value)
{
    switch (value.userType()) {
    case QMetaType::Bool:
        return StatusHashXmlForms::Bool;
    case QMetaType::Int:
        return StatusHashXmlForms::Int;
    case QMetaType::UInt:
        return StatusHashXmlForms::UInt;
    case QMetaType::LongLong:
        return StatusHashXmlForms::LongLong;
    case QMetaType::ULongLong:
        return StatusHashXmlForms::ULongLong;
    case QMetaType::Double:
        return StatusHashXmlForms::Double;
    case QMetaType::QString: // a text that would break the document is kept as bytes
        return XmlCharacters::isText(value.toString()) ? StatusHashXmlForms::String
                                                       : StatusHashXmlForms::Variant;
    case QMetaType::QVariantHash:
        return StatusHashXmlForms::Hash;
    default:
        return value.userType() == qMetaTypeId<PYXStatusHash>() ? StatusHashXmlForms::StatusHash
                                                                : geometryWord(value.userType());
    }
}

/** Null where the value could not be read back. */
QByteArray variantText(const QVariant &value)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(StatusHashXmlForms::VariantVersion);
    stream << value;
    return VariantStreamChecker(StatusHashXmlForms::VariantVersion).accepts(bytes) ? bytes.toPercentEncoding()
                                                                                   : QByteArray();
}

/** Readers turn a carriage return that stands as it is into a line feed. */
void writeText(QXmlStreamWriter &writer, const QString &text)
{
    int start = 0;
    for (int end = text.indexOf(QLatin1Char('\r')); end >= 0; end = text.indexOf(QLatin1Char('\r'), start)) {
        writer.writeCharacters(text.mid(start, end - start));
        writer.writeEntityReference(CarriageReturn);
        start = end + 1;
    }
    writer.writeCharacters(text.mid(start));
}

double withinInt(double number)
{
    constexpr double Limit = std::numeric_limits<int>::max() - 1;
    return std::isnan(number) ? 0 : qBound(-Limit, number, Limit);
}

QRect integerRect(const QRectF &rect)
{
    QRectF limited;
    limited.setCoords(withinInt(rect.left()), withinInt(rect.top()), withinInt(rect.right()),
                      withinInt(rect.bottom()));
    return rect == limited ? rect.toRect() : limited.toRect();
}

bool isInteger(QLatin1String type)
{
    return type == StatusHashXmlForms::Int || type == StatusHashXmlForms::UInt ||
           type == StatusHashXmlForms::LongLong || type == StatusHashXmlForms::ULongLong;
}

void writeGeometry(QXmlStreamWriter &writer, const QVariant &value)
{
    switch (value.userType()) {
    case QMetaType::QPoint:
        return SerializationHelpers::toXmlStream(writer, value.toPoint());
    case QMetaType::QPointF:
        return SerializationHelpers::toXmlStream(writer, value.toPointF());
    case QMetaType::QSize:
        return SerializationHelpers::toXmlStream(writer, value.toSize());
    case QMetaType::QSizeF:
        return SerializationHelpers::toXmlStream(writer, value.toSizeF());
    case QMetaType::QRect:
        return SerializationHelpers::toXmlStream(writer, value.toRect());
    case QMetaType::QRectF:
        return SerializationHelpers::toXmlStream(writer, integerRect(value.toRectF()));
    case QMetaType::QLine:
        return SerializationHelpers::toXmlStream(writer, value.toLine());
    default:
        return SerializationHelpers::toXmlStream(writer, value.toLineF());
    }
}

/** Writes the content of an entry that is no hash. */
void writeSimpleValue(QXmlStreamWriter &writer, QLatin1String type, const QVariant &value)
{
    if (type == StatusHashXmlForms::String)
        writeText(writer, value.toString());
    else if (type == StatusHashXmlForms::Bool)
        writer.writeCharacters(value.toBool() ? StatusHashXmlForms::True : StatusHashXmlForms::False);
    else if (type == StatusHashXmlForms::Double)
        writer.writeCharacters(QString::number(value.toDouble(), 'f', Decimals));
    else if (isInteger(type))
        writer.writeCharacters(value.toString());
    else
        writeGeometry(writer, value);
}

bool isHash(QLatin1String type)
{
    return type == StatusHashXmlForms::Hash || type == StatusHashXmlForms::StatusHash;
}

/** Attributes can hold less than texts: readers make blanks of carriage returns. */
bool isKey(const QString &key)
{
    return XmlCharacters::isText(key) && !key.contains(QLatin1Char('\r'));
}

void warn(const QString &text)
{
    PYXTraceWrapper::staticTraceWarn(QLatin1String("PYXStatusHash: ") + text, TraceFile, __LINE__);
}

} // namespace

void StatusHashXmlWriter::write(const PYXStatusHash &hash)
{
    m_xml.writeStartElement(StatusHashXmlForms::StatusHash);
    m_xml.writeAttribute(StatusHashXmlForms::MagicAttribute, QString::number(hash.m_magicNumber));
    _writeEntries(hash.m_entries);
    m_xml.writeEndElement();
}

void StatusHashXmlWriter::_writeEntries(const QVariantHash &entries)
{
    QStringList keys = entries.keys();
    keys.sort(Qt::CaseSensitive);
    ++m_level;
    for (const QString &key : qAsConst(keys))
        _writeEntry(key, entries.value(key));
    --m_level;
}

void StatusHashXmlWriter::_writeEntry(const QString &key, const QVariant &value)
{
    const QLatin1String type = typeWord(value);
    const bool bVariant = type == StatusHashXmlForms::Variant;
    const QByteArray bytes = bVariant ? variantText(value) : QByteArray();
    const bool bTooDeep = isHash(type) && m_level >= StatusHashXmlReader::MaximumLevels;
    if (bTooDeep || (bVariant && bytes.isEmpty()) || !isKey(key)) {
        warn(QStringLiteral("the value of '%1' (%2) could not be restored and is not saved")
                 .arg(key, QString::fromLatin1(value.typeName())));
        return;
    }
    _startEntry(key, type);
    if (bVariant)
        m_xml.writeCharacters(QString::fromLatin1(bytes.constData(), bytes.size()));
    else if (type == StatusHashXmlForms::Hash)
        _writeEntries(value.toHash());
    else if (type == StatusHashXmlForms::StatusHash)
        write(value.value<PYXStatusHash>());
    else
        writeSimpleValue(m_xml, type, value);
    m_xml.writeEndElement();
}

void StatusHashXmlWriter::_startEntry(const QString &key, QLatin1String type)
{
    if (XmlCharacters::isName(key)) {
        m_xml.writeStartElement(key);
    } else {
        warn(QStringLiteral("the key '%1' is no name in XML").arg(key));
        m_xml.writeStartElement(StatusHashXmlForms::EntryTag);
        m_xml.writeAttribute(StatusHashXmlForms::KeyAttribute, key);
    }
    m_xml.writeAttribute(StatusHashXmlForms::TypeAttribute, type);
}

} // namespace PYXRuntime
