// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "XmlTypedForms.h"

#include "VariantStreamChecker.h"
#include "XmlDateForms.h"

#include <QtCore/QDataStream>
#include <QtCore/QLocale>
#include <QtCore/QPointF>
#include <QtCore/QRectF>
#include <QtCore/QSizeF>
#include <QtCore/QStringList>
#include <QtGui/QColor>

#include <algorithm>
#include <array>
#include <limits>
#include <new>

namespace PYXRuntime::XmlTypedForms {
namespace {

constexpr QDataStream::Version PayloadVersion = QDataStream::Qt_4_0;
constexpr int Decimals = 16;
constexpr int LargestColourPart = 255;
const QLatin1Char Blank(' ');

using Decoder = bool (*)(const QString &body, QVariant &value);

struct struForm
{
    QLatin1String word;
    Decoder decode;
};

QString form(const char *word, const QString &body)
{
    return QLatin1Char('@') + QLatin1String(word) + QLatin1Char('(') + body + QLatin1Char(')');
}

template <typename... Numbers>
QString integers(Numbers... numbers)
{
    return QStringList{QString::number(numbers)...}.join(Blank);
}

template <typename... Numbers>
QString fixedNumbers(Numbers... numbers)
{
    return QStringList{QString::number(numbers, 'f', Decimals)...}.join(Blank);
}

int convert(const QStringRef &text, int, bool &ok)
{
    return text.toInt(&ok);
}

double convert(const QStringRef &text, double, bool &ok)
{
    return text.toDouble(&ok);
}

/** Exactly as many numbers as the array has. */
template <typename Number, std::size_t Count>
bool parse(const QString &body, std::array<Number, Count> &numbers)
{
    const QVector<QStringRef> fields = body.splitRef(Blank);
    bool bOk = fields.size() == int(Count);
    for (std::size_t i = 0; i < Count && bOk; ++i)
        numbers[i] = convert(fields.at(int(i)), Number(), bOk);
    return bOk;
}

bool isInt(qint64 number)
{
    return number >= std::numeric_limits<int>::min() && number <= std::numeric_limits<int>::max();
}

/** Empty where the numbers leave the range of int. */
QString rectBody(const QRect &rect)
{
    const qint64 width = qint64(rect.right()) - rect.left() + 1;
    const qint64 height = qint64(rect.bottom()) - rect.top() + 1;
    return isInt(width) && isInt(height) ? integers(rect.left(), rect.top(), int(width), int(height))
                                         : QString();
}

bool decodeByteArray(const QString &body, QVariant &value)
{
    const auto isLatin1 = [](QChar c) { return c.unicode() <= 0xFF; };
    if (!std::all_of(body.begin(), body.end(), isLatin1))
        return false;
    value = body.toLatin1();
    return true;
}

bool decodeLocale(const QString &body, QVariant &value)
{
    const QLocale locale(body);
    if (locale == QLocale::c() && body != QLocale::c().name())
        return false;
    value = locale;
    return true;
}

bool decodeRect(const QString &body, QVariant &value)
{
    std::array<int, 4> n = {};
    if (!parse(body, n) || !isInt(qint64(n[0]) + n[2] - 1) || !isInt(qint64(n[1]) + n[3] - 1))
        return false;
    QRect rect;
    rect.setCoords(n[0], n[1], int(qint64(n[0]) + n[2] - 1), int(qint64(n[1]) + n[3] - 1));
    value = rect;
    return true;
}

bool decodeColor(const QString &body, QVariant &value)
{
    std::array<int, 4> n = {};
    const auto isColourPart = [](int part) { return part >= 0 && part <= LargestColourPart; };
    if (!parse(body, n) || !std::all_of(n.begin(), n.end(), isColourPart))
        return false;
    value = QColor(n[0], n[1], n[2], n[3]);
    return true;
}

template <typename Type, typename Number>
bool decodePair(const QString &body, QVariant &value)
{
    std::array<Number, 2> n = {};
    if (!parse(body, n))
        return false;
    value = Type(n[0], n[1]);
    return true;
}

bool decodeRectF(const QString &body, QVariant &value)
{
    std::array<double, 4> n = {};
    if (!parse(body, n))
        return false;
    value = QRectF(n[0], n[1], n[2], n[3]);
    return true;
}

bool decodeEmptyList(const QString &body, QVariant &value)
{
    value = QStringList();
    return body.isEmpty();
}

bool decodeInvalid(const QString &body, QVariant &value)
{
    value = QVariant();
    return body.isEmpty();
}

bool load(const QByteArray &payload, QVariant &value)
{
    QDataStream stream(payload);
    stream.setVersion(PayloadVersion);
    try {
        stream >> value;
    } catch (const std::bad_alloc &) {
        return false; // asked for by the operator of a type of the application
    }
    return stream.status() == QDataStream::Ok && stream.atEnd();
}

bool decodeVariant(const QString &body, QVariant &value)
{
    QVariant payload;
    return decodeByteArray(body, payload) &&
           VariantStreamChecker(PayloadVersion).accepts(payload.toByteArray()) &&
           load(payload.toByteArray(), value);
}

QVariant withUtcTimes(const QVariant &value);

template <typename Container>
QVariant eachWithUtcTimes(Container container)
{
    for (QVariant &element : container)
        element = withUtcTimes(element);
    return container;
}

/** The stream version drops the offsets and zones of date-times: the moment at least is to stay. */
QVariant withUtcTimes(const QVariant &value)
{
    switch (value.userType()) {
    case QMetaType::QDateTime: {
        const QDateTime time = value.toDateTime();
        return time.timeSpec() == Qt::LocalTime ? time : time.toUTC();
    }
    case QMetaType::QVariantList:
        return eachWithUtcTimes(value.toList());
    case QMetaType::QVariantMap:
        return eachWithUtcTimes(value.toMap());
    case QMetaType::QVariantHash:
        return eachWithUtcTimes(value.toHash());
    default:
        return value;
    }
}

/** Checked like what is read, so that nothing is written that would not be read back. */
bool encodeVariant(const QVariant &value, QString &text)
{
    QByteArray payload;
    QDataStream stream(&payload, QIODevice::WriteOnly);
    stream.setVersion(PayloadVersion);
    QByteArray probe;
    QDataStream probeStream(&probe, QIODevice::WriteOnly);
    probeStream.setVersion(PayloadVersion);
    if (!QMetaType::save(probeStream, value.userType(), value.constData()))
        return false;
    stream << withUtcTimes(value);
    if (!VariantStreamChecker(PayloadVersion).accepts(payload))
        return false;
    text = form("Variant", QString::fromLatin1(payload.constData(), payload.size()));
    return true;
}

QString colorBody(const QColor &color)
{
    return color.isValid() ? integers(color.red(), color.green(), color.blue(), color.alpha()) : QString();
}

/** The value between the parentheses of a readable form; null where the type or the value has none. */
QString geometryForm(const QVariant &value)
{
    switch (value.userType()) {
    case QMetaType::QSize:
        return form("Size", integers(value.toSize().width(), value.toSize().height()));
    case QMetaType::QPoint:
        return form("Point", integers(value.toPoint().x(), value.toPoint().y()));
    case QMetaType::QRectF: {
        const QRectF rect = value.toRectF();
        return form("RectF", fixedNumbers(rect.x(), rect.y(), rect.width(), rect.height()));
    }
    case QMetaType::QSizeF:
        return form("SizeF", fixedNumbers(value.toSizeF().width(), value.toSizeF().height()));
    case QMetaType::QPointF:
        return form("PointF", fixedNumbers(value.toPointF().x(), value.toPointF().y()));
    case QMetaType::QRect: {
        const QString body = rectBody(value.toRect());
        return body.isEmpty() ? QString() : form("Rect", body);
    }
    case QMetaType::QColor: {
        const QString body = colorBody(value.value<QColor>());
        return body.isEmpty() ? QString() : form("Color", body);
    }
    default:
        return QString();
    }
}

QString readableForm(const QVariant &value)
{
    switch (value.userType()) {
    case QMetaType::UnknownType:
        return form("Invalid", QString());
    case QMetaType::QByteArray: {
        const QByteArray bytes = value.toByteArray();
        return form("ByteArray", QString::fromLatin1(bytes.constData(), bytes.size()));
    }
    case QMetaType::QLocale:
        return form("Locale", value.toLocale().name());
    case QMetaType::QDate:
        return XmlDateForms::dateForm(value.toDate());
    case QMetaType::QTime:
        return XmlDateForms::timeForm(value.toTime());
    case QMetaType::QDateTime:
        return XmlDateForms::dateTimeForm(value.toDateTime());
    default:
        return geometryForm(value);
    }
}

const struForm Forms[] = {
    {QLatin1String("ByteArray"), decodeByteArray},
    {QLatin1String("Color"), decodeColor},
    {QLatin1String("EmptyStringList"), decodeEmptyList},
    {QLatin1String("ISODate"), XmlDateForms::decodeDate},
    {QLatin1String("ISODateTime"), XmlDateForms::decodeDateTime},
    {QLatin1String("Invalid"), decodeInvalid},
    {QLatin1String("Locale"), decodeLocale},
    {QLatin1String("Point"), decodePair<QPoint, int>},
    {QLatin1String("PointF"), decodePair<QPointF, double>},
    {QLatin1String("Rect"), decodeRect},
    {QLatin1String("RectF"), decodeRectF},
    {QLatin1String("Size"), decodePair<QSize, int>},
    {QLatin1String("SizeF"), decodePair<QSizeF, double>},
    {QLatin1String("Time"), XmlDateForms::decodeTime},
    {QLatin1String("Variant"), decodeVariant},
};

} // namespace

bool encode(const QVariant &value, QString &text)
{
    const QString readable = readableForm(value);
    if (readable.isNull())
        return encodeVariant(value, text);
    text = readable;
    return true;
}

bool decode(const QString &text, QVariant &value)
{
    const int open = text.indexOf(QLatin1Char('('));
    if (open < 0 || !text.startsWith(QLatin1Char('@')) || !text.endsWith(QLatin1Char(')')))
        return false;
    const QStringRef word = text.midRef(1, open - 1);
    const auto *const known = std::find_if(std::begin(Forms), std::end(Forms),
                                           [&word](const struForm &entry) { return entry.word == word; });
    QVariant decoded;
    if (known == std::end(Forms) || !known->decode(text.mid(open + 1, text.size() - open - 2), decoded))
        return false;
    value = decoded;
    return true;
}

} // namespace PYXRuntime::XmlTypedForms
