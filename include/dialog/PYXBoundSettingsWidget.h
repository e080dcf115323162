// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "PYXSettingsBinder.h"
#include "PYXSettingsHandlerWidget.h"

namespace PYXRuntime {

/**
 * A settings page of plain fields: whoever derives from it builds the form and binds its widgets to keys.
 * @code
 * SHW_Plots_Waterfall::SHW_Plots_Waterfall()
 * {
 *     setHeading(tr("Plots"), tr("Waterfall"));
 *     auto *form = new QFormLayout(this);
 *     auto *lines = new QSpinBox;
 *     form->addRow(tr("&Lines per second"), lines);
 *     binder().bind(lines, "Plots/Waterfall/LinesPerSecond", 25);
 * }
 * @endcode
 * GUI thread only.
 */
class PYXRUNTIME_EXPORT PYXBoundSettingsWidget : public PYXSettingsHandlerWidget
{
    Q_OBJECT
    Q_DISABLE_COPY(PYXBoundSettingsWidget)
public:
    explicit PYXBoundSettingsWidget(QWidget *parent = nullptr);
    ~PYXBoundSettingsWidget() override;

    bool applyChanges() override;
    bool checkUnmodified(PYXSettings *settings) const override;
    void initFromSettings(const PYXSettings *settings) override;
    bool checkUnmodifiedShared(PYXSettings *settings) const override;
    void initFromSharedSettings(const PYXSettings *settings) override;

protected:
    /** Fields of the application's store. */
    PYXSettingsBinder &binder() { return m_binder; }
    /** Fields of the shared store. */
    PYXSettingsBinder &sharedBinder() { return m_sharedBinder; }

    /** Category and title in the present language; a dialog that has the page already shows them too. */
    void setHeading(const QString &category, const QString &title);

private:
    PYXSettingsBinder m_binder;
    PYXSettingsBinder m_sharedBinder;
};

} // namespace PYXRuntime
