// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "pyxruntime_export.h"

#include <QtGui/QValidator>

namespace PYXRuntime {

/**
 * Accepts an IPv6 address while it is typed: with "::", a dotted IPv4 address at its end, and a scope
 * ("%eth0"). A missing or too long group is Intermediate, so that it can be completed or corrected.
 * Has no state: validate() and fixup() may be called in any thread.
 */
class PYXRUNTIME_EXPORT PYXIPv6Validator final : public QValidator
{
    Q_OBJECT
    Q_DISABLE_COPY(PYXIPv6Validator)
public:
    explicit PYXIPv6Validator(QObject *parent = nullptr);
    ~PYXIPv6Validator() override;

    State validate(QString &text, int &pos) const override;
    /**
     * Brings the address into its canonical form. Missing groups are zeros: at the end, or at the beginning
     * of a text that begins with a single ":". Larger ones than ffff are ffff, numbers of a dotted end are
     * limited to 255. Leaves a text alone that is no address.
     */
    void fixup(QString &text) const override;
};

} // namespace PYXRuntime
