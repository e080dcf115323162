// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QString>
#include <QtCore/QVariant>

/** The texts of values that have a form of their own: "@", a type word, and the value in parentheses. */
namespace PYXRuntime::XmlTypedForms {

/**
 * The form of a value, not escaped. A value that the readable form of its type cannot hold (such as a date
 * after the year 9999) takes the general form, a streamed QVariant.
 * @return false where no form would bring the value back.
 */
bool encode(const QVariant &value, QString &text);

/** @return false where @p text is no well-formed form; @p value is unchanged then. */
bool decode(const QString &text, QVariant &value);

} // namespace PYXRuntime::XmlTypedForms
