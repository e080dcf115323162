// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXIPv6Edit.h"

namespace PYXRuntime {

PYXIPv6Edit::PYXIPv6Edit(QWidget *parent)
    : PYXAddressEdit(QAbstractSocket::IPv6Protocol, parent)
{}

PYXIPv6Edit::~PYXIPv6Edit() = default;

} // namespace PYXRuntime
