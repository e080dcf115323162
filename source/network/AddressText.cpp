// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "AddressText.h"

#include "Ipv6Parts.h"

#include <QtCore/QRegularExpression>

#include <limits>

namespace PYXRuntime {
namespace {

constexpr int LongestText = 4096;

bool isPort(const QString &text)
{
    bool bIsNumber = false;
    return text.isNull() || (text.toUInt(&bIsNumber) <= std::numeric_limits<quint16>::max() && bIsNumber);
}

/** Without what people or programs put around a text. */
QString unwrapped(const QString &text)
{
    static const QString pairs = QStringLiteral("\"\"''<>");
    QString inner = text.trimmed();
    for (int i = 0; i < pairs.size(); i += 2) {
        if (inner.size() >= 2 && inner.startsWith(pairs.at(i)) && inner.endsWith(pairs.at(i + 1)))
            inner = inner.mid(1, inner.size() - 2).trimmed();
    }
    return inner;
}

/** The part of a URL, or of one whose scheme is left out, that names host and port. */
QString authorityOf(const QString &text)
{
    static const QRegularExpression url(
        QStringLiteral("\\A(?:[a-zA-Z][a-zA-Z0-9+.-]*://(?:[^/?#]*@)?)?([^/?#]*)(?:[/?#].*)?\\z"));
    return url.match(text).captured(1);
}

} // namespace

QHostAddress addressFromTypedText(const QString &text)
{
    const auto ipv4 = splitIpv4(text);
    if (ipv4 && isCompleteIpv4(*ipv4))
        return QHostAddress(joinedIpv4(*ipv4));
    const auto ipv6 = splitIpv6(text);
    if (ipv6 && isCompleteIpv6(*ipv6))
        return QHostAddress(joinedIpv6(*ipv6));
    return {};
}

QHostAddress addressFromText(const QString &text)
{
    if (text.size() > LongestText)
        return {};
    static const QRegularExpression bracketed(QStringLiteral("\\A\\[([^\\]]*)\\](?::([0-9]+))?\\z"));
    static const QRegularExpression withPort(QStringLiteral("\\A([^:]*)(?::([0-9]+))\\z"));
    const QString authority = authorityOf(unwrapped(text));
    for (const QRegularExpression &form : {bracketed, withPort}) {
        const QRegularExpressionMatch match = form.match(authority);
        if (!match.hasMatch() || !isPort(match.captured(2)))
            continue;
        // A URL writes the "%" before a scope as "%25".
        QString host = match.captured(1).trimmed();
        host.replace(QLatin1String("%25"), QLatin1String("%"));
        return addressFromTypedText(host);
    }
    return addressFromTypedText(authority);
}

} // namespace PYXRuntime
