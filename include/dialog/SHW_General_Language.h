// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "PYXBoundSettingsWidget.h"

class QComboBox;
class QLabel;

namespace PYXRuntime {

/** The settings page for the language of the application and the style of its widgets; both change on Apply.
 * GUI thread only. */
class PYXRUNTIME_EXPORT SHW_General_Language final : public PYXBoundSettingsWidget
{
    Q_OBJECT
    Q_DISABLE_COPY(SHW_General_Language)
public:
    explicit SHW_General_Language(QWidget *parent = nullptr);
    ~SHW_General_Language() override;

    /** What an application calls at its start: brings the stored language and style into effect. */
    static void applyStored(const PYXSettings &settings);

    static QString localeKey();
    /** The name of a QStyle; empty for that of the system. */
    static QString styleKey();

    bool applyChanges() override;
    void initContents() override;
    void sl_retranslateUi() override;

private:
    void _listLocales();

    QLabel *m_localeLabel;
    QComboBox *m_locale;
    QLabel *m_styleLabel;
    QComboBox *m_style;
    QLabel *m_failure;
};

} // namespace PYXRuntime
