// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PrintfLine.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstring>

namespace PYXRuntime {
namespace {

// What every printf must be able to produce for one conversion (C17, 7.21.6.1, paragraph 15).
constexpr int LongestField = 4095;

/** One conversion of a format, e.g. "%-08.3lf". */
struct struConversion
{
    QByteArray flags;
    int width = 0;
    int precision = -1;
    char letter = 0;
    int end = 0; ///< index behind the conversion
};

/** Takes the characters of @p set that stand at @p at. */
QByteArray takeAnyOf(const char *set, const QByteArray &format, int &at)
{
    const int start = at;
    while (at < format.size() && format.at(at) != '\0' && std::strchr(set, format.at(at)) != nullptr)
        ++at;
    return format.mid(start, at - start);
}

/** Takes a decimal number or a "*", whose argument is zero. */
int takeNumber(const QByteArray &format, int &at)
{
    if (at < format.size() && format.at(at) == '*') {
        ++at;
        return 0;
    }
    int number = 0;
    for (const char digit : takeAnyOf("0123456789", format, at))
        number = std::min(number * 10 + (digit - '0'), LongestField);
    return number;
}

/** The index behind the argument number of "%2$d", or @p at where there is none. */
int skipArgumentNumber(const QByteArray &format, int at)
{
    int end = at;
    const bool bNumber = !takeAnyOf("0123456789", format, end).isEmpty();
    return bNumber && end < format.size() && format.at(end) == '$' ? end + 1 : at;
}

struConversion takeConversion(const QByteArray &format, int percentSign)
{
    struConversion conversion;
    int at = skipArgumentNumber(format, percentSign + 1);
    for (const char flag : takeAnyOf("-+ #0'", format, at)) {
        if (!conversion.flags.contains(flag) && flag != '\'')
            conversion.flags += flag;
    }
    conversion.width = takeNumber(format, at);
    if (at < format.size() && format.at(at) == '.') {
        ++at;
        conversion.precision = takeNumber(format, at);
    }
    if (!takeAnyOf("hlLqjztI", format, at).isEmpty() && format.at(at - 1) == 'I')
        takeAnyOf("3624", format, at); // I32 and I64 of Windows
    if (at < format.size())
        conversion.letter = format.at(at++);
    conversion.end = at;
    return conversion;
}

QByteArray print(const struConversion &conversion)
{
    QByteArray pattern = '%' + conversion.flags;
    if (conversion.width > 0)
        pattern += QByteArray::number(conversion.width);
    if (conversion.precision >= 0)
        pattern += '.' + QByteArray::number(conversion.precision);
    pattern += conversion.letter;

    std::array<char, std::size_t(LongestField) * 2> field = {};
    int length = 0;
    // The pattern holds one conversion, whose letter says which kind of argument it takes.
    if (std::strchr("eEfFgGaA", conversion.letter) != nullptr)
        length = std::snprintf(field.data(), field.size(), pattern.constData(), 0.0);
    else if (conversion.letter == 's')
        length = std::snprintf(field.data(), field.size(), pattern.constData(), "");
    else if (conversion.letter == 'p')
        length = std::snprintf(field.data(), field.size(), pattern.constData(), static_cast<void *>(nullptr));
    else
        length = std::snprintf(field.data(), field.size(), pattern.constData(), 0);
    return {field.data(), std::clamp(length, 0, int(field.size()) - 1)};
}

} // namespace

QByteArray printfLine(const QByteArray &format)
{
    QByteArray line;
    line.reserve(format.size());
    int at = 0;
    while (at < format.size()) {
        const int percentSign = format.indexOf('%', at);
        if (percentSign < 0)
            break;
        line += QByteArray::fromRawData(format.constData() + at, percentSign - at);
        struConversion conversion = takeConversion(format, percentSign);
        at = conversion.end;
        // The wide-character forms of the two text conversions.
        if (conversion.letter == 'S' || conversion.letter == 'C')
            conversion.letter = conversion.letter == 'S' ? 's' : 'c';
        if (conversion.letter == '%')
            line += '%';
        else if (conversion.letter != '\0' && std::strchr("diouxXcspeEfFgGaA", conversion.letter) != nullptr)
            line += print(conversion);
        else if (conversion.letter != 'n') // no conversion at all: printed as it stands
            line += QByteArray::fromRawData(format.constData() + percentSign, at - percentSign);
    }
    return line + format.mid(at);
}

} // namespace PYXRuntime
