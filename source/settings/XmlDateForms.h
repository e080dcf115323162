// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QDateTime>
#include <QtCore/QVariant>

/** The typed forms of dates and times. */
namespace PYXRuntime::XmlDateForms {

/** Null where the date is outside the years that ISO texts have. */
QString dateForm(const QDate &date);
QString timeForm(const QTime &time);

/**
 * Date, time of day and the number of the time specification; behind it the offset in seconds or the name
 * of the zone, where there is one. Null where the date is outside the years that ISO texts have.
 */
QString dateTimeForm(const QDateTime &dateTime);

/** Each decodes what stands in the parentheses. @return false where it is malformed. */
bool decodeDate(const QString &body, QVariant &value);
bool decodeTime(const QString &body, QVariant &value);
bool decodeDateTime(const QString &body, QVariant &value);

} // namespace PYXRuntime::XmlDateForms
