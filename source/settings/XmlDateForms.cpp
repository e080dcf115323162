// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "XmlDateForms.h"

#include <QtCore/QLocale>
#include <QtCore/QStringBuilder>
#include <QtCore/QTimeZone>

namespace PYXRuntime::XmlDateForms {
namespace {

const QLatin1Char Blank(' ');

// An invalid date or time has an empty text.
QString timeText(const QTime &time)
{
    return time.isValid() ? QLocale::c().toString(time, QStringLiteral("HH:mm:ss.zzz")) : QString();
}

bool hasText(const QDate &date)
{
    return !date.isValid() || !date.toString(Qt::ISODate).isEmpty();
}

bool parse(const QString &text, QDate &date)
{
    date = QDate::fromString(text, Qt::ISODate);
    return date.isValid() || text.isEmpty();
}

bool parse(const QString &text, QTime &time)
{
    time = QTime::fromString(text, Qt::ISODateWithMs);
    return time.isValid() || text.isEmpty();
}

/** The wall clock shown with the offset where the zone is not known by its name on every system. */
QString specificationText(const QDateTime &dateTime)
{
    QString number = QString::number(dateTime.timeSpec());
    if (dateTime.timeSpec() == Qt::TimeZone) {
        const QByteArray id = dateTime.timeZone().id();
        if (QTimeZone(id).isValid())
            return number % Blank % QString::fromLatin1(id);
    } else if (dateTime.timeSpec() != Qt::OffsetFromUTC) {
        return number;
    }
    return QString::number(Qt::OffsetFromUTC) % Blank % QString::number(dateTime.offsetFromUtc());
}

bool isZoned(Qt::TimeSpec specification)
{
    return specification == Qt::OffsetFromUTC || specification == Qt::TimeZone;
}

/** The four-field form; false where the offset is no number or the zone is unknown here. */
bool decodeZoned(const QDate &date, const QTime &time, int specification, const QString &zone,
                 QVariant &value)
{
    if (specification == Qt::OffsetFromUTC) {
        bool bOk = false;
        value = QDateTime(date, time, Qt::OffsetFromUTC, zone.toInt(&bOk));
        return bOk;
    }
    const QTimeZone timeZone(zone.toLatin1());
    value = QDateTime(date, time, timeZone);
    return specification == Qt::TimeZone && timeZone.isValid();
}

} // namespace

QString dateForm(const QDate &date)
{
    return hasText(date) ? QString(QLatin1String("@ISODate(") % date.toString(Qt::ISODate) % QLatin1Char(')'))
                         : QString();
}

QString timeForm(const QTime &time)
{
    return QLatin1String("@Time(") % timeText(time) % QLatin1Char(')');
}

QString dateTimeForm(const QDateTime &dateTime)
{
    if (!hasText(dateTime.date()))
        return QString();
    return QLatin1String("@ISODateTime(") % dateTime.date().toString(Qt::ISODate) % Blank %
           timeText(dateTime.time()) % Blank % specificationText(dateTime) % QLatin1Char(')');
}

bool decodeDate(const QString &body, QVariant &value)
{
    QDate date;
    const bool bOk = parse(body, date);
    value = date;
    return bOk;
}

bool decodeTime(const QString &body, QVariant &value)
{
    QTime time;
    const bool bOk = parse(body, time);
    value = time;
    return bOk;
}

bool decodeDateTime(const QString &body, QVariant &value)
{
    const QStringList fields = body.split(Blank);
    QDate date;
    QTime time;
    if (fields.size() < 3 || fields.size() > 4 || !parse(fields.at(0), date) || !parse(fields.at(1), time))
        return false;
    bool bOk = false;
    const int specification = fields.at(2).toInt(&bOk);
    if (!bOk || specification < Qt::LocalTime || specification > Qt::TimeZone)
        return false;
    if (fields.size() == 4)
        return decodeZoned(date, time, specification, fields.at(3), value);
    // Without the offset or the name of its zone the clock is all there is.
    const auto timeSpec = Qt::TimeSpec(specification);
    value = QDateTime(date, time, isZoned(timeSpec) ? Qt::LocalTime : timeSpec);
    return true;
}

} // namespace PYXRuntime::XmlDateForms
