// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QDataStream>
#include <QtCore/QString>
#include <QtCore/QVariant>

namespace PYXRuntime {

class PYXStatusHash;
class XmlElementCursor;

/** Reads the XML form of status hashes. */
class StatusHashXmlReader final
{
public:
    static constexpr QLatin1String RootTag = QLatin1String("StatusHash");
    /** Deepest nesting of hashes, the outermost one counted. */
    static constexpr int MaximumLevels = 99;

    explicit StatusHashXmlReader(XmlElementCursor &cursor)
        : m_cursor(cursor)
    {}

    /**
     * Reads the "StatusHash" element in which the cursor stands.
     * @return false, with @p hash untouched, for another magic number or an entry that cannot be read.
     */
    bool read(PYXStatusHash &hash);

    /** What could not be read; empty where nothing is to be reported. */
    const QString &problem() const { return m_problem; }

private:
    bool _readMagicNumber(const PYXStatusHash &hash, quint32 &magicNumber);
    bool _readEntries(QVariantHash &entries);
    bool _readEntry(QVariantHash &entries);
    bool _readValue(const QString &type, QVariant &value, bool &bKnown);
    bool _readHash(QVariant &value);
    bool _readStatusHash(QVariant &value);
    bool _report(const QString &problem);

    XmlElementCursor &m_cursor;
    QDataStream::Version m_version = QDataStream::Qt_4_6;
    QString m_problem;
    int m_level = 0;
};

} // namespace PYXRuntime
