// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXSettingsHandlerWidget.h"

#include "LocaleChange.h"

#include <QtCore/QMetaObject>
#include <QtCore/QVariant>

namespace PYXRuntime {
namespace {

constexpr const char *CategoryProperty = "::CATEGORY::";
constexpr const char *TitleProperty = "::TITLE::";
constexpr const char *IconProperty = "::ICON::";

} // namespace

PYXSettingsHandlerWidget::PYXSettingsHandlerWidget(QWidget *parent)
    : QWidget(parent)
{
    setFocusPolicy(Qt::WheelFocus);
    // Queued: the derived page is not built yet.
    QMetaObject::invokeMethod(this, &PYXSettingsHandlerWidget::sl_retranslateUi, Qt::QueuedConnection);
    connectToLocaleChange(this, SLOT(sl_retranslateUi()));
}

PYXSettingsHandlerWidget::~PYXSettingsHandlerWidget() = default;

bool PYXSettingsHandlerWidget::verifyContents(QStringList &)
{
    return true;
}

bool PYXSettingsHandlerWidget::applyChanges()
{
    return true;
}

bool PYXSettingsHandlerWidget::checkUnmodified(PYXSettings *) const
{
    return true;
}

void PYXSettingsHandlerWidget::initFromSettings(const PYXSettings *) {}

bool PYXSettingsHandlerWidget::checkUnmodifiedShared(PYXSettings *) const
{
    return true;
}

void PYXSettingsHandlerWidget::initFromSharedSettings(const PYXSettings *) {}

void PYXSettingsHandlerWidget::sl_retranslateUi() {}

void PYXSettingsHandlerWidget::resetContents()
{
    initContents();
}

void PYXSettingsHandlerWidget::attachToDialog(PYXSettingsDialog *dialog)
{
    m_dialog = dialog;
}

void PYXSettingsHandlerWidget::detachFromDialog()
{
    m_dialog = nullptr;
}

bool PYXSettingsHandlerWidget::discardChanges()
{
    return true;
}

void PYXSettingsHandlerWidget::initContents()
{
    initFromSettings(m_settings);
    initFromSharedSettings(m_sharedSettings);
}

void PYXSettingsHandlerWidget::restoreDefaultsContents()
{
    initFromSettings(m_defaultSettings);
    initFromSharedSettings(m_sharedDefaultSettings);
}

void PYXSettingsHandlerWidget::locallyHandleModifications() {}

void PYXSettingsHandlerWidget::sl_modified()
{
    if (m_bIgnoreModified)
        return;
    locallyHandleModifications();
    Q_EMIT si_madeModifications();
}

void PYXSettingsHandlerWidget::setSettingsToUse(PYXSettings *settings, PYXSettings *defaults)
{
    m_settings = settings;
    m_defaultSettings = defaults;
}

void PYXSettingsHandlerWidget::setSharedSettingsToUse(PYXSettings *shared, PYXSettings *sharedDefaults)
{
    m_sharedSettings = shared;
    m_sharedDefaultSettings = sharedDefaults;
}

void PYXSettingsHandlerWidget::setCategory(const QString &category)
{
    setProperty(CategoryProperty, category);
}

QString PYXSettingsHandlerWidget::category() const
{
    return property(CategoryProperty).toString();
}

void PYXSettingsHandlerWidget::setTitle(const QString &title)
{
    // The page takes the focus, so a screen reader must be able to say what it is.
    if (accessibleName().isEmpty() || accessibleName() == this->title())
        setAccessibleName(title);
    setProperty(TitleProperty, title);
}

QString PYXSettingsHandlerWidget::title() const
{
    return property(TitleProperty).toString();
}

void PYXSettingsHandlerWidget::setIcon(const QIcon &icon)
{
    setProperty(IconProperty, icon);
}

QIcon PYXSettingsHandlerWidget::icon() const
{
    return property(IconProperty).value<QIcon>();
}

void PYXSettingsHandlerWidget::setIgnoreModified(bool ignore)
{
    m_bIgnoreModified = ignore;
}

bool PYXSettingsHandlerWidget::isDirty() const
{
    return !isInCleanState();
}

bool PYXSettingsHandlerWidget::isInCleanState() const
{
    return checkUnmodified(m_settings) && checkUnmodifiedShared(m_sharedSettings);
}

bool PYXSettingsHandlerWidget::isInDefaultState() const
{
    return checkUnmodified(m_defaultSettings) && checkUnmodifiedShared(m_sharedDefaultSettings);
}

void PYXSettingsHandlerWidget::blockControlsSignals(bool block)
{
    const QObjectList controls = children();
    for (QObject *const control : controls)
        recursiveBlockSignals(control, block);
}

void PYXSettingsHandlerWidget::recursiveBlockSignals(QObject *object, bool block)
{
    if (object == nullptr || !object->isWidgetType())
        return;
    object->blockSignals(block);
    const QObjectList children = object->children();
    for (QObject *const child : children)
        recursiveBlockSignals(child, block);
}

void PYXSettingsHandlerWidget::recursiveBlockSignals(bool block)
{
    recursiveBlockSignals(this, block);
}

} // namespace PYXRuntime
