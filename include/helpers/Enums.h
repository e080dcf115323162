// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "pyxruntime_export.h"

#include <QtCore/QMetaEnum>
#include <QtCore/QObject>
#include <QtCore/QPair>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVector>

#include <memory>

namespace PYXRuntime {

class KeyTables;

/**
 * The table of enumerations: names to values and back, by the qualified name of the type. Initialising the
 * library creates it with every enumeration of the library; applications add theirs.
 * @code
 * Enums::nameOf("PYXRuntime::PYXIFileList::eFileType", PYXIFileList::ekFT_AUDIO); // "ekFT_AUDIO"
 * @endcode
 * The enumerations that are declared here are stored by name: a renamed enumerator would no longer be read.
 * EnumHelpers converts them also without the table.
 *
 * The table may be read in any thread as long as it exists; all else is for the main thread.
 */
class PYXRUNTIME_EXPORT Enums final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(Enums)
public:
    enum eProxyType : int {
        ekProxy_NoProxy = 0,
        ekProxy_UseSystemSettings = 1,
        ekProxy_ManualConfiguration = 2,
        ekProxy_Default = ekProxy_NoProxy
    };
    Q_ENUM(eProxyType)

    enum eProxyVariant : int {
        ekProxyVariant_HTTP = 0,
        ekProxyVariant_SOCKS5 = 1,
        ekProxyVariant_Default = ekProxyVariant_HTTP
    };
    Q_ENUM(eProxyVariant)

    /** The enumerators in the order of their declaration. */
    using Keys = QVector<QPair<QString, qint64>>;

    ~Enums() override;

    static Enums *getInstance();
    static bool hasInstance();
    static void makeSureInitialized();
    static void destroyInstance();

    /** Adds an enumeration, or replaces it. */
    static void registerEnumeration(const QString &enumeration, const Keys &keys);
    static void registerEnumeration(const QMetaEnum &enumeration);
    /** For a type with Q_ENUM or Q_ENUM_NS. */
    template <typename Enum>
    static void registerEnumeration()
    {
        registerEnumeration(QMetaEnum::fromType<Enum>());
    }

    /** The qualified names of all types, sorted. */
    static QStringList enumerations();
    /** Empty for an unknown type. */
    static Keys keys(const QString &enumeration);
    /** The first declared name of a value; empty for an unknown type or value. */
    static QString nameOf(const QString &enumeration, qint64 value);
    /** 0, with *ok false, for an unknown type or name. */
    static qint64 valueOf(const QString &enumeration, const QString &name, bool *ok = nullptr);

private:
    explicit Enums(QObject *parent = nullptr);

    const std::unique_ptr<KeyTables> m_tables;
};

} // namespace PYXRuntime
