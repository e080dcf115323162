// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "ProxyConfiguration.h"
#include "PYXBoundSettingsWidget.h"

class QButtonGroup;
class QComboBox;
class QFormLayout;
class QGroupBox;
class QLineEdit;
class QPushButton;
class QSpinBox;

namespace PYXRuntime {

/**
 * The settings page for the proxy of the process; on Apply it is stored where PYXProxyManager looks for it,
 * with the password encrypted by the provider in effect, and put in force. The test tries sites through what
 * is being edited. GUI thread only.
 */
class PYXRUNTIME_EXPORT SHW_Network_Proxy final : public PYXBoundSettingsWidget
{
    Q_OBJECT
    Q_DISABLE_COPY(SHW_Network_Proxy)
public:
    explicit SHW_Network_Proxy(QWidget *parent = nullptr);
    ~SHW_Network_Proxy() override;

    bool verifyContents(QStringList &errors) override;
    bool applyChanges() override;
    bool checkUnmodified(PYXSettings *settings) const override;
    void initFromSettings(const PYXSettings *settings) override;
    void attachToDialog(PYXSettingsDialog *dialog) override;
    void detachFromDialog() override;
    void locallyHandleModifications() override;
    void sl_retranslateUi() override;

private Q_SLOTS:
    void _sl_test_clicked();
    void _sl_dialog_finished();

private:
    QWidget *_makeServer();
    QWidget *_makeCredentials();
    void _connectControls();
    /** What the controls show. */
    ProxyConfiguration _shown() const;
    void _show(const ProxyConfiguration &configuration);
    const ProxyConfiguration &_stored(const PYXSettings *settings) const;
    void _wipePassword();
    static QString _passwordToolTip();

    /** What was read from a store, since the page is compared with it at every key stroke. */
    struct struStored
    {
        QByteArray xml;
        ProxyConfiguration configuration;
    };

    QButtonGroup *m_type;
    QGroupBox *m_server;
    QFormLayout *m_serverForm;
    QComboBox *m_variant;
    QLineEdit *m_host;
    QSpinBox *m_port;
    QGroupBox *m_credentials;
    QFormLayout *m_credentialsForm;
    QLineEdit *m_user;
    QLineEdit *m_password;
    QPushButton *m_test;
    mutable struStored m_storedUser;
    mutable struStored m_storedDefault;
};

} // namespace PYXRuntime
