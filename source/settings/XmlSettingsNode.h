// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QMap>
#include <QtCore/QString>
#include <QtCore/QVariant>

#include <map>
#include <memory>

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
    /** In the order of UTF-16 code units. */
    using Children = std::map<QString, std::unique_ptr<XmlSettingsNode>>;

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
    XmlSettingsNode *_childNode(const QString &name);
    void _addEntry(const QString &name, const QVariant &value);
    void _classifyChildren();
    void _classifyBelow(eKind parentKind);
    bool _isArrayCandidate() const;
    void _takeSize();

    eKind m_kind;
    QString m_name;
    QVariant m_value;
    Children m_children;
    QMap<QString, QString> m_attributes;
};

} // namespace PYXRuntime
