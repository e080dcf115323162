// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QCoreApplication>

namespace PYXRuntime {

/** The categories of the library's own pages, in the present language. */
class PageTexts final
{
    Q_DECLARE_TR_FUNCTIONS(PYXRuntime::SettingsPages)
public:
    PageTexts() = delete;

    static QString general() { return tr("General"); }
    static QString network() { return tr("Network"); }
    static QString debug() { return tr("Debug"); }
};

} // namespace PYXRuntime
