// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "PYXAddressEdit.h"

namespace PYXRuntime {

/** Edits an IPv4 address. GUI thread only. */
class PYXRUNTIME_EXPORT PYXIPv4Edit final : public PYXAddressEdit
{
    Q_OBJECT
    Q_DISABLE_COPY(PYXIPv4Edit)
public:
    explicit PYXIPv4Edit(QWidget *parent = nullptr);
    ~PYXIPv4Edit() override;
};

} // namespace PYXRuntime
