// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "XmlTextCodec.h"

#include <algorithm>
#include <array>

namespace PYXRuntime::XmlTextCodec {
namespace {

constexpr char HexDigits[] = "0123456789ABCDEF";
constexpr char ValuePunctuation[] = " !#()*+-./:;=?@[]_{}";
constexpr char KeyPunctuation[] = " #()*+-.:@[]_{}";
constexpr int MaximumHexDigits = 4;
constexpr uint LargestCodeUnit = 0xFFFF;

using LiteralTable = std::array<bool, 128>;

constexpr LiteralTable literals(const char *punctuation)
{
    LiteralTable table = {};
    for (std::size_t c = '0'; c <= '9'; ++c)
        table[c] = true;
    for (std::size_t c = 'A'; c <= 'Z'; ++c)
        table[c] = table[c + ('a' - 'A')] = true;
    for (const char *c = punctuation; *c != '\0'; ++c)
        table[static_cast<std::size_t>(*c)] = true;
    return table;
}

constexpr LiteralTable ValueLiterals = literals(ValuePunctuation);
constexpr LiteralTable KeyLiterals = literals(KeyPunctuation);

void appendReference(QByteArray &out, ushort unit)
{
    out.append("~#x", 3);
    for (int shift = unit > 0xFF ? 12 : 4; shift >= 0; shift -= 4)
        out.append(HexDigits[(unit >> shift) & 0xF]);
    out.append(';');
}

void appendEscaped(QByteArray &out, QStringView text, const LiteralTable &literal)
{
    const auto isLiteral = [&literal](QChar c) {
        return c.unicode() < literal.size() && literal[c.unicode()];
    };
    for (qsizetype i = 0; i < text.size();) {
        qsizetype end = i;
        while (end < text.size() && isLiteral(text[end]))
            ++end;
        const int size = out.size();
        out.resize(size + int(end - i));
        std::transform(text.begin() + i, text.begin() + end, out.begin() + size,
                       [](QChar c) { return c.toLatin1(); });
        i = end;
        if (i < text.size())
            appendReference(out, text[i++].unicode());
    }
}

int digitValue(QChar c)
{
    const ushort unit = c.unicode();
    if (unit >= '0' && unit <= '9')
        return unit - '0';
    const ushort lower = unit | 0x20;
    return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}

struct struReference
{
    qsizetype length; ///< 0: no reference
    ushort unit;
};

/** The reference that starts at the marker @p at, which "#" follows. */
struReference referenceAt(QStringView text, qsizetype at)
{
    constexpr struReference None = {0, 0};
    qsizetype i = at + 2;
    const bool bHex = i < text.size() && (text[i].unicode() | 0x20) == 'x';
    const int base = bHex ? 16 : 10;
    i += bHex ? 1 : 0;
    const qsizetype first = i;
    uint value = 0;
    for (; i < text.size(); ++i) {
        const int digit = digitValue(text[i]);
        if (digit < 0 || digit >= base)
            break;
        value = qMin(value * uint(base) + uint(digit), LargestCodeUnit + 1);
    }
    const bool bComplete = i > first && i < text.size() && text[i] == QLatin1Char(';');
    if (!bComplete || value > LargestCodeUnit || (bHex && i - first > MaximumHexDigits))
        return None;
    return {i + 1 - at, static_cast<ushort>(value)};
}

} // namespace

void appendEscapedValue(QByteArray &out, QStringView text)
{
    appendEscaped(out, text, ValueLiterals);
}

void appendEscapedKey(QByteArray &out, QStringView text)
{
    appendEscaped(out, text, KeyLiterals);
}

QString unescaped(QStringView text)
{
    QString result;
    qsizetype copied = 0;
    const auto appendUpTo = [&](qsizetype end) { result.append(text.data() + copied, int(end - copied)); };
    for (qsizetype i = 0; i + 1 < text.size(); ++i) {
        const bool bMarker = text[i] == QLatin1Char('~') || text[i] == QLatin1Char('&');
        if (!bMarker || text[i + 1] != QLatin1Char('#'))
            continue;
        const struReference reference = referenceAt(text, i);
        if (reference.length == 0)
            continue;
        appendUpTo(i);
        result.append(QChar(reference.unit));
        copied = i + reference.length;
        i = copied - 1;
    }
    if (copied == 0)
        return text.toString();
    appendUpTo(text.size());
    return result;
}

} // namespace PYXRuntime::XmlTextCodec
