// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "PYXAddressEdit.h"

namespace PYXRuntime {

/** Edits an address of a protocol that can be switched; begins with IPv4. GUI thread only. */
class PYXRUNTIME_EXPORT PYXIPEdit final : public PYXAddressEdit
{
    Q_OBJECT
    Q_DISABLE_COPY(PYXIPEdit)
public:
    explicit PYXIPEdit(QWidget *parent = nullptr);
    ~PYXIPEdit() override;

    /**
     * An address that fits stays; else the text comes back that was there with this protocol before.
     * UnknownNetworkLayerProtocol is ignored.
     */
    void setProtocol(QAbstractSocket::NetworkLayerProtocol protocol);
};

} // namespace PYXRuntime
