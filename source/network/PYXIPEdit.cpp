// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXIPEdit.h"

namespace PYXRuntime {

PYXIPEdit::PYXIPEdit(QWidget *parent)
    : PYXAddressEdit(QAbstractSocket::IPv4Protocol, parent)
{}

PYXIPEdit::~PYXIPEdit() = default;

void PYXIPEdit::setProtocol(QAbstractSocket::NetworkLayerProtocol protocol)
{
    _setProtocol(protocol);
}

} // namespace PYXRuntime
