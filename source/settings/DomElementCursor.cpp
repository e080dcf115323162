// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "DomElementCursor.h"

#include <QtXml/QDomText>

namespace PYXRuntime {

bool DomElementCursor::enterChild()
{
    const QDomElement child =
        m_previousChild.isNull() ? m_element.firstChildElement() : m_previousChild.nextSiblingElement();
    if (child.isNull()) {
        skip();
        return false;
    }
    m_element = child;
    m_previousChild = QDomElement();
    return true;
}

QString DomElementCursor::takeText()
{
    QString text(QLatin1String("")); // QDomElement::text() goes as deep as the document does
    for (QDomNode node = m_element.firstChild(); !node.isNull(); node = node.nextSibling()) {
        if (node.isText() || node.isCDATASection())
            text += node.toText().data();
    }
    skip();
    return text;
}

void DomElementCursor::skip()
{
    m_previousChild = m_element;
    m_element = m_element.parentNode().toElement();
}

} // namespace PYXRuntime
