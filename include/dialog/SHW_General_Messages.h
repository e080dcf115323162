// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "PYXBoundSettingsWidget.h"

class QLabel;
class QPushButton;
class QTreeWidget;

namespace PYXRuntime {

/** The settings page for the messages that the user does not want to see any more: Apply brings them back.
 * GUI thread only. */
class PYXRUNTIME_EXPORT SHW_General_Messages final : public PYXBoundSettingsWidget
{
    Q_OBJECT
    Q_DISABLE_COPY(SHW_General_Messages)
public:
    explicit SHW_General_Messages(QWidget *parent = nullptr);
    ~SHW_General_Messages() override;

    bool applyChanges() override;
    bool checkUnmodified(PYXSettings *settings) const override;
    void initFromSettings(const PYXSettings *settings) override;
    void locallyHandleModifications() override;
    void sl_retranslateUi() override;

private Q_SLOTS:
    void _sl_showAll_clicked();

private:
    bool _areDefaults(const PYXSettings *settings) const;
    void _list();
    void _translateDurations();
    int _countOf(Qt::CheckState state) const;

    QLabel *m_note;
    QTreeWidget *m_messages;
    QPushButton *m_showAll;
};

} // namespace PYXRuntime
