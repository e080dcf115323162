// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "Flags.h"

#include "KeyTables.h"
#include "SingletonHolder.h"

#include <algorithm>
#include <optional>

namespace PYXRuntime {
namespace {

using Holder = SingletonHolder<Flags>;

const QLatin1Char Separator('|');
const QLatin1String HexPrefix("0x");
const QLatin1String Nothing("0");

std::optional<quint64> bitsOf(const Enums::Keys &keys, const QString &name)
{
    const auto found =
        std::find_if(keys.cbegin(), keys.cend(), [&name](const auto &key) { return key.first == name; });
    if (found != keys.cend())
        return quint64(found->second);
    bool bNumber = name == Nothing;
    const quint64 bits =
        name.startsWith(HexPrefix) ? name.mid(HexPrefix.size()).toULongLong(&bNumber, 16) : 0;
    return bNumber ? std::optional<quint64>(bits) : std::nullopt;
}

} // namespace

Flags::Flags(QObject *parent)
    : QObject(parent)
    , m_tables(std::make_unique<KeyTables>())
{}

Flags::~Flags() = default;

Flags *Flags::getInstance()
{
    return Holder::instance([] { return new Flags; });
}

bool Flags::hasInstance()
{
    return Holder::existing() != nullptr;
}

void Flags::makeSureInitialized()
{
    getInstance();
}

void Flags::destroyInstance()
{
    delete Holder::take();
}

void Flags::registerFlags(const QString &flags, const Enums::Keys &keys)
{
    getInstance()->m_tables->insert(flags, keys);
}

void Flags::registerFlags(const QMetaEnum &flags)
{
    getInstance()->m_tables->insert(flags);
}

QStringList Flags::flagTypes()
{
    return getInstance()->m_tables->types();
}

Enums::Keys Flags::keys(const QString &flags)
{
    return getInstance()->m_tables->keys(flags);
}

QString Flags::namesOf(const QString &flags, quint64 value)
{
    QStringList names;
    quint64 rest = value;
    const Enums::Keys known = keys(flags);
    for (const auto &[name, number] : known) {
        const quint64 bits = quint64(number);
        // A name for several bits is taken where all are set, and one of them is not told yet.
        if (value == 0 ? bits == 0 : (value & bits) == bits && (rest & bits) != 0) {
            names += name;
            rest &= ~bits;
            if (value == 0)
                break;
        }
    }
    if (rest != 0)
        names += HexPrefix + QString::number(rest, 16);
    return names.isEmpty() ? QString(Nothing) : names.join(Separator);
}

quint64 Flags::valueOf(const QString &flags, const QString &names, bool *ok)
{
    const Enums::Keys known = keys(flags);
    quint64 value = 0;
    bool bKnown = !known.isEmpty();
    const QStringList parts = names.split(Separator);
    for (const QString &part : parts) {
        const std::optional<quint64> bits = bitsOf(known, part.trimmed());
        bKnown = bKnown && bits.has_value();
        value |= bits.value_or(0);
    }
    if (ok != nullptr)
        *ok = bKnown;
    return bKnown ? value : 0;
}

} // namespace PYXRuntime
