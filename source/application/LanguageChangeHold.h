// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QObject>

namespace PYXRuntime {

/**
 * Qt tells the application of every single translator that comes or goes. As long as this object lives, it is
 * not told; release() tells it once if there was something to tell.
 */
class LanguageChangeHold final : public QObject
{
    Q_DISABLE_COPY(LanguageChangeHold)
public:
    LanguageChangeHold();
    ~LanguageChangeHold() override;

    void release();

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool m_bHolding = true;
    bool m_bHeldBack = false;
};

} // namespace PYXRuntime
