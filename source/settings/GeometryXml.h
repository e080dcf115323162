// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QLine>
#include <QtCore/QRect>

namespace PYXRuntime {

class XmlElementCursor;

/**
 * Reads the elements that SerializationHelpers writes. The cursor stands in the element, whose tag was
 * looked at; it has left it afterwards. @return false, with the value untouched, if a part is missing or
 * is no number.
 */
namespace GeometryXml {

bool read(XmlElementCursor &cursor, QPoint &point);
bool read(XmlElementCursor &cursor, QPointF &point);
bool read(XmlElementCursor &cursor, QSize &size);
bool read(XmlElementCursor &cursor, QSizeF &size);
bool read(XmlElementCursor &cursor, QRect &rect);
bool read(XmlElementCursor &cursor, QRectF &rect);
bool read(XmlElementCursor &cursor, QLine &line);
bool read(XmlElementCursor &cursor, QLineF &line);

} // namespace GeometryXml

} // namespace PYXRuntime
