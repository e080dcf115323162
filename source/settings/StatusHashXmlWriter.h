// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QVariant>

class QXmlStreamWriter;

namespace PYXRuntime {

class PYXStatusHash;

/** Writes the XML form of status hashes. What could not be read back is traced and left out. */
class StatusHashXmlWriter final
{
public:
    explicit StatusHashXmlWriter(QXmlStreamWriter &xml)
        : m_xml(xml)
    {}

    /** Writes one element "StatusHash". */
    void write(const PYXStatusHash &hash);

private:
    void _writeEntries(const QVariantHash &entries);
    void _writeEntry(const QString &key, const QVariant &value);
    void _startEntry(const QString &key, QLatin1String type);

    QXmlStreamWriter &m_xml;
    int m_level = 0;
};

} // namespace PYXRuntime
