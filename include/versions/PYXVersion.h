// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "pyxruntime_export.h"

#include <QtCore/QByteArray>
#include <QtCore/QMetaType>
#include <QtCore/QString>

// Macros of some systems' headers.
#undef major
#undef minor

namespace PYXRuntime {

/**
 * A version of four numbers packed into 64 bits: major in the highest 16, then minor, build and private.
 *
 * A text is searched for three numbers, "4.2_7" or "4.2.7", and an optional fourth, "4.2.7.1"; what is before
 * and after does not matter. A number above 65535 reads as 0. Comparison is by the packed value alone.
 * A value: different objects may be used in different threads.
 */
class PYXRUNTIME_EXPORT PYXVersion final
{
public:
    /** Not valid; 0. */
    constexpr PYXVersion() = default;
    /** Explicit, as versions also convert to the packed value. */
    explicit constexpr PYXVersion(quint64 value)
        : m_value(value)
        , m_bValid(true)
    {}
    constexpr PYXVersion(quint16 major, quint16 minor, quint16 build, quint16 priv)
        : m_value(_packed(major, minor, build, priv))
        , m_bValid(true)
    {}
    explicit PYXVersion(const QString &text) { setVersion(text); }
    static PYXVersion fromString(const QString &text) { return PYXVersion(text); }

    /**
     * Without a version in the text the result is not valid, and 0; maybeDebug() then stays as it was. Else
     * it tells whether the text contains "(Debug)".
     */
    void setVersion(const QString &text);
    /** The result is no debug version. */
    void setVersion(quint16 major, quint16 minor, quint16 build, quint16 priv);
    /** To a valid 00.00_00; maybeDebug() stays as it was. */
    void clear();

    constexpr bool isValid() const { return m_bValid; }
    constexpr bool maybeDebug() const { return m_bMaybeDebug; }
    constexpr quint16 major() const { return quint16(m_value >> 48); }
    constexpr quint16 minor() const { return quint16(m_value >> 32); }
    constexpr quint16 build() const { return quint16(m_value >> 16); }
    constexpr quint16 priv() const { return quint16(m_value); }
    constexpr quint32 majorMinor() const { return quint32(m_value >> 32); }
    constexpr quint32 buildPriv() const { return quint32(m_value); }
    /** The packed value. */
    constexpr operator quint64() const { return m_value; }
    void components(quint16 &major, quint16 &minor, quint16 &build, quint16 &priv) const;
    /** Null pointers are skipped. */
    void components(quint16 *major, quint16 *minor, quint16 *build, quint16 *priv) const;

    QString toString() const;        ///< "04.02_07"
    QString toFullString() const;    ///< "04.02_07.01"
    QString toDotString() const;     ///< "04.02.07"
    QString toFullDotString() const; ///< "04.02.07.01"
    QByteArray toByteArray() const;
    QByteArray toFullByteArray() const;
    QByteArray toDotByteArray() const;
    QByteArray toFullDotByteArray() const;

    friend constexpr bool operator==(const PYXVersion &a, const PYXVersion &b)
    {
        return a.m_value == b.m_value;
    }
    friend constexpr bool operator!=(const PYXVersion &a, const PYXVersion &b)
    {
        return a.m_value != b.m_value;
    }
    friend constexpr bool operator<(const PYXVersion &a, const PYXVersion &b)
    {
        return a.m_value < b.m_value;
    }
    friend constexpr bool operator<=(const PYXVersion &a, const PYXVersion &b)
    {
        return a.m_value <= b.m_value;
    }
    friend constexpr bool operator>(const PYXVersion &a, const PYXVersion &b)
    {
        return a.m_value > b.m_value;
    }
    friend constexpr bool operator>=(const PYXVersion &a, const PYXVersion &b)
    {
        return a.m_value >= b.m_value;
    }

private:
    static constexpr quint64 _packed(quint16 major, quint16 minor, quint16 build, quint16 priv)
    {
        return (quint64(major) << 48) | (quint64(minor) << 32) | (quint64(build) << 16) | priv;
    }

    quint64 m_value = 0;
    bool m_bValid = false;
    bool m_bMaybeDebug = false;
};

} // namespace PYXRuntime

Q_DECLARE_METATYPE(PYXRuntime::PYXVersion)
