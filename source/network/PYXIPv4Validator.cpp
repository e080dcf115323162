// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXIPv4Validator.h"

#include "Ipv4Parts.h"

namespace PYXRuntime {

PYXIPv4Validator::PYXIPv4Validator(QObject *parent)
    : QValidator(parent)
{}

PYXIPv4Validator::~PYXIPv4Validator() = default;

QValidator::State PYXIPv4Validator::validate(QString &text, int & /*pos*/) const
{
    const auto parts = splitIpv4(text);
    if (!parts)
        return Invalid;
    return isCompleteIpv4(*parts) ? Acceptable : Intermediate;
}

void PYXIPv4Validator::fixup(QString &text) const
{
    if (const auto parts = splitIpv4(text))
        text = joinedIpv4(*parts);
}

} // namespace PYXRuntime
