// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#include "SHW_Display_Window.h"

#include <PYXSettings.h>
#include <PYXStandardIcons.h>

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QVBoxLayout>

using PYXRuntime::PYXSettings;
using PYXRuntime::PYXStandardIcons;

namespace BandMonitor {
namespace {

const QLatin1String DarkKey("MainWindow/DarkColours");
const QLatin1String AnnounceKey("MainWindow/AnnounceNewSignals");
constexpr bool DarkUsually = false;
constexpr bool AnnouncesUsually = true;

} // namespace

SHW_Display_Window::SHW_Display_Window(QWidget *parent)
    : PYXBoundSettingsWidget(parent)
    , m_darkBox(new QCheckBox)
    , m_announceBox(new QCheckBox)
{
    setObjectName(QStringLiteral("SHW_Display_Window"));
    setIcon(PYXStandardIcons::staticRegisteredIcon(PYXStandardIcons::ekIcon_Color_Select));
    m_darkBox->setObjectName(QStringLiteral("darkBox"));
    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(m_darkBox);
    layout->addWidget(m_announceBox);
    layout->addStretch(1);
    binder().bind(m_darkBox, DarkKey, DarkUsually);
    binder().bind(m_announceBox, AnnounceKey, AnnouncesUsually);
    SHW_Display_Window::sl_retranslateUi();
}

bool SHW_Display_Window::isDark(const PYXSettings &settings)
{
    return settings.value(DarkKey, QVariant(DarkUsually)).toBool();
}

bool SHW_Display_Window::announcesNewSignals(const PYXSettings &settings)
{
    return settings.value(AnnounceKey, QVariant(AnnouncesUsually)).toBool();
}

void SHW_Display_Window::setDark(PYXSettings &settings, bool bDark)
{
    settings.setValue(DarkKey, bDark);
}

void SHW_Display_Window::setAnnouncesNewSignals(PYXSettings &settings, bool bAnnounce)
{
    settings.setValue(AnnounceKey, bAnnounce);
}

void SHW_Display_Window::sl_retranslateUi()
{
    setHeading(tr("Display"), tr("Window"));
    m_darkBox->setText(tr("&Dark colours"));
    m_darkBox->setToolTip(tr("Light text on dark ground, for rooms with little light"));
    m_announceBox->setText(tr("A&nnounce new signals"));
    m_announceBox->setToolTip(tr("A pop-up tells the frequencies of signals that have just been found"));
}

} // namespace BandMonitor
