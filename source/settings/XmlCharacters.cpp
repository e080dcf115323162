// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "XmlCharacters.h"

#include <QtCore/QXmlStreamReader>

#include <algorithm>

namespace PYXRuntime::XmlCharacters {
namespace {

constexpr ushort FirstPrintable = 0x20;
constexpr ushort FirstNonAscii = 0x80;
constexpr ushort LastInText = 0xFFFD;

bool isAsciiLetter(ushort c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

bool startsName(QChar c)
{
    return c.unicode() >= FirstNonAscii || isAsciiLetter(c.unicode()) || c == QLatin1Char('_');
}

bool continuesName(QChar c)
{
    return startsName(c) || (c >= QLatin1Char('0') && c <= QLatin1Char('9')) || c == QLatin1Char('-') ||
           c == QLatin1Char('.');
}

/** A name without a colon, as far as ASCII goes. */
bool isNamePart(QStringView text)
{
    return !text.isEmpty() && startsName(text.front()) &&
           std::all_of(text.begin(), text.end(), continuesName);
}

bool isReadAsTag(const QString &text)
{
    QXmlStreamReader xml(QLatin1Char('<') + text + QLatin1String("/>"));
    xml.setNamespaceProcessing(false);
    xml.readNextStartElement();
    return !xml.hasError() && xml.qualifiedName() == text;
}

} // namespace

bool isText(const QString &text)
{
    for (int i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        if (c.isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate()) {
            ++i;
            continue;
        }
        const bool bLineForm = c == QLatin1Char('\t') || c == QLatin1Char('\n') || c == QLatin1Char('\r');
        if (c.isSurrogate() || c.unicode() > LastInText || (c.unicode() < FirstPrintable && !bLineForm))
            return false;
    }
    return true;
}

bool isName(const QString &text)
{
    const int colon = text.indexOf(QLatin1Char(':'));
    const QStringView view(text);
    const bool bName =
        colon < 0 ? isNamePart(view) : isNamePart(view.left(colon)) && isNamePart(view.mid(colon + 1));
    if (!bName)
        return false;
    const bool bAscii =
        std::all_of(text.begin(), text.end(), [](QChar c) { return c.unicode() < FirstNonAscii; });
    return bAscii || isReadAsTag(text);
}

} // namespace PYXRuntime::XmlCharacters
