// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "SHW_Debug_AppMode.h"

#include "PageTexts.h"
#include "PYXSettings.h"
#include "PYXStandardIcons.h"

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QVBoxLayout>

namespace PYXRuntime {
namespace {

const QLatin1String DebugKey("/Debug/AppMode/Debug");
const QLatin1String ExpertKey("/Debug/AppMode/Expert");
constexpr quint64 DebugMode = 0x1;
constexpr quint64 ExpertMode = 0x2;

quint64 modes(bool bDebug, bool bExpert)
{
    return (bDebug ? DebugMode : 0) | (bExpert ? ExpertMode : 0);
}

} // namespace

SHW_Debug_AppMode::SHW_Debug_AppMode(QWidget *parent)
    : PYXBoundSettingsWidget(parent)
    , m_debug(new QCheckBox)
    , m_expert(new QCheckBox)
{
    setObjectName(QStringLiteral("SHW_Debug_AppMode"));
    setIcon(PYXStandardIcons::staticRegisteredIcon(PYXStandardIcons::ekIcon_Options));
    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(m_debug);
    layout->addWidget(m_expert);
    layout->addStretch(1);
    binder().bind(m_debug, DebugKey, false);
    binder().bind(m_expert, ExpertKey, false);
    SHW_Debug_AppMode::sl_retranslateUi();
}

SHW_Debug_AppMode::~SHW_Debug_AppMode() = default;

quint64 SHW_Debug_AppMode::storedAppModes(const PYXSettings &settings)
{
    return modes(settings.boolValue(DebugKey), settings.boolValue(ExpertKey));
}

bool SHW_Debug_AppMode::applyChanges()
{
    PYXBoundSettingsWidget::applyChanges();
    Q_EMIT si_appModesApplied(modes(m_debug->isChecked(), m_expert->isChecked()));
    return true;
}

void SHW_Debug_AppMode::sl_retranslateUi()
{
    setHeading(PageTexts::debug(), tr("Application Mode"));
    m_debug->setText(tr("&Debug mode"));
    m_debug->setToolTip(tr("Shows what helps to find faults in the application"));
    m_expert->setText(tr("&Expert mode"));
    m_expert->setToolTip(tr("Offers functions that need experience"));
}

} // namespace PYXRuntime
