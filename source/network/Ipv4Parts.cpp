// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "Ipv4Parts.h"

#include <QtCore/QRegularExpression>

#include <algorithm>

namespace PYXRuntime {
namespace {

constexpr uint HighestNumber = 255;

/** From the most parts to the fewest: the first that matches is taken. */
const std::array<QRegularExpression, 4> &patterns()
{
    static const std::array<QRegularExpression, 4> compiled = [] {
        const QLatin1String texts[] = {
            QLatin1String("(\\d+)?\\.(\\d+)?\\.(\\d+)?\\.(\\d+)?"),
            QLatin1String("(\\d+)?\\.(\\d+)?\\.(\\d+)?\\.?"),
            QLatin1String("(\\d+)?\\.(\\d+)?\\.?"),
            QLatin1String("(\\d+)?\\.?"),
        };
        std::array<QRegularExpression, 4> made;
        std::transform(std::begin(texts), std::end(texts), made.begin(), [](QLatin1String text) {
            return QRegularExpression(QRegularExpression::anchoredPattern(text));
        });
        return made;
    }();
    return compiled;
}

/** Also of a number that no integer holds. */
uint number(const QString &part, bool *bTooLarge = nullptr)
{
    bool bFits = false;
    const uint value = part.toUInt(&bFits);
    const bool bLarge = !part.isEmpty() && (!bFits || value > HighestNumber);
    if (bTooLarge != nullptr)
        *bTooLarge = bLarge;
    return bLarge ? HighestNumber : value;
}

} // namespace

std::optional<Ipv4Parts> splitIpv4(const QString &text)
{
    for (const QRegularExpression &pattern : patterns()) {
        const QRegularExpressionMatch match = pattern.match(text);
        if (!match.hasMatch())
            continue;
        Ipv4Parts parts;
        for (std::size_t i = 0; i < parts.size(); ++i)
            parts[i] = match.captured(int(i) + 1);
        return parts;
    }
    return std::nullopt;
}

bool isCompleteIpv4(const Ipv4Parts &parts)
{
    return std::all_of(parts.cbegin(), parts.cend(), [](const QString &part) {
        bool bTooLarge = false;
        number(part, &bTooLarge);
        return !part.isEmpty() && !bTooLarge;
    });
}

QString joinedIpv4(const Ipv4Parts &parts)
{
    return QStringLiteral("%1.%2.%3.%4")
        .arg(QString::number(number(parts[0])), QString::number(number(parts[1])),
             QString::number(number(parts[2])), QString::number(number(parts[3])));
}

} // namespace PYXRuntime
