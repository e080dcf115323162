// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXStringPool.h"

#include "IStringPoolPopulator.h"
#include "PYXBrokerInterface.h"
#include "PYXTraceWrapper.h"
#include "SharedTexts.h"

#include <QtCore/QHash>
#include <QtCore/QPointer>
#include <QtCore/QVector>

#include <mutex>
#include <shared_mutex>

namespace PYXRuntime {
namespace {

constexpr const char *TraceFile = "source\\PYXStringPool";

struct struPool
{
    std::shared_mutex lock; ///< of the texts
    QHash<QString, QString> texts;
    QVector<QPointer<QObject>> populators;
};

struPool &pool()
{
    static auto *const pool = new struPool;
    return *pool;
}

bool isFilled()
{
    const std::shared_lock<std::shared_mutex> locker(pool().lock);
    return !pool().texts.isEmpty();
}

void refill()
{
    if (isFilled())
        PYXStringPool::populate();
}

} // namespace

void PYXStringPool::populate()
{
    QHash<QString, QString> texts;
    addSharedTexts(texts);
    pool().populators.removeAll(QPointer<QObject>());
    // A copy: a populator may add or remove others.
    const QVector<QPointer<QObject>> populators = pool().populators;
    for (const QPointer<QObject> &populator : populators) {
        if (auto *const interface = pyxInterfaceCast<IStringPoolPopulator>(populator.data()))
            interface->populateStringPool(texts);
    }
    const std::unique_lock<std::shared_mutex> locker(pool().lock);
    pool().texts.swap(texts);
}

QString PYXStringPool::text(const QString &key)
{
    const std::shared_lock<std::shared_mutex> locker(pool().lock);
    return pool().texts.value(key);
}

bool PYXStringPool::contains(const QString &key)
{
    const std::shared_lock<std::shared_mutex> locker(pool().lock);
    return pool().texts.contains(key);
}

bool PYXStringPool::addPopulator(QObject *populator)
{
    if (pyxInterfaceCast<IStringPoolPopulator>(populator) == nullptr) {
        PYXTraceWrapper::staticTraceWarn(
            QStringLiteral(
                "An object that does not implement IStringPoolPopulator cannot fill the string pool."),
            TraceFile, __LINE__);
        return false;
    }
    if (!pool().populators.contains(populator)) {
        pool().populators.append(populator);
        refill();
    }
    return true;
}

void PYXStringPool::removePopulator(QObject *populator)
{
    if (pool().populators.removeAll(populator) > 0)
        refill();
}

} // namespace PYXRuntime
