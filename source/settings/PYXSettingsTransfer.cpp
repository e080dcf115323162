// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXSettingsTransfer.h"

#include "DataMutex.h"
#include "PYXSettings.h"
#include "SecretFinder.h"
#include "SettingsSubTrees.h"
#include "XmlSettingsReader.h"
#include "XmlSettingsWriter.h"

#include <QtCore/QFile>
#include <QtCore/QSaveFile>

#include <algorithm>
#include <mutex>

namespace PYXRuntime {
namespace {

using Result = PYXSettingsTransfer::struResult;
using Locker = std::lock_guard<DataMutex>;

struct struSecretKeys
{
    DataMutex mutex;
    QStringList keys;
};

struSecretKeys &secretKeys()
{
    static auto *const data = new struSecretKeys;
    return *data;
}

bool isAtOrBelow(const QString &key, const QString &group)
{
    return group.isEmpty() || key == group ||
           (key.startsWith(group) && key.at(group.size()) == QLatin1Char('/'));
}

bool isRegisteredSecret(const QString &key)
{
    const Locker locker(secretKeys().mutex);
    const QStringList &keys = secretKeys().keys;
    return std::any_of(keys.cbegin(), keys.cend(),
                       [&key](const QString &secret) { return isAtOrBelow(key, secret); });
}

/** As QSettings has keys: no separator at either end, one between segments. */
QString normalisedKey(const QString &key)
{
    return key.split(QLatin1Char('/'), Qt::SkipEmptyParts).join(QLatin1Char('/'));
}

/** Drops from a map what is not to be taken over; @p prefix makes its keys whole. */
void takeOut(QSettings::SettingsMap &map, const QString &prefix, const QString &group,
             PYXSettingsTransfer::eSecrets secrets, Result &result)
{
    for (auto entry = map.begin(); entry != map.end();) {
        const bool bOther = !isAtOrBelow(entry.key(), group);
        const bool bLeftOut = !bOther && secrets == PYXSettingsTransfer::ekSecrets_LeaveOut &&
                              PYXSettingsTransfer::isSecret(prefix + entry.key(), entry.value());
        if (bLeftOut)
            result.leftOut += entry.key();
        if (bOther || bLeftOut)
            entry = map.erase(entry);
        else
            ++entry;
    }
    result.entries = map.size();
}

QString prefixOf(const QSettings &store)
{
    return store.group().isEmpty() ? QString() : store.group() + QLatin1Char('/');
}

} // namespace

PYXSettingsTransfer::struResult PYXSettingsTransfer::exportTo(const QString &fileName, PYXSettings &store,
                                                              const QString &group, eSecrets secrets)
{
    Result result;
    QSettings::SettingsMap map;
    const QStringList keys = store.allKeys(true);
    for (const QString &key : keys)
        map.insert(key, store.value(key, true));
    takeOut(map, prefixOf(store), normalisedKey(SettingsSubTrees::normalised(group)), secrets, result);
    QSaveFile file(fileName);
    result.bOk = file.open(QIODevice::WriteOnly);
    if (result.bOk && secrets == ekSecrets_Include)
        result.bOk = file.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    result.bOk = result.bOk && XmlSettingsWriter::write(file, map) && file.commit();
    if (!result.bOk)
        result.error = tr("The settings cannot be written to \"%1\": %2").arg(fileName, file.errorString());
    return result;
}

PYXSettingsTransfer::struResult PYXSettingsTransfer::importFrom(const QString &fileName, PYXSettings &store,
                                                                const QString &group, eSecrets secrets)
{
    Result result;
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        result.error = tr("The file \"%1\" cannot be opened: %2").arg(fileName, file.errorString());
        return result;
    }
    QSettings::SettingsMap map;
    if (!XmlSettingsReader::read(file, map)) {
        result.error = tr("\"%1\" is no settings file, or is damaged.").arg(fileName);
        return result;
    }
    takeOut(map, prefixOf(store), normalisedKey(SettingsSubTrees::normalised(group)), secrets, result);
    for (auto entry = map.cbegin(); entry != map.cend(); ++entry)
        store.setValue(entry.key(), entry.value());
    const QSettings::Status before = store.status();
    store.sync();
    // A status stays: an old one says nothing about this attempt.
    result.bOk =
        store.status() != QSettings::AccessError || (before == QSettings::AccessError && store.isWritable());
    if (!result.bOk)
        result.error = tr("The settings file \"%1\" cannot be written.").arg(store.fileName());
    return result;
}

void PYXSettingsTransfer::registerSecret(const QString &key)
{
    const QString secret = normalisedKey(key);
    const Locker locker(secretKeys().mutex);
    if (!secret.isEmpty() && !secretKeys().keys.contains(secret))
        secretKeys().keys += secret;
}

bool PYXSettingsTransfer::isSecret(const QString &key, const QVariant &value)
{
    return SecretFinder::isSecretName(key) || isRegisteredSecret(normalisedKey(key)) ||
           SecretFinder::holdsSecret(value);
}

} // namespace PYXRuntime
