// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "Enums.h"

#include "SingletonHolder.h"

#include <QtCore/QMetaType>

namespace PYXRuntime {
namespace {

using Holder = SingletonHolder<Enums>;

} // namespace

Enums::Enums(QObject *parent)
    : QObject(parent)
{
    qRegisterMetaType<eProxyType>();
    qRegisterMetaType<eProxyVariant>();
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

} // namespace PYXRuntime
