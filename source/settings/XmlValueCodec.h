// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QStringView>
#include <QtCore/QVariant>

/** Values of settings files: what stands between "<value>" and "</value>". */
namespace PYXRuntime::XmlValueCodec {

/**
 * Appends the escaped text of a value.
 * @return false where no text would bring the value back, such as a pointer; nothing is appended then.
 */
bool appendEncoded(QByteArray &out, const QVariant &value);

/** The value of a text as the file has it; a malformed typed form is a plain text. */
QVariant decoded(QStringView text);

} // namespace PYXRuntime::XmlValueCodec
