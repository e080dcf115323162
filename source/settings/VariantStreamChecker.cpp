// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "VariantStreamChecker.h"

#include "GuiStreamTypes.h"
#include "LaterStreamTypes.h"
#include "PYXStatusHash.h"
#include "StatusHashStream.h"
#include "StreamCursor.h"

#include <QtCore/QMetaType>
#include <QtCore/QRegExp>
#include <QtCore/QVariant>

#include <algorithm>
#include <new>

namespace PYXRuntime {
namespace {

constexpr int MaximumLevels = 100;
// Type numbers in streams of Qt 4, as QVariant::load() translates them.
constexpr quint32 StreamedUserType = 127;
constexpr quint32 FirstExtendedType = 128;
constexpr int ExtendedTypeShift = 97;
constexpr quint32 StreamedSizePolicy = 75;
constexpr quint32 LastShiftedGuiType = 86;

constexpr qint64 SmallestVariant = 4;
constexpr qint64 SmallestString = 4;

// Patterns are compiled while they are loaded, by a compiler that recurses and multiplies repetitions out.
constexpr int MaximumPatternLength = 4096;
constexpr int MaximumPatternGroups = 100;

enum eJsonType : quint8 {
    ekJson_Null = 0,
    ekJson_Bool = 1,
    ekJson_Double = 2,
    ekJson_String = 3,
    ekJson_Array = 4,
    ekJson_Object = 5,
    ekJson_Undefined = 0x80
};

struct struFixedSize
{
    int typeId;
    int size;
};

/** Types that take the same number of bytes in the stream versions of Qt 4.0 and 4.6. */
constexpr struFixedSize FixedSizes[] = {
    {QMetaType::Bool, 1},      {QMetaType::Int, 4},
    {QMetaType::UInt, 4},      {QMetaType::LongLong, 8},
    {QMetaType::ULongLong, 8}, {QMetaType::Double, 8},
    {QMetaType::QChar, 2},     {QMetaType::QDate, 4},
    {QMetaType::QTime, 4},     {QMetaType::QDateTime, 9},
    {QMetaType::QRect, 16},    {QMetaType::QRectF, 32},
    {QMetaType::QSize, 8},     {QMetaType::QSizeF, 16},
    {QMetaType::QLine, 16},    {QMetaType::QLineF, 32},
    {QMetaType::QPoint, 8},    {QMetaType::QPointF, 16},
    {QMetaType::QUuid, 16},    {QMetaType::Long, 8},
    {QMetaType::Short, 2},     {QMetaType::Char, 1},
    {QMetaType::ULong, 8},     {QMetaType::UShort, 2},
    {QMetaType::UChar, 1},     {QMetaType::SChar, 1},
    {QMetaType::Nullptr, 0},   {QMetaType::QCborSimpleType, 1},
};

int currentTypeId(quint32 streamed)
{
    if (streamed == StreamedUserType)
        return QMetaType::User;
    if (streamed == StreamedSizePolicy)
        return QMetaType::QSizePolicy;
    if (streamed > StreamedSizePolicy && streamed <= LastShiftedGuiType)
        return int(streamed) - 1;
    if (streamed >= FirstExtendedType && streamed < quint32(QMetaType::User))
        return int(streamed) - ExtendedTypeShift;
    return int(streamed);
}

bool walkBitArray(StreamCursor &cursor)
{
    const auto bits = cursor.number<quint32>();
    return cursor.skip((qint64(bits) + 7) / 8);
}

bool walkJsonValue(StreamCursor &cursor)
{
    switch (cursor.number<quint8>()) {
    case ekJson_Null:
    case ekJson_Undefined:
        return !cursor.failed();
    case ekJson_Bool:
        return cursor.skip(1);
    case ekJson_Double:
        return cursor.skip(8);
    case ekJson_String:
        return cursor.skipString();
    case ekJson_Array:
    case ekJson_Object:
        return cursor.skipByteArray();
    default:
        return cursor.fail();
    }
}

template <typename Step>
bool repeat(StreamCursor &cursor, quint32 count, Step step)
{
    for (quint32 i = 0; i < count && !cursor.failed(); ++i)
        step();
    return !cursor.failed();
}

bool walkRegExp(StreamCursor &cursor)
{
    const QByteArray utf16 = cursor.byteArray();
    cursor.skip(1);
    const auto syntax = cursor.number<quint8>();
    cursor.skip(1);
    const bool bFixed =
        syntax == QRegExp::FixedString || syntax == QRegExp::Wildcard || syntax == QRegExp::WildcardUnix;
    const bool bTame = utf16.size() % 2 == 0 && utf16.size() / 2 <= MaximumPatternLength &&
                       (bFixed || (utf16.count('(') <= MaximumPatternGroups && !utf16.contains('{')));
    return bTame ? !cursor.failed() : cursor.fail();
}

} // namespace

VariantStreamChecker::VariantStreamChecker(QDataStream::Version streamVersion)
    : m_version(streamVersion)
{}

bool VariantStreamChecker::accepts(const QByteArray &bytes) const
{
    return variantLength(bytes, 0) == bytes.size();
}

int VariantStreamChecker::variantLength(const QByteArray &bytes, int offset) const
{
    StreamCursor cursor(bytes, offset);
    return _isKnownVersion() && _walkVariant(cursor, 0) ? cursor.position() - offset : -1;
}

int VariantStreamChecker::hashLength(const QByteArray &bytes, int offset) const
{
    StreamCursor cursor(bytes, offset);
    return _isKnownVersion() && _walkType(cursor, QMetaType::QVariantHash, 0) ? cursor.position() - offset
                                                                              : -1;
}

bool VariantStreamChecker::_isKnownVersion() const
{
    return m_version >= QDataStream::Qt_4_0 && m_version <= QDataStream::Qt_5_15;
}

bool VariantStreamChecker::_walkVariant(StreamCursor &cursor, int level) const
{
    if (level >= MaximumLevels)
        return cursor.fail();
    const auto streamed = cursor.number<quint32>();
    if (m_version >= QDataStream::Qt_4_2)
        cursor.skip(1);
    if (cursor.failed() || streamed > quint32(QMetaType::User))
        return cursor.fail();
    const int typeId = m_version < QDataStream::Qt_5_0 ? currentTypeId(streamed) : int(streamed);
    return typeId == QMetaType::User ? _walkNamedType(cursor, level) : _walkType(cursor, typeId, level);
}

bool VariantStreamChecker::_walkNamedType(StreamCursor &cursor, int level) const
{
    const QByteArray name = cursor.byteArray();
    const int typeId = cursor.failed() ? int(QMetaType::UnknownType) : QMetaType::type(name.constData());
    if (typeId == QMetaType::UnknownType)
        return cursor.fail();
    if (typeId == qMetaTypeId<PYXStatusHash>())
        return _walkStatusHash(cursor, level);
    return typeId >= QMetaType::User ? _walkUserType(cursor, typeId) : _walkType(cursor, typeId, level);
}

bool VariantStreamChecker::_walkStatusHash(StreamCursor &cursor, int level) const
{
    cursor.skip(4); // the magic number
    const bool bKnown = cursor.number<quint32>() == StatusHashStream::FormatVersion;
    return bKnown ? _walkType(cursor, QMetaType::QVariantHash, level) : cursor.fail();
}

bool VariantStreamChecker::_walkUserType(StreamCursor &cursor, int typeId) const
{
    const QByteArray bytes = cursor.rest();
    QDataStream stream(bytes);
    stream.setVersion(m_version);
    QVariant value(typeId, nullptr);
    try {
        if (!value.isValid() || !QMetaType::load(stream, typeId, value.data()) ||
            stream.status() != QDataStream::Ok)
            return cursor.fail();
    } catch (const std::bad_alloc &) {
        return cursor.fail();
    }
    return cursor.skip(stream.device()->pos());
}

bool VariantStreamChecker::_walkType(StreamCursor &cursor, int typeId, int level) const
{
    if (LaterStreamTypes::isDifferent(typeId, m_version))
        return LaterStreamTypes::walk(cursor, typeId, m_version);
    const auto *const fixed = std::find_if(std::begin(FixedSizes), std::end(FixedSizes),
                                           [typeId](const auto &entry) { return entry.typeId == typeId; });
    if (fixed != std::end(FixedSizes))
        return cursor.skip(fixed->size);
    switch (typeId) {
    case QMetaType::UnknownType: // followed by a text that is not used
    case QMetaType::QString:
    case QMetaType::QLocale:
        return cursor.skipString();
    case QMetaType::QByteArray:
    case QMetaType::QUrl:
    case QMetaType::QJsonObject:
    case QMetaType::QJsonArray:
    case QMetaType::QJsonDocument:
    case QMetaType::QCborValue:
    case QMetaType::QCborArray:
    case QMetaType::QCborMap:
        return cursor.skipByteArray();
    case QMetaType::QBitArray:
        return walkBitArray(cursor);
    case QMetaType::Float:
        return cursor.skip(m_version >= QDataStream::Qt_4_6 ? 8 : 4);
    case QMetaType::QRegExp:
        return walkRegExp(cursor);
    case QMetaType::QRegularExpression:
        return cursor.skipString() && cursor.skip(4);
    case QMetaType::QJsonValue:
        return walkJsonValue(cursor);
    default:
        return _walkContainer(cursor, typeId, level);
    }
}

bool VariantStreamChecker::_walkContainer(StreamCursor &cursor, int typeId, int level) const
{
    const auto walkNext = [&] { _walkVariant(cursor, level + 1); };
    switch (typeId) {
    case QMetaType::QVariant:
        return _walkVariant(cursor, level + 1);
    case QMetaType::QStringList:
        return repeat(cursor, cursor.count(SmallestString), [&] { cursor.skipString(); });
    case QMetaType::QByteArrayList:
        return repeat(cursor, cursor.count(SmallestString), [&] { cursor.skipByteArray(); });
    case QMetaType::QVariantList:
        return repeat(cursor, cursor.count(SmallestVariant), walkNext);
    case QMetaType::QVariantMap:
    case QMetaType::QVariantHash:
        return repeat(cursor, cursor.count(SmallestString + SmallestVariant), [&] {
            if (cursor.skipString())
                walkNext();
        });
    case QMetaType::QTextFormat: // its type, and a map of properties
        cursor.skip(4);
        return repeat(cursor, cursor.count(4 + SmallestVariant), [&] {
            if (cursor.skip(4))
                walkNext();
        });
    default:
        return GuiStreamTypes::walk(cursor, typeId, m_version);
    }
}

} // namespace PYXRuntime
