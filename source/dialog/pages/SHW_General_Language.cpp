// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "SHW_General_Language.h"

#include "PageTexts.h"
#include "PYXBroker.h"
#include "PYXITransConnector.h"
#include "PYXSettings.h"
#include "PYXStandardIcons.h"

#include <QtCore/QSignalBlocker>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QStyle>
#include <QtWidgets/QStyleFactory>

namespace PYXRuntime {
namespace {

const QLatin1String LocaleKey("General/Language/Locale");
const QLatin1String StyleKey("General/Language/Style");
const QLatin1String English("en");

PYXITransConnector *connector()
{
    return PYXBroker::getInstance()->topObject<PYXITransConnector>();
}

// The style with which the application has come up; asked for before any other is set.
const QString &systemStyle()
{
    static const QString name = QApplication::style()->objectName();
    return name;
}

void changeStyle(const QString &stored)
{
    const QString wanted = stored.isEmpty() ? systemStyle() : stored;
    if (!wanted.isEmpty() && wanted.compare(QApplication::style()->objectName(), Qt::CaseInsensitive) != 0)
        QApplication::setStyle(wanted);
}

bool changeLocale(const QString &locale)
{
    PYXITransConnector *const translations = connector();
    if (translations == nullptr)
        return locale == English;
    return translations->getLocaleName() == locale || translations->changeLocale(locale);
}

} // namespace

SHW_General_Language::SHW_General_Language(QWidget *parent)
    : PYXBoundSettingsWidget(parent)
    , m_localeLabel(new QLabel)
    , m_locale(new QComboBox)
    , m_styleLabel(new QLabel)
    , m_style(new QComboBox)
    , m_failure(new QLabel)
{
    setObjectName(QStringLiteral("SHW_General_Language"));
    setIcon(PYXStandardIcons::staticRegisteredIcon(PYXStandardIcons::ekIcon_Font_Select));
    systemStyle();
    m_localeLabel->setBuddy(m_locale);
    m_styleLabel->setBuddy(m_style);
    m_failure->setWordWrap(true);
    m_failure->hide();
    auto *const form = new QFormLayout(this);
    form->addRow(m_localeLabel, m_locale);
    form->addRow(m_styleLabel, m_style);
    form->addRow(m_failure);
    _listLocales();
    m_style->addItem(QString(), QString());
    const QStringList styles = QStyleFactory::keys();
    for (const QString &style : styles)
        m_style->addItem(style, style);
    binder().bind(m_locale, LocaleKey, QString(English));
    binder().bind(m_style, StyleKey, QString());
    SHW_General_Language::sl_retranslateUi();
}

SHW_General_Language::~SHW_General_Language() = default;

QString SHW_General_Language::localeKey()
{
    return LocaleKey;
}

QString SHW_General_Language::styleKey()
{
    return StyleKey;
}

void SHW_General_Language::applyStored(const PYXSettings &settings)
{
    systemStyle();
    changeStyle(settings.stringValue(StyleKey));
    const QString locale = settings.stringValue(LocaleKey);
    changeLocale(locale.isEmpty() ? QString(English) : locale);
}

bool SHW_General_Language::applyChanges()
{
    PYXBoundSettingsWidget::applyChanges();
    changeStyle(m_style->currentData().toString());
    const bool bGood = changeLocale(m_locale->currentData().toString());
    m_failure->setVisible(!bGood);
    return true;
}

void SHW_General_Language::initContents()
{
    _listLocales(); // files may have come
    m_failure->hide();
    PYXBoundSettingsWidget::initContents();
}

void SHW_General_Language::sl_retranslateUi()
{
    setHeading(PageTexts::general(), tr("Language"));
    m_localeLabel->setText(tr("&Language:"));
    m_locale->setToolTip(tr("The language of all texts; changes at once"));
    m_styleLabel->setText(tr("&Style:"));
    m_style->setToolTip(tr("How buttons, lists and other controls look"));
    m_style->setItemText(0, tr("As the system has it"));
    m_failure->setText(tr("This language could not be loaded; the application speaks English instead."));
}

void SHW_General_Language::_listLocales()
{
    const QSignalBlocker blocker(m_locale);
    const QVariant current = m_locale->currentData();
    m_locale->clear();
    if (const PYXITransConnector *const translations = connector()) {
        const auto locales = translations->getSupportedLocales();
        for (const auto &locale : locales)
            m_locale->addItem(locale.displayName, locale.localeName);
    } else {
        m_locale->addItem(QStringLiteral("English"), QString(English));
    }
    m_locale->setCurrentIndex(qMax(0, m_locale->findData(current)));
}

} // namespace PYXRuntime
