// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "GuiStreamTypes.h"

#include "ImageStreamType.h"
#include "StreamCursor.h"

#include <QtCore/QMetaType>
#include <QtCore/QThread>
#include <QtGui/QBrush>
#include <QtGui/QCursor>
#include <QtGui/QGuiApplication>

namespace PYXRuntime::GuiStreamTypes {
namespace {

constexpr qint64 ColorSize = 11;
constexpr qint64 PointSize = 8;
constexpr qint64 DoubleSize = 8;
constexpr qint64 TransformSize = 9 * DoubleSize;
constexpr int RectSize = 16;
constexpr int FontTailSize = 17; // sizes, style hint and strategy, character set, weight, bits
constexpr int NewFontTailSize = FontTailSize + 11; // and stretch, extended bits, spacings
constexpr int PaletteGroups = 3;
constexpr int PaletteRoles = 17;
constexpr int NewPaletteRoles = 20;
constexpr int MaximumKeys = 4;
constexpr qint32 RegionOfRects = 10;
// The union of the rectangles is built one by one, with a copy of the region each time.
constexpr quint32 MaximumRects = 1024;
constexpr char PixmapIconEngine[] = "QPixmapIconEngine";

bool isNew(QDataStream::Version version)
{
    return version >= QDataStream::Qt_4_6;
}

/** A pixmap made without a GUI ends the process, one made off its thread is empty. */
bool canHoldPixmaps()
{
    const auto *const application = qobject_cast<QGuiApplication *>(QCoreApplication::instance());
    return application != nullptr && application->thread() == QThread::currentThread();
}

bool walkPixmap(StreamCursor &cursor)
{
    return canHoldPixmaps() ? ImageStreamType::walk(cursor) : cursor.fail();
}

bool walkGradient(StreamCursor &cursor, QDataStream::Version version)
{
    const auto type = cursor.number<qint32>();
    if (isNew(version))
        cursor.skip(qint64(3) * 4); // spread, coordinate mode, interpolation mode
    cursor.skipArray(DoubleSize + ColorSize);
    switch (type) {
    case QGradient::LinearGradient:
        return cursor.skip(4 * DoubleSize);
    case QGradient::RadialGradient:
        return cursor.skip(5 * DoubleSize);
    case QGradient::ConicalGradient:
        return cursor.skip(3 * DoubleSize);
    default:
        return cursor.fail();
    }
}

bool walkBrush(StreamCursor &cursor, QDataStream::Version version)
{
    const auto style = cursor.number<quint8>();
    cursor.skip(ColorSize);
    if (style == Qt::TexturePattern)
        walkPixmap(cursor);
    else if (style >= Qt::LinearGradientPattern && style <= Qt::ConicalGradientPattern)
        walkGradient(cursor, version);
    return cursor.skip(isNew(version) ? TransformSize : 0);
}

bool walkPen(StreamCursor &cursor, QDataStream::Version version)
{
    cursor.skip(isNew(version) ? 3 : 1);
    cursor.skip(DoubleSize);
    walkBrush(cursor, version);
    cursor.skip(DoubleSize);
    cursor.skipArray(DoubleSize);
    return cursor.skip(isNew(version) ? DoubleSize : 0);
}

bool walkPalette(StreamCursor &cursor, QDataStream::Version version)
{
    const int brushes = PaletteGroups * (isNew(version) ? NewPaletteRoles : PaletteRoles);
    for (int i = 0; i < brushes && !cursor.failed(); ++i)
        walkBrush(cursor, version);
    return !cursor.failed();
}

/** Only the form that is written: a list of rectangles. Others nest regions in regions. */
bool walkRegion(StreamCursor &cursor)
{
    const auto length = cursor.number<quint32>();
    if (length == 0)
        return !cursor.failed();
    const auto kind = cursor.number<qint32>();
    const auto rects = cursor.number<quint32>();
    if (kind != RegionOfRects || rects > MaximumRects || length != 8 + rects * RectSize)
        return cursor.fail();
    return cursor.skip(qint64(rects) * RectSize);
}

bool walkCursor(StreamCursor &cursor)
{
    if (!canHoldPixmaps())
        return cursor.fail();
    if (cursor.number<qint16>() != Qt::BitmapCursor)
        return !cursor.failed();
    const bool bPixmap = cursor.number<qint8>() != 0;
    walkPixmap(cursor);
    if (!bPixmap)
        walkPixmap(cursor);
    return cursor.skip(PointSize);
}

QByteArray streamedText(const char *ascii)
{
    QByteArray utf16;
    for (const char *c = ascii; *c != '\0'; ++c)
        utf16.append('\0').append(*c);
    return utf16;
}

bool walkIcon(StreamCursor &cursor, QDataStream::Version version)
{
    if (!canHoldPixmaps())
        return cursor.fail();
    if (!isNew(version))
        return walkPixmap(cursor);
    const QByteArray utf16 = cursor.byteArray();
    if (utf16.isEmpty())
        return !cursor.failed();
    if (utf16 != streamedText(PixmapIconEngine))
        return cursor.fail();
    const auto entries = cursor.count(4);
    for (quint32 i = 0; i < entries && !cursor.failed(); ++i) {
        walkPixmap(cursor);
        cursor.skipString();
        cursor.skip(8 + 4 + 4); // size, mode, state
    }
    return !cursor.failed();
}

bool walkKeySequence(StreamCursor &cursor)
{
    const auto keys = cursor.number<quint32>();
    return keys <= MaximumKeys ? cursor.skip(qint64(keys) * 4) : cursor.fail();
}

bool walkFloats(StreamCursor &cursor, int count, QDataStream::Version version)
{
    return cursor.skip(qint64(count) * (isNew(version) ? 8 : 4));
}

/** The types made of numbers. */
bool walkGeometry(StreamCursor &cursor, int typeId, QDataStream::Version version)
{
    switch (typeId) {
    case QMetaType::QColor:
        return cursor.skip(ColorSize);
    case QMetaType::QPolygon:
        return cursor.skipArray(PointSize);
    case QMetaType::QPolygonF:
        return cursor.skipArray(2 * DoubleSize);
    case QMetaType::QTextLength:
        return cursor.skip(4 + DoubleSize);
    case QMetaType::QMatrix:
        return cursor.skip(6 * DoubleSize);
    case QMetaType::QTransform:
        return cursor.skip(TransformSize);
    case QMetaType::QMatrix4x4:
        return walkFloats(cursor, 16, version);
    case QMetaType::QVector2D:
        return walkFloats(cursor, 2, version);
    case QMetaType::QVector3D:
        return walkFloats(cursor, 3, version);
    case QMetaType::QVector4D:
    case QMetaType::QQuaternion:
        return walkFloats(cursor, 4, version);
    case QMetaType::QSizePolicy:
        return cursor.skip(4);
    default:
        return cursor.fail();
    }
}

} // namespace

bool walk(StreamCursor &cursor, int typeId, QDataStream::Version version)
{
    switch (typeId) {
    case QMetaType::QFont:
        return cursor.skipString() && cursor.skip(isNew(version) ? NewFontTailSize : FontTailSize);
    case QMetaType::QImage:
        return ImageStreamType::walk(cursor);
    case QMetaType::QPixmap:
    case QMetaType::QBitmap:
        return walkPixmap(cursor);
    case QMetaType::QIcon:
        return walkIcon(cursor, version);
    case QMetaType::QCursor:
        return walkCursor(cursor);
    case QMetaType::QBrush:
        return walkBrush(cursor, version);
    case QMetaType::QPen:
        return walkPen(cursor, version);
    case QMetaType::QPalette:
        return walkPalette(cursor, version);
    case QMetaType::QRegion:
        return walkRegion(cursor);
    case QMetaType::QKeySequence:
        return walkKeySequence(cursor);
    case QMetaType::QColorSpace:
        return cursor.skipByteArray();
    default:
        return walkGeometry(cursor, typeId, version);
    }
}

} // namespace PYXRuntime::GuiStreamTypes
