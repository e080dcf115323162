// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "PYXBoundSettingsWidget.h"

class QCheckBox;

namespace PYXRuntime {

/**
 * The settings page for debug and expert mode. It keeps them; whoever owns the modes of the application
 * brings them into effect:
 * @code
 * internals.setAppModes(SHW_Debug_AppMode::storedAppModes(settings));
 * connect(page, &SHW_Debug_AppMode::si_appModesApplied, this,
 *         [this](quint64 modes) { m_internals.overrideAppModes(modes); });
 * @endcode
 * GUI thread only.
 */
class PYXRUNTIME_EXPORT SHW_Debug_AppMode final : public PYXBoundSettingsWidget
{
    Q_OBJECT
    Q_DISABLE_COPY(SHW_Debug_AppMode)
public:
    explicit SHW_Debug_AppMode(QWidget *parent = nullptr);
    ~SHW_Debug_AppMode() override;

    /** Bit 0x1 for debug mode, 0x2 for expert mode. */
    static quint64 storedAppModes(const PYXSettings &settings);

    bool applyChanges() override;
    void sl_retranslateUi() override;

Q_SIGNALS:
    /** The user has applied the page with these bits. */
    void si_appModesApplied(quint64 a_appModes);

private:
    QCheckBox *m_debug;
    QCheckBox *m_expert;
};

} // namespace PYXRuntime
