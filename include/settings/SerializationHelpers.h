// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "pyxruntime_export.h"

#include <QtCore/QLine>
#include <QtCore/QObject>
#include <QtCore/QPoint>
#include <QtCore/QRect>
#include <QtCore/QSize>
#include <QtCore/QString>

class QDomElement;
class QXmlStreamWriter;

namespace PYXRuntime {

/**
 * Writes and reads geometry values as XML elements: QPoint(1, 2) is
 * @code
 * <Point><X>1</X><Y>2</Y></Point>
 * @endcode
 * Fractions are written with ten decimals. All functions may be called from any thread.
 */
class PYXRUNTIME_EXPORT SerializationHelpers : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(SerializationHelpers)
public:
    /** The name of the type without its "Q". */
    template <typename T>
    static QString elementTag() = delete;

    /** Writes one element where the writer stands. */
    static void toXmlStream(QXmlStreamWriter &writer, const QPoint &point);
    static void toXmlStream(QXmlStreamWriter &writer, const QPointF &point);
    static void toXmlStream(QXmlStreamWriter &writer, const QSize &size);
    static void toXmlStream(QXmlStreamWriter &writer, const QSizeF &size);
    static void toXmlStream(QXmlStreamWriter &writer, const QRect &rect);
    static void toXmlStream(QXmlStreamWriter &writer, const QRectF &rect);
    static void toXmlStream(QXmlStreamWriter &writer, const QLine &line);
    static void toXmlStream(QXmlStreamWriter &writer, const QLineF &line);

    /** @return false, with the value untouched, unless the element has the tag, all parts, and numbers in
     * them. */
    static bool fromXml(QDomElement &element, QPoint &point);
    static bool fromXml(QDomElement &element, QPointF &point);
    static bool fromXml(QDomElement &element, QSize &size);
    static bool fromXml(QDomElement &element, QSizeF &size);
    static bool fromXml(QDomElement &element, QRect &rect);
    static bool fromXml(QDomElement &element, QRectF &rect);
    static bool fromXml(QDomElement &element, QLine &line);
    static bool fromXml(QDomElement &element, QLineF &line);

private:
    SerializationHelpers() = default;
};

template <>
inline QString SerializationHelpers::elementTag<QPoint>()
{
    return QStringLiteral("Point");
}

template <>
inline QString SerializationHelpers::elementTag<QPointF>()
{
    return QStringLiteral("PointF");
}

template <>
inline QString SerializationHelpers::elementTag<QSize>()
{
    return QStringLiteral("Size");
}

template <>
inline QString SerializationHelpers::elementTag<QSizeF>()
{
    return QStringLiteral("SizeF");
}

template <>
inline QString SerializationHelpers::elementTag<QRect>()
{
    return QStringLiteral("Rect");
}

template <>
inline QString SerializationHelpers::elementTag<QRectF>()
{
    return QStringLiteral("RectF");
}

template <>
inline QString SerializationHelpers::elementTag<QLine>()
{
    return QStringLiteral("Line");
}

template <>
inline QString SerializationHelpers::elementTag<QLineF>()
{
    return QStringLiteral("LineF");
}

} // namespace PYXRuntime
