// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#include "DetectorDialog.h"

#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QDoubleSpinBox>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QSpinBox>

namespace BandMonitor {

DetectorDialog::DetectorDialog(QWidget *parent)
    : QDialog(parent)
    , m_thresholdBox(new QDoubleSpinBox)
    , m_hysteresisBox(new QDoubleSpinBox)
    , m_gapBox(new QSpinBox)
{
    setWindowTitle(tr("Detector"));
    m_thresholdBox->setRange(struDetectorParameters::SmallestThreshold,
                             struDetectorParameters::LargestThreshold);
    m_thresholdBox->setToolTip(tr("A signal is found when it stands so far out of the noise."));
    m_hysteresisBox->setToolTip(tr("A signal is lost when it has fallen so far below the threshold."));
    m_gapBox->setObjectName(QStringLiteral("gapBox"));
    m_gapBox->setRange(0, struDetectorParameters::WidestGap);
    m_gapBox->setToolTip(tr("Parts that are no farther apart make one signal."));
    for (QDoubleSpinBox *const box : {m_thresholdBox, m_hysteresisBox}) {
        box->setDecimals(1);
        box->setSingleStep(0.5);
        box->setSuffix(tr(" dB"));
    }
    m_gapBox->setSuffix(tr(" bins"));
    connect(m_thresholdBox, QOverload<double>::of(&QDoubleSpinBox::valueChanged), m_hysteresisBox,
            &QDoubleSpinBox::setMaximum);

    auto *const buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel |
                                               QDialogButtonBox::RestoreDefaults);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(buttons->button(QDialogButtonBox::RestoreDefaults), &QPushButton::clicked, this,
            [this] { setParameters({}); });

    auto *const layout = new QFormLayout(this);
    layout->addRow(tr("&Threshold above the noise:"), m_thresholdBox);
    layout->addRow(tr("&Hysteresis:"), m_hysteresisBox);
    layout->addRow(tr("&Gaps within a signal up to:"), m_gapBox);
    layout->addRow(buttons);
    setParameters({});
}

struDetectorParameters DetectorDialog::parameters() const
{
    return {m_thresholdBox->value(), m_hysteresisBox->value(), m_gapBox->value()};
}

void DetectorDialog::setParameters(const struDetectorParameters &parameters)
{
    m_thresholdBox->setValue(parameters.threshold); // first: limits the hysteresis
    m_hysteresisBox->setMaximum(parameters.threshold);
    m_hysteresisBox->setValue(parameters.hysteresis);
    m_gapBox->setValue(parameters.largestGap);
}

} // namespace BandMonitor
