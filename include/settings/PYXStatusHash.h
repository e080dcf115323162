// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "pyxruntime_export.h"

#include <QtCore/QByteArray>
#include <QtCore/QDataStream>
#include <QtCore/QHash>
#include <QtCore/QMetaType>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVariant>

class QDomElement;
class QXmlStreamWriter;

namespace PYXRuntime {

/**
 * A small typed key/value store in which a part of the system keeps its state: values under text keys,
 * hashes in hashes, saved as a compact binary form or as readable XML.
 *
 * The magic number tells what a hash holds. A hash that was built with one refuses data with another; any
 * other hash takes over the number of the data it restores.
 *
 * As the type "PYXRuntime::PYXStatusHash" it is stored in settings and compares by content within a
 * QVariant. Hashes and lists may nest in each other up to 99 levels; data that nests deeper, and data that
 * is damaged in whatever way, is refused before it is loaded. A value that could not be restored (of a
 * type that has no stream operators, or nested too deeply) is left out of both forms, with a warning trace.
 *
 * Copies are cheap. Different objects may be used in different threads; serialize() changes the cache of
 * its object.
 */
class PYXRUNTIME_EXPORT PYXStatusHash
{
public:
    static constexpr QDataStream::Version DefaultVersion = QDataStream::Qt_4_6;

    /** An empty hash that accepts any magic number. */
    PYXStatusHash();
    explicit PYXStatusHash(QDataStream::Version version);
    /** An empty hash that only restores data with this magic number. */
    explicit PYXStatusHash(quint32 magicNumber, QDataStream::Version version = DefaultVersion);
    PYXStatusHash(const PYXStatusHash &) = default;
    PYXStatusHash(PYXStatusHash &&) = default;
    PYXStatusHash &operator=(const PYXStatusHash &) = default;
    PYXStatusHash &operator=(PYXStatusHash &&) = default;
    virtual ~PYXStatusHash();

    void insert(const QString &key, const QVariant &value);
    void insert(const QString &key, const PYXStatusHash &value);
    void remove(const QString &key);
    void clear();

    bool contains(const QString &key) const;
    bool isEmpty() const;
    /** In no particular order. */
    QStringList keys() const;
    /** @return an invalid QVariant for a missing key. The reference is good until the hash is changed. */
    const QVariant &value(const QString &key) const;
    /** @return false, with @p out untouched, unless the value is a nested hash. */
    bool value(const QString &key, PYXStatusHash &out) const;
    /** Compares the entries only, each as QVariant compares: a number equals its text. */
    bool hasSameContentsAs(const PYXStatusHash &other) const;

    quint32 magicNumber() const { return m_magicNumber; }
    /** Keeps the number but accepts data with any other from now on. */
    void unsetMagicNumber() { m_bMagicFixed = false; }
    /**
     * Of the binary form. With those of Qt 4.2 to 4.5, it holds types of QtCore only; with those before
     * Qt 5.2, as in XML, date-times keep their clock but not their offset or zone.
     */
    QDataStream::Version datastreamVersion() const { return m_streamVersion; }

    /** The binary form; an empty array if the hash was never changed. */
    QByteArray serialize() const;
    /**
     * Replaces the entries by those of a binary form; none are left where that fails.
     * @return true for empty @p bytes; false without a message if the magic number differs, and false with
     *         a warning of the runtime scope "PYXRuntime" for a format version that is not known.
     */
    bool restoreFrom(const QByteArray &bytes);
    static PYXStatusHash fromSerialized(const QByteArray &bytes);

    /** One element "StatusHash", indented, in UTF-8 and without an XML declaration. */
    QByteArray toXml() const;
    void toXmlStream(QXmlStreamWriter &writer) const;
    /**
     * Replaces the entries by those of a document; they stay as they are where that fails.
     * @return true, with nothing changed, for empty @p xml; false without a message if the magic number
     *         differs, and false with an error trace for a document that cannot be read.
     */
    bool restoreFromXml(const QByteArray &xml);
    /** The same from the "StatusHash" element of a caller's document; false for another element. */
    bool restoreFromXml(QDomElement &element);
    static PYXStatusHash fromXml(const QByteArray &xml);

    /** Makes the type known to QMetaType; the first constructor and the start of the library do. */
    static void registerMetaType();

private:
    friend class StatusHashXmlReader;
    friend class StatusHashXmlWriter;
    friend PYXRUNTIME_EXPORT QDataStream &operator<<(QDataStream &stream, const PYXStatusHash &hash);
    friend PYXRUNTIME_EXPORT QDataStream &operator>>(QDataStream &stream, PYXStatusHash &hash);

    bool _accepts(quint32 magicNumber) const;

    mutable bool m_bDirty = false;
    quint32 m_magicNumber = 0;
    bool m_bMagicFixed = false;
    QDataStream::Version m_streamVersion = DefaultVersion;
    QVariantHash m_entries;
    mutable QByteArray m_cache;
};

/** Equal magic numbers and equal entries. */
PYXRUNTIME_EXPORT bool operator==(const PYXStatusHash &left, const PYXStatusHash &right);
inline bool operator!=(const PYXStatusHash &left, const PYXStatusHash &right)
{
    return !(left == right);
}

/** The binary form at the version of the stream, written even where the hash was never changed. */
PYXRUNTIME_EXPORT QDataStream &operator<<(QDataStream &stream, const PYXStatusHash &hash);
/** Data that is refused leaves the hash empty and makes the status of the stream ReadCorruptData. */
PYXRUNTIME_EXPORT QDataStream &operator>>(QDataStream &stream, PYXStatusHash &hash);

} // namespace PYXRuntime

Q_DECLARE_METATYPE(PYXRuntime::PYXStatusHash)
