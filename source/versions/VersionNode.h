// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

namespace PYXRuntime {

/**
 * A node of the tree that a version resource is: a key, a value, and children. Nodes are looked for as the
 * system does, without regard to case, and the first one counts.
 *
 * The lengths in the bytes are not trusted: a node ends where its parent does at the latest, and what it does
 * not hold in full is empty.
 */
class VersionNode final
{
public:
    /** A node that is not there. */
    VersionNode() = default;
    /** The root of a resource. */
    explicit VersionNode(const QByteArray &block);

    bool isValid() const { return m_end > m_begin; }
    QString key() const;
    /** The value as bytes, as long as it says it is. */
    QByteArray value() const;
    /** The value as a text, to its first NUL; empty where it says it has no length. */
    QString text() const;

    VersionNode child(const QString &key) const;
    VersionNode firstChild() const;
    /** The next one of the same parent, which ends at parentEnd. */
    VersionNode next() const;

private:
    VersionNode(const QByteArray &block, int begin, int limit);
    int _valueSize() const;
    int _textEnd(int begin) const;

    QByteArray m_block; // shared
    int m_begin = 0;
    int m_end = 0;
    int m_value = 0;
    int m_limit = 0; // where the parent ends
};

} // namespace PYXRuntime
