// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "Enums.h"
#include "pyxruntime_export.h"

namespace PYXRuntime {

/**
 * The table of flag types, beside Enums: a value of several bits to the names of the flags and back.
 * @code
 * // "ekInitialize_NoFontSubstitution|ekInitialize_CondensedFont"
 * Flags::namesOf("PYXRuntime::ePYXInitializeFlags", 0x6);
 * @endcode
 * Initialising the library creates it with every flag type of the library. Threads as with Enums.
 */
class PYXRUNTIME_EXPORT Flags final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(Flags)
public:
    ~Flags() override;

    static Flags *getInstance();
    static bool hasInstance();
    static void makeSureInitialized();
    static void destroyInstance();

    /** Adds a flag type, or replaces it. */
    static void registerFlags(const QString &flags, const Enums::Keys &keys);
    static void registerFlags(const QMetaEnum &flags);
    /** For a type with Q_FLAG or Q_FLAG_NS, given as the type of the set. */
    template <typename FlagSet>
    static void registerFlags()
    {
        registerFlags(QMetaEnum::fromType<FlagSet>());
    }

    /** The qualified names of all types, sorted. */
    static QStringList flagTypes();
    /** Empty for an unknown type. */
    static Enums::Keys keys(const QString &flags);
    /**
     * The names of the set flags with "|" between them, in the order of their declaration; bits without a
     * name in one hexadecimal number ("0x40"). Zero is its own name, or "0" where it has none.
     */
    static QString namesOf(const QString &flags, quint64 value);
    /** Reads what namesOf() gives. 0, with *ok false, for an unknown type or name. */
    static quint64 valueOf(const QString &flags, const QString &names, bool *ok = nullptr);

private:
    explicit Flags(QObject *parent = nullptr);

    const std::unique_ptr<KeyTables> m_tables;
};

} // namespace PYXRuntime
