// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "pyxruntime_export.h"

#include <QtGui/QValidator>

namespace PYXRuntime {

/**
 * Accepts a dotted IPv4 address while it is typed. Numbers are decimal, also with leading zeros. A missing
 * or too large number is Intermediate, so that it can be completed or corrected.
 * Has no state: validate() and fixup() may be called in any thread.
 */
class PYXRUNTIME_EXPORT PYXIPv4Validator final : public QValidator
{
    Q_OBJECT
    Q_DISABLE_COPY(PYXIPv4Validator)
public:
    explicit PYXIPv4Validator(QObject *parent = nullptr);
    ~PYXIPv4Validator() override;

    State validate(QString &text, int &pos) const override;
    /** Fills missing numbers with 0 and limits each to 255; leaves a text alone that is no address. */
    void fixup(QString &text) const override;
};

} // namespace PYXRuntime
