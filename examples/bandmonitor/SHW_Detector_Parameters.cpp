// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#include "SHW_Detector_Parameters.h"

#include <PYXSettings.h>
#include <PYXStandardIcons.h>

#include <QtWidgets/QDoubleSpinBox>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QSpinBox>

using PYXRuntime::PYXSettings;
using PYXRuntime::PYXStandardIcons;

namespace BandMonitor {

SHW_Detector_Parameters::SHW_Detector_Parameters(QWidget *parent)
    : PYXBoundSettingsWidget(parent)
    , m_thresholdLabel(new QLabel)
    , m_thresholdBox(new QDoubleSpinBox)
    , m_hysteresisLabel(new QLabel)
    , m_hysteresisBox(new QDoubleSpinBox)
    , m_gapLabel(new QLabel)
    , m_gapBox(new QSpinBox)
{
    setObjectName(QStringLiteral("SHW_Detector_Parameters"));
    setIcon(PYXStandardIcons::staticRegisteredIcon(PYXStandardIcons::ekIcon_Display_Tool_Level));
    m_thresholdBox->setRange(struDetectorParameters::SmallestThreshold,
                             struDetectorParameters::LargestThreshold);
    m_gapBox->setObjectName(QStringLiteral("gapBox"));
    m_gapBox->setRange(0, struDetectorParameters::WidestGap);
    m_thresholdLabel->setBuddy(m_thresholdBox);
    m_hysteresisLabel->setBuddy(m_hysteresisBox);
    m_gapLabel->setBuddy(m_gapBox);
    const auto onChanged = qOverload<double>(&QDoubleSpinBox::valueChanged);
    for (QDoubleSpinBox *const box : {m_thresholdBox, m_hysteresisBox}) {
        box->setDecimals(1);
        box->setSingleStep(0.5);
        connect(box, onChanged, this, &SHW_Detector_Parameters::sl_modified);
    }
    connect(m_thresholdBox, onChanged, m_hysteresisBox, &QDoubleSpinBox::setMaximum);
    connect(m_gapBox, qOverload<int>(&QSpinBox::valueChanged), this, &SHW_Detector_Parameters::sl_modified);

    auto *const form = new QFormLayout(this);
    form->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
    form->addRow(m_thresholdLabel, m_thresholdBox);
    form->addRow(m_hysteresisLabel, m_hysteresisBox);
    form->addRow(m_gapLabel, m_gapBox);
    SHW_Detector_Parameters::sl_retranslateUi();
}

struDetectorParameters SHW_Detector_Parameters::_shown() const
{
    return {m_thresholdBox->value(), m_hysteresisBox->value(), m_gapBox->value()};
}

bool SHW_Detector_Parameters::applyChanges()
{
    if (settings() != nullptr && !checkUnmodified(settings()))
        _shown().save(*settings());
    return PYXBoundSettingsWidget::applyChanges();
}

bool SHW_Detector_Parameters::checkUnmodified(PYXSettings *settings) const
{
    return settings == nullptr || _shown() == struDetectorParameters::restored(*settings);
}

void SHW_Detector_Parameters::initFromSettings(const PYXSettings *settings)
{
    const struDetectorParameters parameters =
        settings != nullptr ? struDetectorParameters::restored(*settings) : struDetectorParameters();
    m_thresholdBox->setValue(parameters.threshold);
    m_hysteresisBox->setMaximum(parameters.threshold); // nobody tells while signals are blocked
    m_hysteresisBox->setValue(parameters.hysteresis);
    m_gapBox->setValue(parameters.largestGap);
}

void SHW_Detector_Parameters::sl_retranslateUi()
{
    setHeading(tr("Detector"), tr("Parameters"));
    m_thresholdLabel->setText(tr("&Threshold above the noise:"));
    m_thresholdBox->setToolTip(tr("A signal is found when it stands so far out of the noise."));
    m_hysteresisLabel->setText(tr("&Hysteresis:"));
    m_hysteresisBox->setToolTip(tr("A signal is lost when it has fallen so far below the threshold."));
    m_gapLabel->setText(tr("&Gaps within a signal up to:"));
    m_gapBox->setToolTip(tr("Parts that are no farther apart make one signal."));
    for (QDoubleSpinBox *const box : {m_thresholdBox, m_hysteresisBox})
        box->setSuffix(tr(" dB"));
    m_gapBox->setSuffix(tr(" bins"));
}

} // namespace BandMonitor
