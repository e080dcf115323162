// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "StreamElementCursor.h"

namespace PYXRuntime {

StreamElementCursor::StreamElementCursor(const QByteArray &xml)
    : m_xml(xml)
{
    // A prefix is part of a key here: it needs no declaration.
    m_xml.setNamespaceProcessing(false);
    m_xml.setEntityExpansionLimit(0);
}

bool StreamElementCursor::enterChild()
{
    while (!m_xml.atEnd()) {
        switch (_advance()) {
        case QXmlStreamReader::StartElement:
            m_attributes = m_xml.attributes();
            return true;
        case QXmlStreamReader::EndElement:
            return false;
        default:
            break;
        }
    }
    return false;
}

QString StreamElementCursor::takeText()
{
    QString text(QLatin1String(""));
    while (!m_xml.atEnd()) {
        switch (_advance()) {
        case QXmlStreamReader::Characters:
        case QXmlStreamReader::EntityReference:
            text += m_xml.text();
            break;
        case QXmlStreamReader::StartElement:
            skip();
            break;
        case QXmlStreamReader::EndElement:
            return text;
        default:
            break;
        }
    }
    return text;
}

void StreamElementCursor::skip()
{
    const int outerLevel = m_level - 1;
    while (!m_xml.atEnd() && m_level > outerLevel)
        _advance();
}

bool StreamElementCursor::finish()
{
    while (!m_xml.atEnd())
        _advance();
    return !m_xml.hasError();
}

QXmlStreamReader::TokenType StreamElementCursor::_advance()
{
    const QXmlStreamReader::TokenType token = m_xml.readNext();
    if (token == QXmlStreamReader::EndElement)
        --m_level;
    if (token == QXmlStreamReader::StartElement && ++m_level > MaximumElementLevels)
        m_xml.raiseError(QStringLiteral("Elements are nested too deeply."));
    if (token == QXmlStreamReader::DTD && m_xml.text().contains(QLatin1Char('[')))
        m_xml.raiseError(QStringLiteral("Declarations are not supported."));
    return m_xml.hasError() ? QXmlStreamReader::Invalid : token;
}

} // namespace PYXRuntime
