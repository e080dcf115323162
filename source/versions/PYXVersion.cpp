// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXVersion.h"

#include <QtCore/QRegularExpression>

namespace PYXRuntime {
namespace {

// The assertion in front changes no match; with it a long row of digits is looked at once, not from each
// digit.
const QLatin1String VersionPattern("(?<![0-9])([0-9]+)\\.([0-9]+)[._]([0-9]+)(\\.([0-9]+))?");
const QLatin1String DebugMark("(Debug)");

const QRegularExpression &versionExpression()
{
    static const QRegularExpression expression(VersionPattern);
    return expression;
}

QString twoDigits(quint16 number)
{
    return QStringLiteral("%1").arg(number, 2, 10, QLatin1Char('0'));
}

} // namespace

void PYXVersion::setVersion(const QString &text)
{
    const QRegularExpressionMatch match = versionExpression().match(text);
    m_bValid = match.hasMatch();
    m_value = 0;
    if (!m_bValid)
        return;
    // 0 where the number does not fit.
    const auto number = [&match](int capture) { return match.capturedRef(capture).toUShort(); };
    m_value = _packed(number(1), number(2), number(3), number(5));
    m_bMaybeDebug = text.contains(DebugMark);
}

void PYXVersion::setVersion(quint16 major, quint16 minor, quint16 build, quint16 priv)
{
    *this = PYXVersion(major, minor, build, priv);
}

void PYXVersion::clear()
{
    m_value = 0;
    m_bValid = true;
}

void PYXVersion::components(quint16 &major, quint16 &minor, quint16 &build, quint16 &priv) const
{
    components(&major, &minor, &build, &priv);
}

void PYXVersion::components(quint16 *major, quint16 *minor, quint16 *build, quint16 *priv) const
{
    if (major != nullptr)
        *major = this->major();
    if (minor != nullptr)
        *minor = this->minor();
    if (build != nullptr)
        *build = this->build();
    if (priv != nullptr)
        *priv = this->priv();
}

QString PYXVersion::toString() const
{
    return twoDigits(major()) + QLatin1Char('.') + twoDigits(minor()) + QLatin1Char('_') + twoDigits(build());
}

QString PYXVersion::toFullString() const
{
    return toString() + QLatin1Char('.') + twoDigits(priv());
}

QString PYXVersion::toDotString() const
{
    return toString().replace(QLatin1Char('_'), QLatin1Char('.'));
}

QString PYXVersion::toFullDotString() const
{
    return toFullString().replace(QLatin1Char('_'), QLatin1Char('.'));
}

QByteArray PYXVersion::toByteArray() const
{
    return toString().toLatin1();
}

QByteArray PYXVersion::toFullByteArray() const
{
    return toFullString().toLatin1();
}

QByteArray PYXVersion::toDotByteArray() const
{
    return toDotString().toLatin1();
}

QByteArray PYXVersion::toFullDotByteArray() const
{
    return toFullDotString().toLatin1();
}

} // namespace PYXRuntime
