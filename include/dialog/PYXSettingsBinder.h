// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "pyxruntime_export.h"

#include <QtCore/QDateTime>
#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtCore/QVariant>

#include <functional>
#include <vector>

class QAbstractSlider;
class QButtonGroup;
class QComboBox;
class QDateTimeEdit;
class QDoubleSpinBox;
class QFontComboBox;
class QSpinBox;
class QWidget;

namespace PYXRuntime {

class PYXSettings;

/**
 * Ties input widgets to keys of a store, to load them, compare them with it, and write what has changed.
 * @code
 * m_binder.bind(m_title, "Plot/Title");
 * m_binder.bind(m_gain, "Plot/Gain", 12.5);
 * connect(&m_binder, &PYXSettingsBinder::si_modified, this, &Page::sl_modified);
 * @endcode
 * A widget that is destroyed is forgotten. The fallback is what counts where the store has no value. A value
 * that the widget cannot show (out of its range, say) counts as the one that it shows instead.
 *
 * GUI thread only.
 */
class PYXRUNTIME_EXPORT PYXSettingsBinder final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(PYXSettingsBinder)
public:
    /** What of a combo box is kept. */
    enum eComboValue { ekCombo_Data, ekCombo_Text, ekCombo_Index };
    Q_ENUM(eComboValue)

    explicit PYXSettingsBinder(QObject *parent = nullptr);
    ~PYXSettingsBinder() override;

    /**
     * By the widget's user property: whether a check box or group box is checked, the text of a line or text
     * edit, a key sequence.
     * @return false, with a trace, for a widget that has no such property or does not tell its changes.
     */
    bool bind(QWidget *widget, const QString &key, const QVariant &fallback = QVariant());
    void bind(QSpinBox *box, const QString &key, int fallback = 0);
    void bind(QDoubleSpinBox *box, const QString &key, double fallback = 0.0);
    void bind(QAbstractSlider *slider, const QString &key, int fallback = 0);
    void bind(QDateTimeEdit *edit, const QString &key, const QDateTime &fallback = QDateTime());
    void bind(QComboBox *box, const QString &key, const QVariant &fallback, eComboValue what = ekCombo_Data);
    /** The family. */
    void bind(QFontComboBox *box, const QString &key, const QString &fallback = QString());
    /** The id of the checked button, as of radio buttons; a group in which one is always checked. */
    void bind(QButtonGroup *group, const QString &key, int fallback);

    /** Any other object: how its value is read and written. Call valueChanged() when it changes. */
    void bindValue(QObject *object, const QString &key, const QVariant &fallback,
                   const std::function<QVariant()> &read, std::function<void(const QVariant &)> write);

    /** Fills the widgets, without si_modified(); null: with the fallbacks. */
    void load(const PYXSettings *store);
    /** Whether the widgets show what the store holds; true for null. */
    bool isUnmodified(const PYXSettings *store) const;
    /**
     * Writes the values that differ from those of the store. The others are left alone, so that they go on
     * following the defaults.
     * @return the keys that were written
     */
    QStringList store(PYXSettings *store) const;

public Q_SLOTS:
    void valueChanged();

Q_SIGNALS:
    /** The user, or the program, has changed a widget. */
    void si_modified();

private:
    using Read = std::function<QVariant()>;
    using Write = std::function<void(const QVariant &)>;
    using Shown = std::function<QVariant(const QVariant &)>;

    struct struField
    {
        QPointer<QObject> object;
        QString key;
        QVariant fallback;
        Read read;
        Write write;
        Shown shown; ///< what the widget makes of a value
    };

    static QVariant _storedValue(const struField &field, const PYXSettings *store);
    static bool _isUnmodified(const struField &field, const PYXSettings *store);

    std::vector<struField> m_fields;
    bool m_bLoading = false;
};

} // namespace PYXRuntime
