// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXSettings.h"

#include "EmptyLock.h"
#include "OpenFileRetry.h"
#include "PYXStatusHash.h"
#include "PYXThisRunOnlySettings.h"
#include "SeenStates.h"
#include "SettingsSubTrees.h"
#include "StoreFailures.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QEvent>
#include <QtCore/QMetaEnum>
#include <QtCore/QThread>

namespace PYXRuntime {
namespace {

constexpr char PurposeProperty[] = "pyx__purpose__";
const QLatin1String SharedStore("SharedSettings");

QSettings::Scope scopeOf(PYXSettings::ePurpose purpose)
{
    return purpose <= PYXSettings::eUserSharedSettings ? QSettings::UserScope : QSettings::SystemScope;
}

QString applicationOf(PYXSettings::ePurpose purpose)
{
    const bool bApplication = purpose <= PYXSettings::eUserApplicationSettings ||
                              purpose == PYXSettings::eDefaultApplicationSettings;
    return bApplication ? QCoreApplication::applicationName() : QString(SharedStore);
}

PYXSettings::ePurpose purposeOf(QSettings::Scope scope)
{
    return scope == QSettings::SystemScope ? PYXSettings::eDefaultApplicationSettings
                                           : PYXSettings::eUserApplicationSettings;
}

PYXSettings::ePurpose purposeOf(PYXSettings::eThisRunOnlySettings settings)
{
    const bool bShared = settings > PYXSettings::eThisRunOnlyDefaultApplication;
    if (settings % 2 != 0)
        return bShared ? PYXSettings::eDefaultSharedSettings : PYXSettings::eDefaultApplicationSettings;
    return bShared ? PYXSettings::eUserSharedSettings : PYXSettings::eUserApplicationSettings;
}

PYXSettings::ePurpose orUserApplication(PYXSettings::ePurpose purpose)
{
    return purpose == PYXSettings::eNoPurpose ? PYXSettings::eUserApplicationSettings : purpose;
}

/** Both have the same name: the flag replaces the purpose. */
void mark(QSettings &settings, PYXSettings::ePurpose purpose, bool bThisRunOnly = false)
{
    settings.setProperty(PurposeProperty, int(purpose));
    settings.setProperty(PurposeProperty, bThisRunOnly);
}

/** Keeps the fallbacks of a store off while it lives. */
class FallbackPause final
{
public:
    FallbackPause(const QSettings *settings, bool bPause)
        : m_settings(bPause && settings->fallbacksEnabled() ? const_cast<QSettings *>(settings) : nullptr)
    {
        if (m_settings != nullptr)
            m_settings->setFallbacksEnabled(false);
    }
    ~FallbackPause()
    {
        if (m_settings != nullptr)
            m_settings->setFallbacksEnabled(true);
    }
    Q_DISABLE_COPY(FallbackPause)

private:
    QSettings *m_settings;
};

} // namespace

PYXSettings::PYXSettings(const QString &fileName, QObject *parent)
    : PYXSettings(fileName, QSettings::defaultFormat(), parent)
{}

PYXSettings::PYXSettings(const QString &fileName, QSettings::Format format, QObject *parent)
    : QSettings(fileName, format, parent)
{
    mark(*this, eNoPurpose);
}

PYXSettings::PYXSettings(QSettings::Format format, QSettings::Scope scope, QObject *parent)
    : QSettings(format, scope, QCoreApplication::organizationName(), QCoreApplication::applicationName(),
                parent)
{
    mark(*this, purposeOf(scope));
}

PYXSettings::PYXSettings(QSettings::Scope scope, QObject *parent)
    : PYXSettings(QSettings::defaultFormat(), scope, parent)
{}

PYXSettings::PYXSettings(QSettings::Format format, ePurpose purpose, QObject *parent)
    : QSettings(format, scopeOf(purpose), QCoreApplication::organizationName(), applicationOf(purpose),
                parent)
{
    mark(*this, orUserApplication(purpose));
}

PYXSettings::PYXSettings(ePurpose purpose, QObject *parent)
    : PYXSettings(QSettings::defaultFormat(), purpose, parent)
{}

PYXSettings::PYXSettings(eThisRunOnlySettings settings, QObject *parent)
    : QSettings(PYXThisRunOnlySettings::format(), scopeOf(purposeOf(settings)),
                QCoreApplication::organizationName(), applicationOf(purposeOf(settings)), parent)
{
    mark(*this, purposeOf(settings), true);
}

PYXSettings::~PYXSettings()
{
    _saveChanges();
}

void PYXSettings::sync()
{
    _saveChanges();
    QSettings::sync();
}

/**
 * A change that is still to be saved has an event on its way. Taking it here tells of a failure, about which
 * the base class would keep silent.
 */
void PYXSettings::_saveChanges()
{
    if (thread() == QThread::currentThread())
        QCoreApplication::sendPostedEvents(this, QEvent::UpdateRequest);
}

bool PYXSettings::event(QEvent *event)
{
    if (event->type() != QEvent::UpdateRequest)
        return QSettings::event(event);
    const QSettings::Status before = status();
    EmptyLock::remove(fileName());
    SeenStates::discloseChange(fileName());
    OpenFileRetry::save(*this);
    const bool bHandled = QSettings::event(event);
    StoreFailures::noteSaved(*this, before);
    return bHandled;
}

int PYXSettings::purpose() const
{
    return purpose(this);
}

bool PYXSettings::isUserSettings() const
{
    return isUserSettings(this);
}

bool PYXSettings::isSharedSettings() const
{
    return isSharedSettings(this);
}

bool PYXSettings::isDefaultSettings() const
{
    return isDefaultSettings(this);
}

bool PYXSettings::isApplicationSettings() const
{
    return isApplicationSettings(this);
}

bool PYXSettings::isThisRunOnly() const
{
    return isThisRunOnly(this);
}

int PYXSettings::purpose(const QSettings *settings)
{
    return settings != nullptr ? settings->property(PurposeProperty).toInt() : 0;
}

bool PYXSettings::isUserSettings(const QSettings *settings)
{
    const int found = purpose(settings);
    return found == eUserApplicationSettings || found == eUserSharedSettings;
}

bool PYXSettings::isSharedSettings(const QSettings *settings)
{
    const int found = purpose(settings);
    return found == eUserSharedSettings || found == eDefaultSharedSettings;
}

bool PYXSettings::isDefaultSettings(const QSettings *settings)
{
    const int found = purpose(settings);
    return found == eDefaultApplicationSettings || found == eDefaultSharedSettings;
}

bool PYXSettings::isApplicationSettings(const QSettings *settings)
{
    const int found = purpose(settings);
    return found == eUserApplicationSettings || found == eDefaultApplicationSettings;
}

bool PYXSettings::isThisRunOnly(const QSettings *settings)
{
    return settings != nullptr && settings->property(PurposeProperty).toBool();
}

QStringList PYXSettings::allKeys(bool noFallbacks) const
{
    const FallbackPause pause(this, noFallbacks);
    return QSettings::allKeys();
}

QStringList PYXSettings::childGroups(bool noFallbacks) const
{
    const FallbackPause pause(this, noFallbacks);
    return QSettings::childGroups();
}

QStringList PYXSettings::childKeys(bool noFallbacks) const
{
    const FallbackPause pause(this, noFallbacks);
    return QSettings::childKeys();
}

bool PYXSettings::contains(const QString &key, bool noFallbacks) const
{
    const FallbackPause pause(this, noFallbacks);
    return QSettings::contains(key);
}

QVariant PYXSettings::value(const QString &key, bool noFallbacks) const
{
    const FallbackPause pause(this, noFallbacks);
    return QSettings::value(key);
}

QVariant PYXSettings::value(const QString &key, const QVariant &defaultValue) const
{
    return QSettings::value(key, defaultValue);
}

bool PYXSettings::boolValue(const QString &key, bool noFallbacks) const
{
    return qvariant_cast<bool>(value(key, noFallbacks));
}

int PYXSettings::intValue(const QString &key, bool noFallbacks) const
{
    return qvariant_cast<int>(value(key, noFallbacks));
}

uint PYXSettings::uintValue(const QString &key, bool noFallbacks) const
{
    return qvariant_cast<uint>(value(key, noFallbacks));
}

qlonglong PYXSettings::qlonglongValue(const QString &key, bool noFallbacks) const
{
    return qvariant_cast<qlonglong>(value(key, noFallbacks));
}

qulonglong PYXSettings::qulonglongValue(const QString &key, bool noFallbacks) const
{
    return qvariant_cast<qulonglong>(value(key, noFallbacks));
}

double PYXSettings::doubleValue(const QString &key, bool noFallbacks) const
{
    return qvariant_cast<double>(value(key, noFallbacks));
}

QString PYXSettings::stringValue(const QString &key, bool noFallbacks) const
{
    return qvariant_cast<QString>(value(key, noFallbacks));
}

QStringList PYXSettings::stringListValue(const QString &key, bool noFallbacks) const
{
    return qvariant_cast<QStringList>(value(key, noFallbacks));
}

QByteArray PYXSettings::byteArrayValue(const QString &key, bool noFallbacks) const
{
    return qvariant_cast<QByteArray>(value(key, noFallbacks));
}

QDate PYXSettings::dateValue(const QString &key, bool noFallbacks) const
{
    return qvariant_cast<QDate>(value(key, noFallbacks));
}

QTime PYXSettings::timeValue(const QString &key, bool noFallbacks) const
{
    return qvariant_cast<QTime>(value(key, noFallbacks));
}

QDateTime PYXSettings::dateTimeValue(const QString &key, bool noFallbacks) const
{
    return qvariant_cast<QDateTime>(value(key, noFallbacks));
}

QUrl PYXSettings::urlValue(const QString &key, bool noFallbacks) const
{
    return qvariant_cast<QUrl>(value(key, noFallbacks));
}

QLocale PYXSettings::localeValue(const QString &key, bool noFallbacks) const
{
    return qvariant_cast<QLocale>(value(key, noFallbacks));
}

QRegExp PYXSettings::regexpValue(const QString &key, bool noFallbacks) const
{
    return qvariant_cast<QRegExp>(value(key, noFallbacks));
}

QPoint PYXSettings::pointValue(const QString &key, bool noFallbacks) const
{
    return qvariant_cast<QPoint>(value(key, noFallbacks));
}

QPointF PYXSettings::pointFValue(const QString &key, bool noFallbacks) const
{
    return qvariant_cast<QPointF>(value(key, noFallbacks));
}

QSize PYXSettings::sizeValue(const QString &key, bool noFallbacks) const
{
    return qvariant_cast<QSize>(value(key, noFallbacks));
}

QSizeF PYXSettings::sizeFValue(const QString &key, bool noFallbacks) const
{
    return qvariant_cast<QSizeF>(value(key, noFallbacks));
}

QRect PYXSettings::rectValue(const QString &key, bool noFallbacks) const
{
    return qvariant_cast<QRect>(value(key, noFallbacks));
}

QRectF PYXSettings::rectFValue(const QString &key, bool noFallbacks) const
{
    return qvariant_cast<QRectF>(value(key, noFallbacks));
}

QFont PYXSettings::fontValue(const QString &key, bool noFallbacks) const
{
    return qvariant_cast<QFont>(value(key, noFallbacks));
}

QColor PYXSettings::colorValue(const QString &key, bool noFallbacks) const
{
    return qvariant_cast<QColor>(value(key, noFallbacks));
}

QUuid PYXSettings::uuidValue(const QString &key, bool noFallbacks) const
{
    return QUuid(stringValue(key, noFallbacks));
}

Qt::CheckState PYXSettings::checkStateValue(const QString &key, bool noFallbacks) const
{
    bool bKnown = false;
    const QByteArray name = stringValue(key, noFallbacks).toLatin1();
    const int state = QMetaEnum::fromType<Qt::CheckState>().keyToValue(name.constData(), &bKnown);
    return bKnown ? Qt::CheckState(state) : Qt::Unchecked;
}

PYXStatusHash PYXSettings::statusHashValue(const QString &key, bool noFallbacks) const
{
    return qvariant_cast<PYXStatusHash>(value(key, noFallbacks));
}

void PYXSettings::setValue(const QString &key, const QVariant &value)
{
    QSettings::setValue(key, value);
}

void PYXSettings::setValue(const QString &key, int value)
{
    QSettings::setValue(key, QVariant(value));
}

void PYXSettings::setValue(const QString &key, uint value)
{
    QSettings::setValue(key, QVariant(value));
}

void PYXSettings::setValue(const QString &key, qlonglong value)
{
    QSettings::setValue(key, QVariant(value));
}

void PYXSettings::setValue(const QString &key, qulonglong value)
{
    QSettings::setValue(key, QVariant(value));
}

void PYXSettings::setValue(const QString &key, double value)
{
    QSettings::setValue(key, QVariant(value));
}

void PYXSettings::setValue(const QString &key, bool value)
{
    QSettings::setValue(key, QVariant(value));
}

void PYXSettings::setValue(const QString &key, const QString &value)
{
    QSettings::setValue(key, QVariant(value));
}

void PYXSettings::setValue(const QString &key, const QByteArray &value)
{
    QSettings::setValue(key, QVariant(value));
}

void PYXSettings::setValue(const QString &key, const QColor &value)
{
    QSettings::setValue(key, QVariant(value));
}

void PYXSettings::setValue(const QString &key, const QFont &value)
{
    QSettings::setValue(key, QVariant(value));
}

void PYXSettings::setValue(const QString &key, const char *value)
{
    QSettings::setValue(key, QString::fromLatin1(value));
}

void PYXSettings::setValue(const QString &key, Qt::GlobalColor value)
{
    QSettings::setValue(key, QColor(value));
}

void PYXSettings::setValue(const QString &key, const QUuid &value)
{
    QSettings::setValue(key, value.toString().toUpper());
}

void PYXSettings::setValue(const QString &key, Qt::CheckState value)
{
    const char *const name = QMetaEnum::fromType<Qt::CheckState>().valueToKey(value);
    QSettings::setValue(key, QString::fromLatin1(name));
}

void PYXSettings::setValue(const QString &key, const PYXStatusHash &value)
{
    QSettings::setValue(key, QVariant::fromValue(value));
}

void PYXSettings::removeSubTree(const QString &group)
{
    SettingsSubTrees::removeSubTree(*this, group);
}

void PYXSettings::cloneSubTree(const QString &source, const QString &target)
{
    SettingsSubTrees::clone(*this, source, target);
}

QStringList PYXSettings::diffClonedSubTrees(const QString &current, const QString &clone)
{
    return SettingsSubTrees::diff(*this, current, clone);
}

void PYXSettings::cloneUserAndSharedSubTreesForPaths(const QString &source, const QString &target)
{
    SettingsSubTrees::clonePaths(source, target);
}

QStringList PYXSettings::diffUserSubTreesForPaths(const QString &current, const QString &clone)
{
    return SettingsSubTrees::diffUserPaths(current, clone);
}

QStringList PYXSettings::diffAndHandleSharedSubTreesForPaths()
{
    return SettingsSubTrees::diffSharedPaths();
}

bool PYXSettings::diffUserAndSharedSubTreesForPaths_handleShared(const QString &current, const QString &clone,
                                                                 QStringList &userChanges,
                                                                 QStringList &sharedChanges)
{
    return SettingsSubTrees::diffAllPaths(current, clone, userChanges, sharedChanges);
}

} // namespace PYXRuntime
