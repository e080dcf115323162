// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QMap>
#include <QtCore/QString>
#include <QtCore/QStringView>
#include <QtCore/QVariant>

#include <memory>
#include <vector>

namespace PYXRuntime {

/** A node of the tree that a flat map of settings becomes before it is written. */
class XmlSettingsNode final
{
public:
    enum eKind {
        ekRoot = 0,
        ekNode = 1, ///< not yet classified
        ekEntry = 2,
        ekGroup = 3,
        ekArray = 4,
        ekItem = 5
    };
    /** Sorted by their names in the order of UTF-16 code units. */
    using Children = std::vector<std::unique_ptr<XmlSettingsNode>>;

    /** Elements that a file may have inside each other; the reader refuses a deeper file. */
    static constexpr int MaximumElementLevels = 512;

    XmlSettingsNode(eKind kind, const QString &name);
    /** An empty root. */
    XmlSettingsNode();

    /**
     * Inserts a value below this root under a key whose segments are separated by "/". A key of more
     * segments than a file can nest ends in an entry that has the rest of the key as its name.
     */
    void insert(const QString &key, const QVariant &value);

    /** Finds the kinds and the attributes of all nodes below this root. */
    void classify();

    eKind kind() const { return m_kind; }
    const QString &name() const { return m_name; }
    const QVariant &value() const { return m_value; }
    const Children &children() const { return m_children; }
    const QMap<QString, QString> &attributes() const { return m_attributes; }

private:
    Children::iterator _position(QStringView name);
    bool _isChildAt(Children::iterator position, QStringView name) const;
    XmlSettingsNode *_childNode(QStringView name);
    void _addEntry(QStringView name, const QVariant &value);
    void _classifyChildren();
    void _classifyBelow(eKind parentKind);
    bool _isArrayCandidate();
    void _takeSize();

    eKind m_kind;
    QString m_name;
    QVariant m_value;
    Children m_children;
    QMap<QString, QString> m_attributes;
};

} // namespace PYXRuntime
