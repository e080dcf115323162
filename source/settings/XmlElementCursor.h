// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QString>

namespace PYXRuntime {

/** Walks forward through the elements of a document, whether they are streamed or in memory. */
class XmlElementCursor
{
public:
    /** Deepest nesting of elements that is read. */
    static constexpr int MaximumElementLevels = 512;

    virtual ~XmlElementCursor() = default;

    /**
     * Steps into the next child of the current element. @return false where there is none; the cursor has
     * then left the current element and stands in its parent.
     */
    virtual bool enterChild() = 0;
    virtual QString tag() const = 0;
    virtual bool hasAttribute(QLatin1String name) const = 0;
    virtual QString attribute(QLatin1String name) const = 0;
    /** The text that stands directly in the current element, never null; leaves the element. */
    virtual QString takeText() = 0;
    /** Leaves the current element with all that is in it. */
    virtual void skip() = 0;

protected:
    XmlElementCursor() = default;
    XmlElementCursor(const XmlElementCursor &) = default;
    XmlElementCursor &operator=(const XmlElementCursor &) = default;
};

} // namespace PYXRuntime
