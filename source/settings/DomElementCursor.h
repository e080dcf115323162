// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "XmlElementCursor.h"

#include <QtXml/QDomElement>

namespace PYXRuntime {

/** Walks through an element of a document in memory. */
class DomElementCursor final : public XmlElementCursor
{
public:
    /** The cursor stands in @p element. */
    explicit DomElementCursor(const QDomElement &element)
        : m_element(element)
    {}

    bool enterChild() override;
    QString tag() const override { return m_element.tagName(); }
    bool hasAttribute(QLatin1String name) const override { return m_element.hasAttribute(name); }
    QString attribute(QLatin1String name) const override { return m_element.attribute(name); }
    QString takeText() override;
    void skip() override;

private:
    QDomElement m_element;
    QDomElement m_previousChild;
};

} // namespace PYXRuntime
