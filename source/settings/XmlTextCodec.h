// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QStringView>

/**
 * Texts of settings files: whatever is not harmless in XML and readable in every encoding stands as
 * "~#x", the hexadecimal digits of its UTF-16 code unit, and ";".
 */
namespace PYXRuntime::XmlTextCodec {

/** Appends a name, a value or a list element. */
void appendEscapedValue(QByteArray &out, QStringView text);

/** Appends a "name" attribute, whose escaper spares fewer characters. */
void appendEscapedKey(QByteArray &out, QStringView text);

/**
 * Resolves hexadecimal and decimal references, introduced by "~#" or "&#", in one pass: what a reference
 * yields is not looked at again. A reference to no UTF-16 code unit stays as it stands.
 */
QString unescaped(QStringView text);

} // namespace PYXRuntime::XmlTextCodec
