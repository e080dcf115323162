// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <PYXBoundSettingsWidget.h>

class QCheckBox;

namespace BandMonitor {

/** The settings page for what the window looks like, and tells by itself. */
class SHW_Display_Window final : public PYXRuntime::PYXBoundSettingsWidget
{
    Q_OBJECT
public:
    explicit SHW_Display_Window(QWidget *parent = nullptr);

    /** As they are stored, or else as they are delivered. */
    static bool isDark(const PYXRuntime::PYXSettings &settings);
    static bool announcesNewSignals(const PYXRuntime::PYXSettings &settings);
    static void setDark(PYXRuntime::PYXSettings &settings, bool bDark);
    static void setAnnouncesNewSignals(PYXRuntime::PYXSettings &settings, bool bAnnounce);

    void sl_retranslateUi() override;

private:
    QCheckBox *m_darkBox;
    QCheckBox *m_announceBox;
};

} // namespace BandMonitor
