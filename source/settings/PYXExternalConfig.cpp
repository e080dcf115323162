// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXExternalConfig.h"

#include "DataMutex.h"
#include "PYXMessageOutput.h"

#include <QtCore/QPointer>
#include <QtCore/QThread>

#include <mutex>

namespace PYXRuntime {
namespace {

constexpr char WrongThread[] = "PYXRuntime::PYXExternalConfig::destroyInstance: MUST be called in the same "
                               "thread that called the first getInstance";

using Locker = std::lock_guard<DataMutex>;

struct struSingleton
{
    DataMutex mutex;
    QPointer<PYXExternalConfig> instance;
};

struSingleton &singleton()
{
    static auto *const data = new struSingleton;
    return *data;
}

} // namespace

PYXExternalConfig::PYXExternalConfig(QObject *parent)
    : QObject(parent)
{}

PYXExternalConfig::~PYXExternalConfig() = default;

PYXExternalConfig *PYXExternalConfig::getInstance()
{
    const Locker locker(singleton().mutex);
    if (singleton().instance.isNull())
        singleton().instance = new PYXExternalConfig;
    return singleton().instance;
}

PYXExternalConfig *PYXExternalConfig::hasInstance()
{
    const Locker locker(singleton().mutex);
    return singleton().instance;
}

void PYXExternalConfig::destroyInstance()
{
    PYXExternalConfig *instance = nullptr;
    {
        const Locker locker(singleton().mutex);
        instance = singleton().instance;
        singleton().instance.clear();
    }
    if (instance == nullptr)
        return;
    if (instance->thread() != QThread::currentThread())
        pyx_message_output(WrongThread);
    // Not under the mutex: who hears of the destruction may ask for the instance.
    delete instance;
}

void PYXExternalConfig::setValue(const QString &key, const QVariant &value)
{
    m_values.insert(key, value);
}

QVariant PYXExternalConfig::value(const QString &key, const QVariant &defaultValue) const
{
    return m_values.value(key, defaultValue);
}

bool PYXExternalConfig::contains(const QString &key) const
{
    return m_values.contains(key);
}

void PYXExternalConfig::remove(const QString &key)
{
    m_values.remove(key);
}

void PYXExternalConfig::clear()
{
    m_values.clear();
}

QStringList PYXExternalConfig::allKeys() const
{
    return m_values.keys();
}

} // namespace PYXRuntime
