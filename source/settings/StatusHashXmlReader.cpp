// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "StatusHashXmlReader.h"

#include "GeometryXml.h"
#include "PYXStatusHash.h"
#include "SerializationHelpers.h"
#include "VariantStreamChecker.h"
#include "XmlElementCursor.h"

#include <algorithm>
#include <new>

namespace PYXRuntime {
namespace {

const QLatin1String ParsePrefix("Error parsing PYXStatusHash XML : ");

bool takeBool(XmlElementCursor &cursor, QVariant &value)
{
    value = cursor.takeText() == StatusHashXmlForms::True;
    return true;
}

bool takeInt(XmlElementCursor &cursor, QVariant &value)
{
    value = cursor.takeText().toInt();
    return true;
}

bool takeUInt(XmlElementCursor &cursor, QVariant &value)
{
    value = cursor.takeText().toUInt();
    return true;
}

bool takeLongLong(XmlElementCursor &cursor, QVariant &value)
{
    value = cursor.takeText().toLongLong();
    return true;
}

bool takeULongLong(XmlElementCursor &cursor, QVariant &value)
{
    value = cursor.takeText().toULongLong();
    return true;
}

bool takeDouble(XmlElementCursor &cursor, QVariant &value)
{
    value = cursor.takeText().toDouble();
    return true;
}

bool takeString(XmlElementCursor &cursor, QVariant &value)
{
    value = cursor.takeText();
    return true;
}

bool takeVariant(XmlElementCursor &cursor, QVariant &value)
{
    const QByteArray bytes = QByteArray::fromPercentEncoding(cursor.takeText().trimmed().toLatin1());
    if (!VariantStreamChecker(StatusHashXmlForms::VariantVersion).accepts(bytes))
        return false;
    QDataStream stream(bytes);
    stream.setVersion(StatusHashXmlForms::VariantVersion);
    try {
        stream >> value;
    } catch (const std::bad_alloc &) {
        return false; // asked for by the operator of a type of the application
    }
    return stream.status() == QDataStream::Ok;
}

/** Reads the first child with the tag of T; leaves the entry. */
template <typename T>
bool takeGeometry(XmlElementCursor &cursor, QVariant &value)
{
    bool bRead = false;
    while (cursor.enterChild()) {
        T geometry;
        if (!bRead && cursor.tag() == SerializationHelpers::elementTag<T>()) {
            bRead = GeometryXml::read(cursor, geometry);
            value = geometry;
        } else {
            cursor.skip();
        }
    }
    return bRead;
}

/** Stands as a rectangle of integers. The size is that of a double: Qt's conversion may exceed an int. */
bool takeRectF(XmlElementCursor &cursor, QVariant &value)
{
    const bool bRead = takeGeometry<QRect>(cursor, value);
    const QRect rect = value.toRect();
    value = QRectF(rect.left(), rect.top(), double(rect.right()) - rect.left() + 1,
                   double(rect.bottom()) - rect.top() + 1);
    return bRead;
}

struct struForm
{
    QLatin1String type;
    bool (*take)(XmlElementCursor &cursor, QVariant &value);
};

constexpr struForm Forms[] = {
    {StatusHashXmlForms::String, takeString},
    {StatusHashXmlForms::Int, takeInt},
    {StatusHashXmlForms::Bool, takeBool},
    {StatusHashXmlForms::Double, takeDouble},
    {StatusHashXmlForms::UInt, takeUInt},
    {StatusHashXmlForms::LongLong, takeLongLong},
    {StatusHashXmlForms::ULongLong, takeULongLong},
    {StatusHashXmlForms::Variant, takeVariant},
    {StatusHashXmlForms::Point, takeGeometry<QPoint>},
    {StatusHashXmlForms::PointF, takeGeometry<QPointF>},
    {StatusHashXmlForms::Size, takeGeometry<QSize>},
    {StatusHashXmlForms::SizeF, takeGeometry<QSizeF>},
    {StatusHashXmlForms::Rect, takeGeometry<QRect>},
    {StatusHashXmlForms::RectF, takeRectF},
    {StatusHashXmlForms::Line, takeGeometry<QLine>},
    {StatusHashXmlForms::LineF, takeGeometry<QLineF>},
};

} // namespace

bool StatusHashXmlReader::read(PYXStatusHash &hash)
{
    quint32 magicNumber = 0;
    QVariantHash entries;
    m_version = hash.m_streamVersion;
    if (!_readMagicNumber(hash, magicNumber) || !_readEntries(entries))
        return false;
    hash.m_magicNumber = magicNumber;
    hash.m_entries.swap(entries);
    hash.m_bDirty = true;
    return true;
}

bool StatusHashXmlReader::_readMagicNumber(const PYXStatusHash &hash, quint32 &magicNumber)
{
    magicNumber = hash.m_magicNumber;
    if (!m_cursor.hasAttribute(StatusHashXmlForms::MagicAttribute))
        return true;
    bool bNumber = false;
    magicNumber = m_cursor.attribute(StatusHashXmlForms::MagicAttribute).toUInt(&bNumber);
    if (!bNumber)
        return _report(QStringLiteral("the magic number is none"));
    return hash._accepts(magicNumber);
}

bool StatusHashXmlReader::_readEntries(QVariantHash &entries)
{
    if (m_level >= MaximumLevels)
        return _report(QStringLiteral("hashes are nested too deeply"));
    ++m_level;
    bool bOk = true;
    while (bOk && m_cursor.enterChild())
        bOk = _readEntry(entries);
    --m_level;
    return bOk;
}

bool StatusHashXmlReader::_readEntry(QVariantHash &entries)
{
    const QString tag = m_cursor.tag();
    const bool bKeyAttribute =
        tag == StatusHashXmlForms::EntryTag && m_cursor.hasAttribute(StatusHashXmlForms::KeyAttribute);
    const QString key = bKeyAttribute ? m_cursor.attribute(StatusHashXmlForms::KeyAttribute) : tag;
    const QString type = m_cursor.attribute(StatusHashXmlForms::TypeAttribute);
    QVariant value;
    bool bKnown = true;
    if (!_readValue(type, value, bKnown))
        return _report(QStringLiteral("the value of '%1' (%2) cannot be read").arg(key, type));
    if (bKnown)
        entries.insert(key, value);
    return true;
}

bool StatusHashXmlReader::_readValue(const QString &type, QVariant &value, bool &bKnown)
{
    const auto *const form = std::find_if(std::begin(Forms), std::end(Forms),
                                          [&type](const struForm &entry) { return type == entry.type; });
    if (form != std::end(Forms))
        return form->take(m_cursor, value);
    if (type == StatusHashXmlForms::Hash)
        return _readHash(value);
    if (type == StatusHashXmlForms::StatusHash)
        return _readStatusHash(value);
    bKnown = false;
    m_cursor.skip();
    return true;
}

bool StatusHashXmlReader::_readHash(QVariant &value)
{
    QVariantHash entries;
    if (!_readEntries(entries))
        return false;
    value = entries;
    return true;
}

bool StatusHashXmlReader::_readStatusHash(QVariant &value)
{
    bool bRead = false;
    while (m_cursor.enterChild()) {
        if (bRead || m_cursor.tag() != RootTag) {
            m_cursor.skip();
            continue;
        }
        PYXStatusHash hash(m_version);
        if (!read(hash))
            return false;
        value = QVariant::fromValue(hash);
        bRead = true;
    }
    return bRead;
}

/** Keeps the innermost of the problems. */
bool StatusHashXmlReader::_report(const QString &problem)
{
    if (m_problem.isEmpty())
        m_problem = ParsePrefix + problem;
    return false;
}

} // namespace PYXRuntime
