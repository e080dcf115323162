// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "PYXAddressEdit.h"

namespace PYXRuntime {

/** Edits an IPv6 address. GUI thread only. */
class PYXRUNTIME_EXPORT PYXIPv6Edit final : public PYXAddressEdit
{
    Q_OBJECT
    Q_DISABLE_COPY(PYXIPv6Edit)
public:
    explicit PYXIPv6Edit(QWidget *parent = nullptr);
    ~PYXIPv6Edit() override;
};

} // namespace PYXRuntime
