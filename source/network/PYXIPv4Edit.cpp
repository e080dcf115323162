// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXIPv4Edit.h"

namespace PYXRuntime {

PYXIPv4Edit::PYXIPv4Edit(QWidget *parent)
    : PYXAddressEdit(QAbstractSocket::IPv4Protocol, parent)
{}

PYXIPv4Edit::~PYXIPv4Edit() = default;

} // namespace PYXRuntime
