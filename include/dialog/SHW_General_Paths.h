// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "PYXBoundSettingsWidget.h"

#include <vector>

class QFormLayout;
class QLabel;
class QLineEdit;
class QPushButton;

namespace PYXRuntime {

/**
 * The settings page for directories: those that all applications share, and those that the application adds.
 * What has changed is found out on Apply, and file dialogs that are bound to a directory begin there. GUI
 * thread only.
 */
class PYXRUNTIME_EXPORT SHW_General_Paths final : public PYXBoundSettingsWidget
{
    Q_OBJECT
    Q_DISABLE_COPY(SHW_General_Paths)
public:
    /** With the shared collections, detector profiles and scripts. */
    explicit SHW_General_Paths(QWidget *parent = nullptr);
    ~SHW_General_Paths() override;

    /**
     * Adds a directory of the application, kept in its own store.
     * @param key below "Paths/"
     * @param label with a mnemonic, as "&Recordings:"; call setDirectoryLabel() when the language changes
     */
    void addDirectory(const QString &key, const QString &label);
    void setDirectoryLabel(const QString &key, const QString &label);

    bool verifyContents(QStringList &errors) override;
    bool applyChanges() override;
    void initContents() override;
    void sl_retranslateUi() override;

Q_SIGNALS:
    /** Apply has changed directories; keys in the application's and in the shared store. */
    void si_pathsChanged(const QStringList &a_userKeys, const QStringList &a_sharedKeys);

private:
    struct struDirectory
    {
        QString key;
        QLabel *label;
        QLineEdit *edit;
        QPushButton *browse;
    };

    void _add(const QString &key, const QString &label, PYXSettingsBinder &binder);
    void _browse(QLineEdit *edit);
    void _translate(const struDirectory &directory) const;

    QFormLayout *m_form;
    std::vector<struDirectory> m_directories;
};

} // namespace PYXRuntime
