// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "EnumHelpers.h"

#include <QtCore/QMetaEnum>

namespace PYXRuntime {
namespace {

template <typename Enum>
QString nameOf(Enum value)
{
    return QString::fromLatin1(QMetaEnum::fromType<Enum>().valueToKey(int(value)));
}

template <typename Enum>
Enum valueOf(const QString &name)
{
    bool bKnown = false;
    const int value = QMetaEnum::fromType<Enum>().keyToValue(name.toUtf8().constData(), &bKnown);
    return bKnown ? Enum(value) : Enum(0);
}

} // namespace

QString EnumHelpers::proxyType(Enums::eProxyType type)
{
    return nameOf(type);
}

QString EnumHelpers::proxyVariant(Enums::eProxyVariant variant)
{
    return nameOf(variant);
}

Enums::eProxyType EnumHelpers::proxyType(const QString &name)
{
    return valueOf<Enums::eProxyType>(name);
}

Enums::eProxyVariant EnumHelpers::proxyVariant(const QString &name)
{
    return valueOf<Enums::eProxyVariant>(name);
}

} // namespace PYXRuntime
