// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXIPv6Validator.h"

#include "Ipv6Parts.h"

namespace PYXRuntime {

PYXIPv6Validator::PYXIPv6Validator(QObject *parent)
    : QValidator(parent)
{}

PYXIPv6Validator::~PYXIPv6Validator() = default;

QValidator::State PYXIPv6Validator::validate(QString &text, int & /*pos*/) const
{
    const auto parts = splitIpv6(text);
    if (!parts)
        return Invalid;
    return isCompleteIpv6(*parts) ? Acceptable : Intermediate;
}

void PYXIPv6Validator::fixup(QString &text) const
{
    if (const auto parts = splitIpv6(text))
        text = joinedIpv6(*parts);
}

} // namespace PYXRuntime
