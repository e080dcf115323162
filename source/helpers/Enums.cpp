// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "Enums.h"

#include "KeyTables.h"
#include "SingletonHolder.h"

#include <QtCore/QMetaType>

#include <algorithm>

namespace PYXRuntime {
namespace {

using Holder = SingletonHolder<Enums>;

} // namespace

Enums::Enums(QObject *parent)
    : QObject(parent)
    , m_tables(std::make_unique<KeyTables>())
{
    qRegisterMetaType<eProxyType>();
    qRegisterMetaType<eProxyVariant>();
    m_tables->insert(QMetaEnum::fromType<eProxyType>());
    m_tables->insert(QMetaEnum::fromType<eProxyVariant>());
}

Enums::~Enums() = default;

Enums *Enums::getInstance()
{
    return Holder::instance([] { return new Enums; });
}

bool Enums::hasInstance()
{
    return Holder::existing() != nullptr;
}

void Enums::makeSureInitialized()
{
    getInstance();
}

void Enums::destroyInstance()
{
    delete Holder::take();
}

void Enums::registerEnumeration(const QString &enumeration, const Keys &keys)
{
    getInstance()->m_tables->insert(enumeration, keys);
}

void Enums::registerEnumeration(const QMetaEnum &enumeration)
{
    getInstance()->m_tables->insert(enumeration);
}

QStringList Enums::enumerations()
{
    return getInstance()->m_tables->types();
}

Enums::Keys Enums::keys(const QString &enumeration)
{
    return getInstance()->m_tables->keys(enumeration);
}

QString Enums::nameOf(const QString &enumeration, qint64 value)
{
    const Keys known = keys(enumeration);
    const auto found =
        std::find_if(known.cbegin(), known.cend(), [value](const auto &key) { return key.second == value; });
    return found != known.cend() ? found->first : QString();
}

qint64 Enums::valueOf(const QString &enumeration, const QString &name, bool *ok)
{
    const Keys known = keys(enumeration);
    const auto found =
        std::find_if(known.cbegin(), known.cend(), [&name](const auto &key) { return key.first == name; });
    if (ok != nullptr)
        *ok = found != known.cend();
    return found != known.cend() ? found->second : 0;
}

} // namespace PYXRuntime
