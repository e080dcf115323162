// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXBoundSettingsWidget.h"

#include "PYXSettingsDialog.h"

namespace PYXRuntime {

PYXBoundSettingsWidget::PYXBoundSettingsWidget(QWidget *parent)
    : PYXSettingsHandlerWidget(parent)
{
    for (const PYXSettingsBinder *const binder : {&m_binder, &m_sharedBinder})
        connect(binder, &PYXSettingsBinder::si_modified, this, &PYXBoundSettingsWidget::sl_modified);
}

PYXBoundSettingsWidget::~PYXBoundSettingsWidget() = default;

bool PYXBoundSettingsWidget::applyChanges()
{
    m_binder.store(settings());
    m_sharedBinder.store(sharedSettings());
    return true;
}

bool PYXBoundSettingsWidget::checkUnmodified(PYXSettings *settings) const
{
    return m_binder.isUnmodified(settings);
}

void PYXBoundSettingsWidget::initFromSettings(const PYXSettings *settings)
{
    m_binder.load(settings);
}

bool PYXBoundSettingsWidget::checkUnmodifiedShared(PYXSettings *settings) const
{
    return m_sharedBinder.isUnmodified(settings);
}

void PYXBoundSettingsWidget::initFromSharedSettings(const PYXSettings *settings)
{
    m_sharedBinder.load(settings);
}

void PYXBoundSettingsWidget::setHeading(const QString &category, const QString &title)
{
    setCategory(category);
    setTitle(title);
    if (dialog() != nullptr)
        dialog()->renameCategory(dialog()->categoryIndex(this), category);
}

} // namespace PYXRuntime
