// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "DetectorParameters.h"

#include <PYXBoundSettingsWidget.h>

class QDoubleSpinBox;
class QLabel;
class QSpinBox;

namespace BandMonitor {

/** The settings page for the parameters of the detector, which are one value in the settings. */
class SHW_Detector_Parameters final : public PYXRuntime::PYXBoundSettingsWidget
{
    Q_OBJECT
public:
    explicit SHW_Detector_Parameters(QWidget *parent = nullptr);

    bool applyChanges() override;
    bool checkUnmodified(PYXRuntime::PYXSettings *settings) const override;
    void initFromSettings(const PYXRuntime::PYXSettings *settings) override;
    void sl_retranslateUi() override;

private:
    struDetectorParameters _shown() const;

    QLabel *m_thresholdLabel;
    QDoubleSpinBox *m_thresholdBox;
    QLabel *m_hysteresisLabel;
    QDoubleSpinBox *m_hysteresisBox;
    QLabel *m_gapLabel;
    QSpinBox *m_gapBox;
};

} // namespace BandMonitor
