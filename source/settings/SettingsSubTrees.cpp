// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "SettingsSubTrees.h"

#include "PYXBroker.h"
#include "PYXIFileDialogPlaces.h"
#include "PYXSettings.h"
#include "PYXTraceWrapper.h"
#include "SharedPathSettings.h"

namespace PYXRuntime::SettingsSubTrees {
namespace {

constexpr char SourceTag[] = "source\\PYXSettings";
const QLatin1String SavedPathsGroup("SavedPaths");
const QLatin1String SharedPathsChanged("%1 shared paths entries changed");

// Runs while the library loads.
[[maybe_unused]] const bool s_bDeclared = [] {
    PYXBroker::getInstance()->declareInterface(PYXBrokerInterface<PYXIFileDialogPlaces>::id(),
                                               QStringLiteral("PYXRuntime::PYXIFileDialogPlaces"));
    return true;
}();

QString below(const QString &group, const QString &name)
{
    return group + QLatin1Char('/') + name;
}

struct struChildren
{
    QStringList keys;
    QStringList groups;
};

struChildren childrenOf(PYXSettings &settings, const QString &group)
{
    settings.beginGroup(group);
    struChildren children = {settings.childKeys(false), settings.childGroups(false)};
    settings.endGroup();
    return children;
}

void traceDebug(const QString &text, int line)
{
    PYXTraceWrapper::staticTraceDebug(text, SourceTag, ushort(line));
}

void moveFileDialogs(const QString &key, const QString &directory)
{
    for (const auto &path : {SharedPathSettings::Collections, SharedPathSettings::DetectorProfiles,
                             SharedPathSettings::Scripts}) {
        if (key != path.key)
            continue;
        if (auto *const places = PYXBroker::getInstance()->topObject<PYXIFileDialogPlaces>())
            places->resetLastFileOrDir(path.specialDir, directory);
        return;
    }
    traceDebug(QStringLiteral("MainWindow::sl_onSettingsApplied: unhandeled shared path"), __LINE__);
}

} // namespace

QString normalised(const QString &group)
{
    return group.endsWith(QLatin1Char('/')) || group.endsWith(QLatin1Char('\\')) ? group.chopped(1) : group;
}

void removeSubTree(PYXSettings &settings, const QString &group)
{
    settings.remove(normalised(group));
}

void clone(PYXSettings &settings, const QString &source, const QString &target)
{
    const QString from = normalised(source);
    const QString to = normalised(target);
    const struChildren children = childrenOf(settings, from);
    for (const QString &key : children.keys)
        settings.setValue(below(to, key), settings.value(below(from, key), false));
    for (const QString &group : children.groups)
        clone(settings, below(from, group), below(to, group));
}

QStringList diff(PYXSettings &settings, const QString &current, const QString &clone)
{
    QStringList changes;
    const QString now = normalised(current);
    const QString then = normalised(clone);
    const struChildren children = childrenOf(settings, now);
    for (const QString &key : children.keys) {
        const QString nowKey = below(now, key);
        const QString thenKey = below(then, key);
        if (!settings.contains(thenKey) || settings.value(nowKey) != settings.value(thenKey))
            changes += nowKey;
    }
    for (const QString &group : children.groups)
        changes += diff(settings, below(now, group), below(then, group));
    return changes;
}

void clonePaths(const QString &source, const QString &target)
{
    PYXSettings user(PYXSettings::eUserApplicationSettings);
    PYXSettings shared(PYXSettings::eUserSharedSettings);
    removeSubTree(user, target);
    clone(user, source, target);
    removeSubTree(shared, SavedPathsGroup);
    clone(shared, SharedPathSettings::Group, SavedPathsGroup);
}

QStringList diffUserPaths(const QString &current, const QString &clone)
{
    PYXSettings user(PYXSettings::eUserApplicationSettings);
    return diff(user, current, clone);
}

QStringList diffSharedPaths()
{
    PYXSettings shared(PYXSettings::eUserSharedSettings);
    QStringList changes = diff(shared, SharedPathSettings::Group, SavedPathsGroup);
    if (changes.isEmpty())
        return changes;
    traceDebug(QString(SharedPathsChanged).arg(changes.size()), __LINE__);
    for (const QString &key : qAsConst(changes)) {
        const QString directory = shared.stringValue(key);
        traceDebug(QStringLiteral("shared path [%1] changed: %2").arg(key, directory), __LINE__);
        moveFileDialogs(key, directory);
    }
    return changes;
}

bool diffAllPaths(const QString &current, const QString &clone, QStringList &userChanges,
                  QStringList &sharedChanges)
{
    userChanges = diffUserPaths(current, clone);
    if (!userChanges.isEmpty())
        traceDebug(QStringLiteral("%1 user paths entries changed").arg(userChanges.size()), __LINE__);
    sharedChanges = diffSharedPaths();
    if (!sharedChanges.isEmpty())
        traceDebug(QString(SharedPathsChanged).arg(sharedChanges.size()), __LINE__);
    const bool bChanged = !userChanges.isEmpty() || !sharedChanges.isEmpty();
    if (!bChanged)
        traceDebug(QStringLiteral("no paths entries changed"), __LINE__);
    return bChanged;
}

} // namespace PYXRuntime::SettingsSubTrees
