// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "pyxruntime_export.h"

#include <QtCore/QDateTime>
#include <QtCore/QLocale>
#include <QtCore/QRect>
#include <QtCore/QRegExp>
#include <QtCore/QSettings>
#include <QtCore/QStringList>
#include <QtCore/QUrl>
#include <QtCore/QUuid>
#include <QtCore/QVariant>
#include <QtGui/QColor>
#include <QtGui/QFont>

#include <type_traits>

namespace PYXRuntime {

class PYXStatusHash;

/**
 * One of the settings stores of an application: the user's or the machine's, private to the application or
 * shared by all applications of the organisation.
 *
 * Made to be short-lived: build one on the stack where you read or write; changes are saved when it goes,
 * or when events are processed. Threads are as with QSettings: one object per thread, any number of objects
 * on one store. Two processes that write different keys of one store both keep their keys.
 *
 * No operation reports an error: what is missing reads as the empty value of the type. That a store cannot
 * be written is in status(), and is traced as a warning once until it can be written again. Windows does not
 * replace a file while another process has it open: saving then waits, for two seconds at most.
 *
 * Every object carries its this-run-only flag as the dynamic property "pyx__purpose__". The purpose is set
 * under that same name just before, so only the flag remains; the queries below therefore answer from it.
 */
class PYXRUNTIME_EXPORT PYXSettings : public QSettings
{
    Q_OBJECT
    Q_DISABLE_COPY(PYXSettings)
public:
    /** Which store; a value above 4 means the same store as 4. */
    enum ePurpose : int {
        eNoPurpose = 0, ///< with the constructors that take a purpose, the same as 1
        eUserApplicationSettings = 1,
        eUserSharedSettings = 2,
        eDefaultApplicationSettings = 3, ///< of the machine
        eDefaultSharedSettings = 4       ///< of the machine
    };
    Q_ENUM(ePurpose)

    /** Stores that are gone after the library is shut down. */
    enum eThisRunOnlySettings : int {
        eThisRunOnlyUserApplication = 0,
        eThisRunOnlyDefaultApplication = 1,
        eThisRunOnlyUserShared = 2,
        eThisRunOnlyDefaultShared = 3
    };
    Q_ENUM(eThisRunOnlySettings)

    /** A file in the default format. */
    explicit PYXSettings(const QString &fileName, QObject *parent = nullptr);
    PYXSettings(const QString &fileName, QSettings::Format format, QObject *parent = nullptr);
    /** The store of the application in that scope. */
    PYXSettings(QSettings::Format format, QSettings::Scope scope, QObject *parent = nullptr);
    explicit PYXSettings(QSettings::Scope scope, QObject *parent = nullptr);
    PYXSettings(QSettings::Format format, ePurpose purpose, QObject *parent = nullptr);
    explicit PYXSettings(ePurpose purpose, QObject *parent = nullptr);
    /** Needs the library to be initialised. */
    explicit PYXSettings(eThisRunOnlySettings settings, QObject *parent = nullptr);
    /** Saves what has changed. */
    ~PYXSettings() override;
    /** Saves what has changed, and takes over what others have. */
    void sync();

    /**
     * The property "pyx__purpose__" as a number: 0, or 1 for a this-run-only object. The following
     * queries compare that number with those of the enumeration. The static forms take any QSettings; one
     * without the property, or null, answers 0 and false.
     */
    int purpose() const;
    bool isUserSettings() const;
    bool isSharedSettings() const;
    bool isDefaultSettings() const;
    bool isApplicationSettings() const;
    bool isThisRunOnly() const;
    static int purpose(const QSettings *settings);
    static bool isUserSettings(const QSettings *settings);
    static bool isSharedSettings(const QSettings *settings);
    static bool isDefaultSettings(const QSettings *settings);
    static bool isApplicationSettings(const QSettings *settings);
    static bool isThisRunOnly(const QSettings *settings);

    /** As in QSettings; @p noFallbacks looks into this store only, not into those it falls back to. */
    QStringList allKeys(bool noFallbacks = false) const;
    QStringList childGroups(bool noFallbacks = false) const;
    QStringList childKeys(bool noFallbacks = false) const;
    bool contains(const QString &key, bool noFallbacks = false) const;

    /** Beware: with a bool this is not a default value. */
    QVariant value(const QString &key, bool noFallbacks) const;
    QVariant value(const QString &key, const QVariant &defaultValue = QVariant()) const;
    /** Keeps default values that are neither a bool nor a QVariant from being taken for @p noFallbacks. */
    template <typename T, typename = std::enable_if_t<!std::is_same_v<T, bool> &&
                                                      std::is_convertible_v<const T &, QVariant>>>
    QVariant value(const QString &key, const T &defaultValue) const
    {
        return value(key, QVariant(defaultValue));
    }
    QVariant value(const QString &key, const void *defaultValue) const = delete;

    bool boolValue(const QString &key, bool noFallbacks = false) const;
    int intValue(const QString &key, bool noFallbacks = false) const;
    uint uintValue(const QString &key, bool noFallbacks = false) const;
    qlonglong qlonglongValue(const QString &key, bool noFallbacks = false) const;
    qulonglong qulonglongValue(const QString &key, bool noFallbacks = false) const;
    double doubleValue(const QString &key, bool noFallbacks = false) const;
    QString stringValue(const QString &key, bool noFallbacks = false) const;
    QStringList stringListValue(const QString &key, bool noFallbacks = false) const;
    QByteArray byteArrayValue(const QString &key, bool noFallbacks = false) const;
    QDate dateValue(const QString &key, bool noFallbacks = false) const;
    QTime timeValue(const QString &key, bool noFallbacks = false) const;
    QDateTime dateTimeValue(const QString &key, bool noFallbacks = false) const;
    QUrl urlValue(const QString &key, bool noFallbacks = false) const;
    QLocale localeValue(const QString &key, bool noFallbacks = false) const;
    QRegExp regexpValue(const QString &key, bool noFallbacks = false) const;
    QPoint pointValue(const QString &key, bool noFallbacks = false) const;
    QPointF pointFValue(const QString &key, bool noFallbacks = false) const;
    QSize sizeValue(const QString &key, bool noFallbacks = false) const;
    QSizeF sizeFValue(const QString &key, bool noFallbacks = false) const;
    QRect rectValue(const QString &key, bool noFallbacks = false) const;
    QRectF rectFValue(const QString &key, bool noFallbacks = false) const;
    QFont fontValue(const QString &key, bool noFallbacks = false) const;
    /** Also from the name of a colour. */
    QColor colorValue(const QString &key, bool noFallbacks = false) const;
    QUuid uuidValue(const QString &key, bool noFallbacks = false) const;
    /** Qt::Unchecked for a text that names no state. */
    Qt::CheckState checkStateValue(const QString &key, bool noFallbacks = false) const;
    PYXStatusHash statusHashValue(const QString &key, bool noFallbacks = false) const;

    void setValue(const QString &key, const QVariant &value);
    void setValue(const QString &key, int value);
    void setValue(const QString &key, uint value);
    void setValue(const QString &key, qlonglong value);
    void setValue(const QString &key, qulonglong value);
    void setValue(const QString &key, double value);
    void setValue(const QString &key, bool value);
    /** Latin-1. */
    void setValue(const QString &key, const char *value);
    void setValue(const QString &key, const QString &value);
    void setValue(const QString &key, const QByteArray &value);
    void setValue(const QString &key, const QColor &value);
    void setValue(const QString &key, Qt::GlobalColor value);
    void setValue(const QString &key, const QFont &value);
    /** As a text with braces and upper-case digits. */
    void setValue(const QString &key, const QUuid &value);
    /** As the name of the state. */
    void setValue(const QString &key, Qt::CheckState value);
    void setValue(const QString &key, const PYXStatusHash &value);
    /** A pointer is no value; it would be stored as true. */
    void setValue(const QString &key, const void *value) = delete;

    /**
     * Removes a group with all its keys. As in every operation on groups, one "/" or "\" at the end of a
     * name is dropped.
     */
    void removeSubTree(const QString &group);
    /** Copies all that is below one group below another, whose other keys stay. */
    void cloneSubTree(const QString &source, const QString &target);
    /**
     * The keys below @p current whose value is another one or none below @p clone. Keys that only the
     * clone has are not reported.
     */
    QStringList diffClonedSubTrees(const QString &current, const QString &clone);

    /**
     * What a dialog that edits directories calls before its user edits: replaces @p target in the user's
     * application store by a copy of @p source, and "SavedPaths" in the user's shared store by a copy of
     * "Paths".
     */
    static void cloneUserAndSharedSubTreesForPaths(const QString &source, const QString &target);
    /** diffClonedSubTrees() in the user's application store. */
    static QStringList diffUserSubTreesForPaths(const QString &current, const QString &clone);
    /**
     * The keys below "Paths" in the user's shared store that have changed since the copy. Each change is
     * traced and told to the PYXIFileDialogPlaces that is registered with the broker, if there is one.
     */
    static QStringList diffAndHandleSharedSubTreesForPaths();
    /**
     * What the dialog calls on Apply, with the groups it has cloned: both differences, traced.
     * @return whether anything has changed.
     */
    static bool diffUserAndSharedSubTreesForPaths_handleShared(const QString &current, const QString &clone,
                                                               QStringList &userChanges,
                                                               QStringList &sharedChanges);

protected:
    bool event(QEvent *event) override;

private:
    void _saveChanges();
};

} // namespace PYXRuntime
