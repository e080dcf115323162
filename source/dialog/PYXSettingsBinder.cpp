// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXSettingsBinder.h"

#include "PYXSettings.h"
#include "PYXTraceWrapper.h"

#include <QtCore/QMetaProperty>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QAbstractSlider>
#include <QtWidgets/QButtonGroup>
#include <QtWidgets/QDateTimeEdit>
#include <QtWidgets/QFontComboBox>
#include <QtWidgets/QSpinBox>

namespace PYXRuntime {
namespace {

constexpr const char *TraceFile = "source\\PYXSettingsBinder";

QVariant converted(QVariant value, int type)
{
    return value.convert(type) ? value : QVariant(type, nullptr); // the type's empty value
}

int indexOf(const QComboBox &box, const QVariant &value, PYXSettingsBinder::eComboValue what)
{
    switch (what) {
    case PYXSettingsBinder::ekCombo_Data:
        return box.findData(value);
    case PYXSettingsBinder::ekCombo_Text:
        return box.findText(value.toString());
    case PYXSettingsBinder::ekCombo_Index:
        break;
    }
    const int index = value.toInt();
    return index >= 0 && index < box.count() ? index : -1;
}

QVariant comboValue(const QComboBox &box, PYXSettingsBinder::eComboValue what)
{
    switch (what) {
    case PYXSettingsBinder::ekCombo_Data:
        return box.currentData();
    case PYXSettingsBinder::ekCombo_Text:
        return box.currentText();
    case PYXSettingsBinder::ekCombo_Index:
        break;
    }
    return box.currentIndex();
}

} // namespace

PYXSettingsBinder::PYXSettingsBinder(QObject *parent)
    : QObject(parent)
{}

PYXSettingsBinder::~PYXSettingsBinder() = default;

bool PYXSettingsBinder::bind(QWidget *widget, const QString &key, const QVariant &fallback)
{
    const QMetaProperty property = widget != nullptr ? widget->metaObject()->userProperty() : QMetaProperty();
    if (!property.isWritable() || !property.hasNotifySignal()) {
        PYXTraceWrapper::staticTraceWarn(QLatin1String("No value to bind to the key ") + key, TraceFile,
                                         __LINE__);
        return false;
    }
    const int type = property.userType();
    m_fields.push_back({widget, key, fallback, [=] { return property.read(widget); },
                        [=](const QVariant &value) { property.write(widget, value); },
                        [=](const QVariant &value) { return converted(value, type); }});
    const int slot = staticMetaObject.indexOfSlot("valueChanged()");
    connect(widget, property.notifySignal(), this, staticMetaObject.method(slot));
    return true;
}

void PYXSettingsBinder::bind(QSpinBox *box, const QString &key, int fallback)
{
    m_fields.push_back(
        {box, key, fallback, [=] { return box->value(); },
         [=](const QVariant &value) { box->setValue(value.toInt()); },
         [=](const QVariant &value) { return qBound(box->minimum(), value.toInt(), box->maximum()); }});
    connect(box, qOverload<int>(&QSpinBox::valueChanged), this, &PYXSettingsBinder::valueChanged);
}

void PYXSettingsBinder::bind(QDoubleSpinBox *box, const QString &key, double fallback)
{
    m_fields.push_back({box, key, fallback, [=] { return box->value(); },
                        [=](const QVariant &value) { box->setValue(value.toDouble()); },
                        [=](const QVariant &value) {
                            const double rounded =
                                QString::number(value.toDouble(), 'f', box->decimals()).toDouble();
                            return qBound(box->minimum(), rounded, box->maximum());
                        }});
    connect(box, qOverload<double>(&QDoubleSpinBox::valueChanged), this, &PYXSettingsBinder::valueChanged);
}

void PYXSettingsBinder::bind(QAbstractSlider *slider, const QString &key, int fallback)
{
    m_fields.push_back(
        {slider, key, fallback, [=] { return slider->value(); },
         [=](const QVariant &value) { slider->setValue(value.toInt()); },
         [=](const QVariant &value) { return qBound(slider->minimum(), value.toInt(), slider->maximum()); }});
    connect(slider, &QAbstractSlider::valueChanged, this, &PYXSettingsBinder::valueChanged);
}

void PYXSettingsBinder::bind(QDateTimeEdit *edit, const QString &key, const QDateTime &fallback)
{
    const auto shown = [=](const QVariant &value) {
        const QDateTime time = value.toDateTime();
        return qBound(edit->minimumDateTime(), time, edit->maximumDateTime());
    };
    m_fields.push_back({edit, key, fallback, [=] { return edit->dateTime(); },
                        [=](const QVariant &value) { edit->setDateTime(shown(value)); }, shown});
    connect(edit, &QDateTimeEdit::dateTimeChanged, this, &PYXSettingsBinder::valueChanged);
}

void PYXSettingsBinder::bind(QComboBox *box, const QString &key, const QVariant &fallback, eComboValue what)
{
    const auto write = [=](const QVariant &value) {
        const int index = indexOf(*box, value, what);
        if (index < 0 && what == ekCombo_Text && box->isEditable())
            box->setEditText(value.toString());
        else
            box->setCurrentIndex(index);
    };
    const auto shown = [=](const QVariant &value) -> QVariant {
        if (what == ekCombo_Index)
            return indexOf(*box, value, what);
        const int index = indexOf(*box, value, what);
        if (what == ekCombo_Text)
            return index < 0 && !box->isEditable() ? QString() : value.toString();
        return index < 0 ? QVariant() : box->itemData(index);
    };
    m_fields.push_back({box, key, fallback, [=] { return comboValue(*box, what); }, write, shown});
    connect(box, &QComboBox::currentTextChanged, this, &PYXSettingsBinder::valueChanged);
    connect(box, qOverload<int>(&QComboBox::currentIndexChanged), this, &PYXSettingsBinder::valueChanged);
}

void PYXSettingsBinder::bind(QFontComboBox *box, const QString &key, const QString &fallback)
{
    const QString family = fallback.isEmpty() ? box->currentText() : fallback;
    bind(static_cast<QComboBox *>(box), key, family, ekCombo_Text);
}

void PYXSettingsBinder::bind(QButtonGroup *group, const QString &key, int fallback)
{
    const auto write = [=](const QVariant &value) {
        if (QAbstractButton *const button = group->button(value.toInt()))
            button->setChecked(true);
        else if (QAbstractButton *const usual = group->button(fallback))
            usual->setChecked(true);
    };
    const auto shown = [=](const QVariant &value) {
        return group->button(value.toInt()) != nullptr ? value.toInt() : fallback;
    };
    m_fields.push_back({group, key, fallback, [=] { return group->checkedId(); }, write, shown});
    connect(group, qOverload<int, bool>(&QButtonGroup::idToggled), this, &PYXSettingsBinder::valueChanged);
}

void PYXSettingsBinder::bindValue(QObject *object, const QString &key, const QVariant &fallback,
                                  const std::function<QVariant()> &read,
                                  std::function<void(const QVariant &)> write)
{
    m_fields.push_back({object, key, fallback, read, std::move(write),
                        [read](const QVariant &value) { return converted(value, read().userType()); }});
}

void PYXSettingsBinder::load(const PYXSettings *store)
{
    m_bLoading = true;
    for (const struField &field : m_fields) {
        if (!field.object.isNull())
            field.write(_storedValue(field, store));
    }
    m_bLoading = false;
}

bool PYXSettingsBinder::isUnmodified(const PYXSettings *store) const
{
    return store == nullptr || std::all_of(m_fields.begin(), m_fields.end(), [store](const struField &field) {
               return _isUnmodified(field, store);
           });
}

QStringList PYXSettingsBinder::store(PYXSettings *store) const
{
    QStringList written;
    if (store == nullptr)
        return written;
    for (const struField &field : m_fields) {
        if (_isUnmodified(field, store))
            continue;
        store->setValue(field.key, field.read());
        written += field.key;
    }
    return written;
}

void PYXSettingsBinder::valueChanged()
{
    if (!m_bLoading)
        Q_EMIT si_modified();
}

QVariant PYXSettingsBinder::_storedValue(const struField &field, const PYXSettings *store)
{
    const QVariant fallback = field.fallback.isValid() ? field.fallback : field.shown(QVariant());
    return store != nullptr ? store->value(field.key, fallback) : fallback;
}

bool PYXSettingsBinder::_isUnmodified(const struField &field, const PYXSettings *store)
{
    return field.object.isNull() || field.read() == field.shown(_storedValue(field, store));
}

} // namespace PYXRuntime
