// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "XmlElementCursor.h"

#include <QtCore/QByteArray>
#include <QtCore/QXmlStreamReader>

namespace PYXRuntime {

/**
 * Walks through the bytes of a document. Nesting beyond the limit and declarations of entities are errors
 * of the document. From an error on there are no further children.
 */
class StreamElementCursor final : public XmlElementCursor
{
public:
    explicit StreamElementCursor(const QByteArray &xml);

    bool enterChild() override;
    QString tag() const override { return m_xml.qualifiedName().toString(); }
    bool hasAttribute(QLatin1String name) const override { return m_attributes.hasAttribute(name); }
    QString attribute(QLatin1String name) const override { return m_attributes.value(name).toString(); }
    QString takeText() override;
    void skip() override;

    /** Reads to the end of the document. @return whether all of it is well-formed. */
    bool finish();
    const QXmlStreamReader &reader() const { return m_xml; }

private:
    QXmlStreamReader::TokenType _advance();

    QXmlStreamReader m_xml;
    QXmlStreamAttributes m_attributes;
    int m_level = 0;
};

} // namespace PYXRuntime
