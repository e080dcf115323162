// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "DetectorParameters.h"

#include <QtWidgets/QDialog>

class QDoubleSpinBox;
class QSpinBox;

namespace BandMonitor {

/** Asks for the parameters of the detector. */
class DetectorDialog final : public QDialog
{
    Q_OBJECT
public:
    explicit DetectorDialog(QWidget *parent = nullptr);

    struDetectorParameters parameters() const;
    void setParameters(const struDetectorParameters &parameters);

private:
    QDoubleSpinBox *m_thresholdBox;
    QDoubleSpinBox *m_hysteresisBox;
    QSpinBox *m_gapBox;
};

} // namespace BandMonitor
