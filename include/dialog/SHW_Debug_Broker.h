// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "PYXBoundSettingsWidget.h"

namespace PYXRuntime {

class LiveTable;

/** The page that shows what is registered with the broker. GUI thread only. */
class PYXRUNTIME_EXPORT SHW_Debug_Broker final : public PYXBoundSettingsWidget
{
    Q_OBJECT
    Q_DISABLE_COPY(SHW_Debug_Broker)
public:
    explicit SHW_Debug_Broker(QWidget *parent = nullptr);
    ~SHW_Debug_Broker() override;

    void sl_retranslateUi() override;

private:
    LiveTable *m_table;
};

} // namespace PYXRuntime
