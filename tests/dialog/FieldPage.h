// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "PYXSettings.h"
#include "PYXSettingsHandlerWidget.h"

#include <QtWidgets/QFormLayout>
#include <QtWidgets/QLineEdit>

/** A page of one field, kept under its own name; what it may do is set from outside. */
class FieldPage : public PYXRuntime::PYXSettingsHandlerWidget
{
public:
    FieldPage(const QString &category, const QString &title)
        : key("Pages/" + title)
    {
        setObjectName(title);
        setCategory(category);
        setTitle(title);
        auto *const layout = new QFormLayout(this);
        layout->addRow("&Value of " + title, field);
        connect(field, &QLineEdit::textChanged, this, [this] { sl_modified(); });
    }

    bool verifyContents(QStringList &list) override
    {
        list += errors;
        return errors.isEmpty();
    }
    bool applyChanges() override
    {
        calls += "apply";
        if (bFails)
            return false;
        settings()->setValue(key, field->text());
        return true;
    }
    bool checkUnmodified(PYXRuntime::PYXSettings *store) const override
    {
        return store->stringValue(key) == field->text();
    }
    void initFromSettings(const PYXRuntime::PYXSettings *store) override
    {
        field->setText(store->stringValue(key));
    }
    bool discardChanges() override
    {
        calls += "discard";
        return !bFails;
    }
    void sl_retranslateUi() override { calls += "retranslate"; }
    void locallyHandleModifications() override { ++modifications; }

    using PYXSettingsHandlerWidget::blockControlsSignals;
    using PYXSettingsHandlerWidget::isDirty;
    using PYXSettingsHandlerWidget::isInCleanState;
    using PYXSettingsHandlerWidget::isInDefaultState;
    using PYXSettingsHandlerWidget::recursiveBlockSignals;
    using PYXSettingsHandlerWidget::setIcon;
    using PYXSettingsHandlerWidget::setIgnoreModified;
    using PYXSettingsHandlerWidget::settings;
    using PYXSettingsHandlerWidget::setTitle;

    const QString key;
    QLineEdit *const field = new QLineEdit;
    QStringList errors;
    bool bFails = false;
    QStringList calls;
    int modifications = 0;
};
