// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "PYXBoundSettingsWidget.h"

class QCheckBox;
class QLabel;

namespace PYXRuntime {

class LiveTable;

/**
 * The page that shows all runtime scopes and switches their messages. A switch takes effect at once, until
 * the application ends: nothing is stored. GUI thread only.
 */
class PYXRUNTIME_EXPORT SHW_Debug_RuntimeScopes final : public PYXBoundSettingsWidget
{
    Q_OBJECT
    Q_DISABLE_COPY(SHW_Debug_RuntimeScopes)
public:
    explicit SHW_Debug_RuntimeScopes(QWidget *parent = nullptr);
    ~SHW_Debug_RuntimeScopes() override;

    void initContents() override;
    void sl_retranslateUi() override;

private Q_SLOTS:
    void _sl_table_checked(const QString &a_scope, int a_column, bool a_checked);

private:
    QLabel *m_note;
    LiveTable *m_table;
    QCheckBox *m_debugToTrace;
    QCheckBox *m_warningToTrace;
};

} // namespace PYXRuntime
