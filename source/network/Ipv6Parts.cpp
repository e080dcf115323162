// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "Ipv6Parts.h"

#include <QtCore/QRegularExpression>
#include <QtNetwork/QHostAddress>

#include <algorithm>

namespace PYXRuntime {
namespace {

constexpr int AllGroups = 8;
constexpr uint HighestGroup = 0xffff;
const QLatin1Char Separator(':');
const QLatin1String Gap("::");

/** Digits, groups and an optional scope; no more than one gap, and no dots without a colon before. */
const QRegularExpression &outline()
{
    static const QRegularExpression pattern(
        QStringLiteral("\\A((?!.*:::)(?!.*::.*::)(?:[0-9a-fA-F:]*|[0-9a-fA-F:]*:[0-9]*(?:\\.[0-9]*)+))"
                       "(%([^%\\s/\\[\\]]*))?\\z"));
    return pattern;
}

QStringList groupsOf(const QString &text)
{
    return text.isEmpty() ? QStringList() : text.split(Separator);
}

bool isCompleteGroup(const QString &group)
{
    return !group.isEmpty() && group.size() <= 4;
}

QString normalized(const QString &group)
{
    bool bFits = false;
    const uint value = group.toUInt(&bFits, 16);
    const bool bLarge = !group.isEmpty() && (!bFits || value > HighestGroup);
    return QString::number(bLarge ? HighestGroup : value, 16);
}

QString normalized(const QStringList &groups)
{
    QStringList numbers;
    for (const QString &group : groups)
        numbers += normalized(group);
    return numbers.join(Separator);
}

/** Puts a gap where the groups that are missing belong. */
void fillGroups(struIpv6Parts &parts)
{
    if (parts.bCompressed)
        return;
    const bool bOpenBegin = parts.head.size() > 1 && parts.head.first().isEmpty();
    if (!parts.head.isEmpty() && parts.head.last().isEmpty())
        parts.head.removeLast();
    if (parts.groupCount() == AllGroups)
        return;
    parts.bCompressed = true;
    if (bOpenBegin && !parts.head.isEmpty()) {
        parts.tail = parts.head.mid(1);
        parts.head.clear();
    }
}

} // namespace

std::optional<struIpv6Parts> splitIpv6(const QString &text)
{
    const QRegularExpressionMatch match = outline().match(text);
    if (!match.hasMatch())
        return std::nullopt;
    struIpv6Parts parts;
    parts.bHasScope = match.capturedLength(2) > 0;
    parts.scope = match.captured(3);
    const QString body = match.captured(1);
    const int gap = body.indexOf(Gap);
    parts.bCompressed = gap >= 0;
    parts.head = groupsOf(parts.bCompressed ? body.left(gap) : body);
    if (parts.bCompressed)
        parts.tail = groupsOf(body.mid(gap + Gap.size()));
    QStringList &ending = parts.bCompressed ? parts.tail : parts.head;
    if (body.contains(QLatin1Char('.'))) {
        parts.ipv4 = splitIpv4(ending.takeLast());
        if (!parts.ipv4)
            return std::nullopt;
    }
    if (parts.groupCount() > (parts.bCompressed ? AllGroups - 1 : AllGroups))
        return std::nullopt;
    return parts;
}

bool isCompleteIpv6(const struIpv6Parts &parts)
{
    return std::all_of(parts.head.cbegin(), parts.head.cend(), isCompleteGroup) &&
           std::all_of(parts.tail.cbegin(), parts.tail.cend(), isCompleteGroup) &&
           (!parts.ipv4 || isCompleteIpv4(*parts.ipv4)) &&
           (parts.bCompressed || parts.groupCount() == AllGroups) &&
           (!parts.bHasScope || !parts.scope.isEmpty());
}

QString joinedIpv6(struIpv6Parts parts)
{
    fillGroups(parts);
    QString text = normalized(parts.head);
    QString ending = normalized(parts.tail);
    if (parts.ipv4) {
        if (!ending.isEmpty())
            ending += Separator;
        ending += joinedIpv4(*parts.ipv4);
    }
    if (parts.bCompressed)
        text += Gap;
    else if (!text.isEmpty() && !ending.isEmpty())
        text += Separator;
    QHostAddress address(text + ending);
    address.setScopeId(parts.scope);
    return address.toString();
}

} // namespace PYXRuntime
