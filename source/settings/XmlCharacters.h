// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QString>

/** What XML can hold, as the library's readers see it. */
namespace PYXRuntime::XmlCharacters {

/** Whether a text can stand in a document: no control characters but tabs and line ends, no half characters.
 */
bool isText(const QString &text);

/** Whether a text can be the tag of an element; one colon in it is allowed. */
bool isName(const QString &text);

} // namespace PYXRuntime::XmlCharacters
