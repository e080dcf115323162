// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtCore/QObject>

namespace BandMonitor {

/**
 * Lets numbers and dates follow the language of the texts, as long as it lives: what is one kilohertz in
 * English, "1.000", is a thousand in German. Where the system speaks the language, they are as it has them.
 */
class LocaleFollower final : public QObject
{
    Q_OBJECT
public:
    LocaleFollower();

private:
    void _follow();
};

} // namespace BandMonitor
