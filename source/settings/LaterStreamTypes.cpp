// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "LaterStreamTypes.h"

#include "GuiStreamTypes.h"
#include "StreamCursor.h"

#include <QtCore/QMetaType>
#include <QtCore/QTimeZone>

#include <algorithm>

namespace PYXRuntime::LaterStreamTypes {
namespace {

constexpr int DateSize = 8;
constexpr int PlainDateTimeSize = DateSize + 4;
constexpr int PaletteGroups = 3;
constexpr int PaletteRoles = 20;
constexpr int NewPaletteRoles = 21;
constexpr int FontSizes = 8 + 4 + 1;            // in points and pixels, style hint
constexpr int FontTail = 1 + 1 + 1 + 2 + 1 + 8; // character set, weight, bits, stretch, more bits, spacings
constexpr char OffsetZone[] = "\0O\0f\0f\0s\0e\0t\0F\0r\0o\0m\0U\0t\0c";

bool isBetweenBasicVersions(QDataStream::Version version)
{
    return version >= QDataStream::Qt_4_2 && version < QDataStream::Qt_4_6;
}

bool isGuiType(int typeId)
{
    return typeId >= QMetaType::FirstGuiType && typeId <= QMetaType::LastGuiType;
}

/** The name of a zone becomes a path below the directory of zones; it must not lead out of there. */
bool isZoneName(const QByteArray &utf16)
{
    return utf16.size() % 2 == 0 && !utf16.contains('.') && !utf16.startsWith(QByteArray("\0/", 2));
}

/** QTimeZone can read a zone that the system does not have, but crashes when it writes it again. */
bool isKnownZone(const QByteArray &bytes)
{
    QDataStream stream(bytes);
    QTimeZone zone;
    stream >> zone;
    return stream.status() == QDataStream::Ok && zone.isValid();
}

bool walkZone(StreamCursor &cursor)
{
    const QByteArray bytes = cursor.rest();
    const QByteArray name = cursor.byteArray();
    bool bSafe = isZoneName(name);
    if (name == QByteArray::fromRawData(OffsetZone, int(sizeof OffsetZone) - 1)) {
        bSafe = isZoneName(cursor.byteArray());
        cursor.skip(4); // seconds, names, country, comment
        cursor.skipString();
        cursor.skipString();
        cursor.skip(4);
        cursor.skipString();
    }
    return !cursor.failed() && bSafe && isKnownZone(bytes) ? true : cursor.fail();
}

bool walkDateTime(StreamCursor &cursor, QDataStream::Version version)
{
    cursor.skip(PlainDateTimeSize);
    const auto spec = cursor.number<qint8>();
    if (spec < Qt::LocalTime || spec > Qt::TimeZone)
        return cursor.fail(); // QDateTime would take it for a zone that is not there
    if (version < QDataStream::Qt_5_2)
        return !cursor.failed();
    if (spec == Qt::OffsetFromUTC)
        return cursor.skip(4);
    return spec == Qt::TimeZone ? walkZone(cursor) : !cursor.failed();
}

bool walkFont(StreamCursor &cursor, QDataStream::Version version)
{
    cursor.skipString();
    if (version >= QDataStream::Qt_5_4)
        cursor.skipString(); // the name of the style
    cursor.skip(FontSizes);
    cursor.skip(version >= QDataStream::Qt_5_4 ? 2 : 1); // style strategy
    cursor.skip(FontTail);
    cursor.skip(version >= QDataStream::Qt_5_4 ? 1 : 0); // hinting
    cursor.skip(version >= QDataStream::Qt_5_6 ? 1 : 0); // capitals
    const quint32 families = version >= QDataStream::Qt_5_13 ? cursor.count(4) : 0;
    for (quint32 i = 0; i < families && !cursor.failed(); ++i)
        cursor.skipString();
    return !cursor.failed();
}

bool walkPalette(StreamCursor &cursor, QDataStream::Version version)
{
    const int roles = version >= QDataStream::Qt_5_12 ? NewPaletteRoles : PaletteRoles;
    for (int i = 0; i < PaletteGroups * roles && !cursor.failed(); ++i)
        GuiStreamTypes::walk(cursor, QMetaType::QBrush, version);
    return !cursor.failed();
}

} // namespace

bool isDifferent(int typeId, QDataStream::Version version)
{
    if (isBetweenBasicVersions(version))
        return isGuiType(typeId);
    constexpr int Types[] = {QMetaType::UnknownType, QMetaType::QDate,    QMetaType::QDateTime,
                             QMetaType::QFont,       QMetaType::QPalette, QMetaType::QPen};
    return version >= QDataStream::Qt_5_0 &&
           std::find(std::begin(Types), std::end(Types), typeId) != std::end(Types);
}

bool walk(StreamCursor &cursor, int typeId, QDataStream::Version version)
{
    if (isBetweenBasicVersions(version))
        return cursor.fail();
    switch (typeId) {
    case QMetaType::UnknownType: // no longer followed by a text
        return !cursor.failed();
    case QMetaType::QDate:
        return cursor.skip(DateSize);
    case QMetaType::QDateTime:
        return walkDateTime(cursor, version);
    case QMetaType::QFont:
        return walkFont(cursor, version);
    case QMetaType::QPalette:
        return walkPalette(cursor, version);
    case QMetaType::QPen: // followed by whether it has the default width
        return GuiStreamTypes::walk(cursor, typeId, version) && cursor.skip(1);
    default:
        return cursor.fail();
    }
}

} // namespace PYXRuntime::LaterStreamTypes
