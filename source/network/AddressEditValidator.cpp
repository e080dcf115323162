// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "AddressEditValidator.h"

#include "AddressText.h"

#include <algorithm>

namespace PYXRuntime {

AddressEditValidator::AddressEditValidator(QObject *parent)
    : QValidator(parent)
{}

bool AddressEditValidator::accepts(const QHostAddress &address) const
{
    return !address.isNull() &&
           (m_protocol == QAbstractSocket::AnyIPProtocol || m_protocol == address.protocol());
}

QValidator::State AddressEditValidator::_validatePlain(QString &text, int &pos) const
{
    switch (m_protocol) {
    case QAbstractSocket::IPv4Protocol:
        return m_ipv4.validate(text, pos);
    case QAbstractSocket::IPv6Protocol:
        return m_ipv6.validate(text, pos);
    default:
        return std::max(m_ipv4.validate(text, pos), m_ipv6.validate(text, pos));
    }
}

QValidator::State AddressEditValidator::validate(QString &text, int &pos) const
{
    const State state = _validatePlain(text, pos);
    if (state != Invalid)
        return state;
    const QHostAddress address = addressFromText(text);
    if (!accepts(address))
        return Invalid;
    text = address.toString();
    pos = text.size();
    return Acceptable;
}

void AddressEditValidator::fixup(QString &text) const
{
    const bool bHasColon = text.contains(QLatin1Char(':'));
    const bool bEither = m_protocol == QAbstractSocket::AnyIPProtocol;
    // Of a text like "10" that may become either, nobody knows what is meant.
    if (text.isEmpty() || (bEither && !bHasColon && !text.contains(QLatin1Char('.'))))
        return;
    if (m_protocol == QAbstractSocket::IPv6Protocol || (bEither && bHasColon))
        m_ipv6.fixup(text);
    else
        m_ipv4.fixup(text);
}

} // namespace PYXRuntime
