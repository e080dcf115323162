// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "SHW_Network_Proxy.h"

#include "PageTexts.h"
#include "ProxyTestDialog.h"
#include "PYXEncryptionManager.h"
#include "PYXProxyManager.h"
#include "PYXSettings.h"
#include "PYXSettingsDialog.h"
#include "PYXStandardIcons.h"
#include "WipedValue.h"

#include <QtCore/QPointer>
#include <QtWidgets/QButtonGroup>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QSpinBox>

namespace PYXRuntime {
namespace {

const QLatin1String TestSitesKey("::PYXRuntime::/ProxyConfigurationTestSites");
constexpr int HighestPort = 65535;

const QStringList &usualTestSites()
{
    static const QStringList sites{QStringLiteral("http://example.com/"),
                                   QStringLiteral("https://example.com/")};
    return sites;
}

QLabel *addRow(QFormLayout *form, QWidget *field)
{
    auto *const label = new QLabel;
    label->setBuddy(field);
    form->addRow(label, field);
    return label;
}

void setLabel(const QFormLayout *form, QWidget *field, const QString &text, const QString &toolTip)
{
    if (auto *const label = qobject_cast<QLabel *>(form->labelForField(field)))
        label->setText(text);
    field->setToolTip(toolTip);
}

// The text shares the edit's own buffer, which would be freed as it is.
void wipe(const QLineEdit &edit)
{
    QString secret = edit.text();
    PYXStringHelpers::safeOverwriteAndClear(secret);
}

bool isSame(const ProxyConfiguration &left, const ProxyConfiguration &right)
{
    const WipedString leftPassword(left.proxyPassword());
    const WipedString rightPassword(right.proxyPassword());
    return left.proxyType() == right.proxyType() && left.proxyVariant() == right.proxyVariant() &&
           left.proxyHost() == right.proxyHost() && left.proxyPort() == right.proxyPort() &&
           left.authenticationRequired() == right.authenticationRequired() &&
           left.proxyUsername() == right.proxyUsername() && leftPassword.value == rightPassword.value;
}

} // namespace

SHW_Network_Proxy::SHW_Network_Proxy(QWidget *parent)
    : PYXBoundSettingsWidget(parent)
    , m_type(new QButtonGroup(this))
    , m_test(new QPushButton)
{
    setObjectName(QStringLiteral("SHW_Network_Proxy"));
    setIcon(PYXStandardIcons::staticRegisteredIcon(PYXStandardIcons::ekIcon_Directions));
    auto *const layout = new QVBoxLayout(this);
    for (const int type :
         {Enums::ekProxy_NoProxy, Enums::ekProxy_UseSystemSettings, Enums::ekProxy_ManualConfiguration}) {
        auto *const button = new QRadioButton;
        m_type->addButton(button, type);
        layout->addWidget(button);
    }
    layout->addWidget(_makeServer());
    layout->addWidget(_makeCredentials());
    m_test->setAutoDefault(false);
    layout->addWidget(m_test, 0, Qt::AlignLeft);
    layout->addStretch(1);
    SHW_Network_Proxy::sl_retranslateUi();
    _show(ProxyConfiguration());
    _connectControls();
}

SHW_Network_Proxy::~SHW_Network_Proxy()
{
    _wipePassword();
}

QWidget *SHW_Network_Proxy::_makeServer()
{
    m_server = new QGroupBox;
    m_serverForm = new QFormLayout(m_server);
    m_variant = new QComboBox;
    m_variant->addItem(QString(), Enums::ekProxyVariant_HTTP);
    m_variant->addItem(QString(), Enums::ekProxyVariant_SOCKS5);
    m_host = new QLineEdit;
    m_port = new QSpinBox;
    m_port->setRange(1, HighestPort);
    for (QWidget *const field :
         {static_cast<QWidget *>(m_variant), static_cast<QWidget *>(m_host), static_cast<QWidget *>(m_port)})
        addRow(m_serverForm, field);
    return m_server;
}

QWidget *SHW_Network_Proxy::_makeCredentials()
{
    m_credentials = new QGroupBox;
    m_credentials->setCheckable(true);
    m_credentialsForm = new QFormLayout(m_credentials);
    m_user = new QLineEdit;
    m_password = new QLineEdit;
    m_password->setEchoMode(QLineEdit::Password);
    addRow(m_credentialsForm, m_user);
    addRow(m_credentialsForm, m_password);
    return m_credentials;
}

void SHW_Network_Proxy::_connectControls()
{
    connect(m_type, qOverload<int, bool>(&QButtonGroup::idToggled), this, &SHW_Network_Proxy::sl_modified);
    connect(m_variant, qOverload<int>(&QComboBox::currentIndexChanged), this,
            &SHW_Network_Proxy::sl_modified);
    connect(m_port, qOverload<int>(&QSpinBox::valueChanged), this, &SHW_Network_Proxy::sl_modified);
    connect(m_credentials, &QGroupBox::toggled, this, &SHW_Network_Proxy::sl_modified);
    for (const QLineEdit *const edit : {m_host, m_user, m_password})
        connect(edit, &QLineEdit::textChanged, this, &SHW_Network_Proxy::sl_modified);
    connect(m_test, &QPushButton::clicked, this, &SHW_Network_Proxy::_sl_test_clicked);
}

bool SHW_Network_Proxy::verifyContents(QStringList &errors)
{
    const int before = errors.size();
    if (m_type->checkedId() == Enums::ekProxy_NoProxy)
        return true;
    const QString host = m_host->text().trimmed();
    if (m_type->checkedId() == Enums::ekProxy_ManualConfiguration) {
        if (host.isEmpty())
            errors += tr("The name or address of the proxy server is missing.");
        else if (host.contains(QLatin1Char(' ')) || host.contains(QLatin1Char('/')))
            errors += tr("The proxy server is to be a plain name or address, such as proxy.example.com.");
    }
    if (m_credentials->isChecked() && m_user->text().isEmpty())
        errors += tr("The user name for the proxy is missing.");
    return errors.size() == before;
}

bool SHW_Network_Proxy::applyChanges()
{
    if (settings() == nullptr || checkUnmodified(settings()))
        return true;
    const ProxyConfiguration configuration = _shown();
    configuration.save(settings(), PYXProxyManager::settingsKey(), true);
    PYXProxyManager::applyProxyConfiguration(configuration);
    return true;
}

bool SHW_Network_Proxy::checkUnmodified(PYXSettings *settings) const
{
    return settings == nullptr || isSame(_shown(), _stored(settings));
}

void SHW_Network_Proxy::initFromSettings(const PYXSettings *settings)
{
    _show(_stored(settings));
}

const ProxyConfiguration &SHW_Network_Proxy::_stored(const PYXSettings *settings) const
{
    struStored &stored = settings == defaultSettings() ? m_storedDefault : m_storedUser;
    const QByteArray xml =
        settings != nullptr ? settings->value(PYXProxyManager::settingsKey()).toByteArray() : QByteArray();
    if (xml != stored.xml || xml.isEmpty()) {
        stored.xml = xml;
        stored.configuration =
            xml.isEmpty() ? ProxyConfiguration() : ProxyConfiguration::restoredFrom(xml, nullptr);
        stored.configuration.obfuscateProxyPassword();
    }
    return stored.configuration;
}

ProxyConfiguration SHW_Network_Proxy::_shown() const
{
    ProxyConfiguration configuration;
    configuration.setProxyType(Enums::eProxyType(m_type->checkedId()));
    configuration.setProxyVariant(Enums::eProxyVariant(m_variant->currentData().toInt()));
    configuration.setProxyHost(m_host->text().trimmed());
    configuration.setProxyPort(quint16(m_port->value()));
    configuration.setProxyAuthenticationRequired(m_credentials->isChecked());
    configuration.setProxyUsername(m_user->text());
    configuration.setProxyPassword(m_password->text()); // which it copies deeply
    return configuration;
}

void SHW_Network_Proxy::_show(const ProxyConfiguration &configuration)
{
    if (QAbstractButton *const button = m_type->button(configuration.proxyType()))
        button->setChecked(true);
    m_variant->setCurrentIndex(m_variant->findData(configuration.proxyVariant()));
    m_host->setText(configuration.proxyHost());
    m_port->setValue(configuration.proxyPort());
    m_credentials->setChecked(configuration.authenticationRequired());
    m_user->setText(configuration.proxyUsername());
    const WipedString password(configuration.proxyPassword());
    m_password->setToolTip(_passwordToolTip());
    wipe(*m_password);
    m_password->setText(PYXStringHelpers::trueCopy(password.value));
    locallyHandleModifications();
}

void SHW_Network_Proxy::attachToDialog(PYXSettingsDialog *dialog)
{
    PYXBoundSettingsWidget::attachToDialog(dialog);
    connect(dialog, &QDialog::finished, this, &SHW_Network_Proxy::_sl_dialog_finished);
}

void SHW_Network_Proxy::detachFromDialog()
{
    if (dialog() != nullptr)
        dialog()->disconnect(this);
    _wipePassword();
    PYXBoundSettingsWidget::detachFromDialog();
}

void SHW_Network_Proxy::locallyHandleModifications()
{
    const int type = m_type->checkedId();
    m_server->setEnabled(type == Enums::ekProxy_ManualConfiguration);
    m_credentials->setEnabled(type != Enums::ekProxy_NoProxy);
    QStringList errors;
    m_test->setEnabled(verifyContents(errors));
}

void SHW_Network_Proxy::_sl_dialog_finished()
{
    _wipePassword(); // the page may live as long as the application
}

void SHW_Network_Proxy::_wipePassword()
{
    setIgnoreModified(true);
    wipe(*m_password);
    m_password->clear();
    setIgnoreModified(false);
    for (struStored *const stored : {&m_storedUser, &m_storedDefault}) {
        stored->xml.clear();
        stored->configuration.clear();
    }
}

void SHW_Network_Proxy::_sl_test_clicked()
{
    QStringList sites = settings() != nullptr ? settings()->stringListValue(TestSitesKey) : QStringList();
    if (sites.isEmpty())
        sites = usualTestSites();
    // The page may go while it is shown, and this with it.
    const QPointer<ProxyTestDialog> test = new ProxyTestDialog(_shown(), sites, this);
    test->exec();
    if (test.isNull())
        return;
    if (settings() != nullptr && test->sites() != sites)
        settings()->setValue(TestSitesKey, test->sites());
    delete test;
}

// Names what stores it: not every provider encrypts.
QString SHW_Network_Proxy::_passwordToolTip()
{
    return tr("Is never shown; stored by: %1").arg(PYXEncryptionManager::staticEncryptionProviderName());
}

void SHW_Network_Proxy::sl_retranslateUi()
{
    setHeading(PageTexts::network(), tr("Proxy"));
    m_type->button(Enums::ekProxy_NoProxy)->setText(tr("&No proxy"));
    m_type->button(Enums::ekProxy_UseSystemSettings)->setText(tr("As the s&ystem has it"));
    m_type->button(Enums::ekProxy_ManualConfiguration)->setText(tr("&This proxy:"));
    m_server->setTitle(tr("Server"));
    m_variant->setItemText(0, tr("HTTP"));
    m_variant->setItemText(1, tr("SOCKS 5"));
    setLabel(m_serverForm, m_variant, tr("&Kind:"), tr("The protocol that the proxy speaks"));
    setLabel(m_serverForm, m_host, tr("Ser&ver:"), tr("Name or address of the proxy server"));
    setLabel(m_serverForm, m_port, tr("P&ort:"), tr("The port on which the proxy listens, often 8080"));
    m_credentials->setTitle(tr("The proxy asks for a &user name"));
    setLabel(m_credentialsForm, m_user, tr("Us&er name:"), tr("The name that the proxy asks for"));
    setLabel(m_credentialsForm, m_password, tr("Pass&word:"), _passwordToolTip());
    m_test->setText(tr("Te&st..."));
    m_test->setToolTip(tr("Tries web sites through this proxy; nothing needs to be applied before"));
}

} // namespace PYXRuntime
