// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "XmlSettingsNode.h"

#include <QtCore/QtDebug>

#include <algorithm>

namespace PYXRuntime {
namespace {

const QLatin1Char Separator('/');
constexpr QStringView SizeName(u"size");
// The root above the groups, and below them an entry with its <name> and <value>.
constexpr int MaximumGroups = XmlSettingsNode::MaximumElementLevels - 3;

bool isDigits(const QString &name)
{
    const auto isDigit = [](QChar c) { return c >= QLatin1Char('0') && c <= QLatin1Char('9'); };
    return !name.isEmpty() && std::all_of(name.begin(), name.end(), isDigit);
}

/** Whether the name is what an index looks like when it is printed: "07" would come back as "7". */
bool isIndex(const QString &name)
{
    return isDigits(name) && QString::number(name.toInt()) == name;
}

} // namespace

XmlSettingsNode::XmlSettingsNode(eKind kind, const QString &name)
    : m_kind(kind)
    , m_name(name)
{}

XmlSettingsNode::XmlSettingsNode()
    : XmlSettingsNode(ekRoot, QStringLiteral("PYXXmlSettings"))
{
    m_attributes.insert(QStringLiteral("version"), QStringLiteral("1.0"));
}

void XmlSettingsNode::insert(const QString &key, const QVariant &value)
{
    XmlSettingsNode *node = this;
    int start = 0;
    for (int groups = 0; groups < MaximumGroups; ++groups) {
        const int end = key.indexOf(Separator, start);
        if (end < 0)
            break;
        node = node->_childNode(QStringView(key).mid(start, end - start));
        start = end + 1;
    }
    node->_addEntry(QStringView(key).mid(start), value);
}

/** Where a child of this name is, or is to be inserted. Keys mostly come in order. */
XmlSettingsNode::Children::iterator XmlSettingsNode::_position(QStringView name)
{
    const auto isBefore = [](const auto &child, QStringView other) {
        return QStringView(child->m_name).compare(other) < 0;
    };
    if (m_children.empty() || isBefore(m_children.back(), name))
        return m_children.end();
    if (m_children.back()->m_name == name)
        return m_children.end() - 1;
    return std::lower_bound(m_children.begin(), m_children.end(), name, isBefore);
}

bool XmlSettingsNode::_isChildAt(Children::iterator position, QStringView name) const
{
    return position != m_children.end() && (*position)->m_name == name;
}

XmlSettingsNode *XmlSettingsNode::_childNode(QStringView name)
{
    auto position = _position(name);
    if (!_isChildAt(position, name))
        position = m_children.insert(position, std::make_unique<XmlSettingsNode>(ekNode, name.toString()));
    (*position)->m_kind = ekNode;
    return position->get();
}

void XmlSettingsNode::_addEntry(QStringView name, const QVariant &value)
{
    auto position = _position(name);
    if (_isChildAt(position, name)) {
        qWarning().noquote()
            << QStringLiteral("Node [%1] already contains [%2]").arg(m_name, name.toString());
        return;
    }
    position = m_children.insert(position, std::make_unique<XmlSettingsNode>(ekEntry, name.toString()));
    (*position)->m_value = value;
}

void XmlSettingsNode::classify()
{
    _classifyChildren();
}

void XmlSettingsNode::_classifyChildren()
{
    for (const auto &child : m_children)
        child->_classifyBelow(m_kind);
}

void XmlSettingsNode::_classifyBelow(eKind parentKind)
{
    if (m_kind != ekNode)
        return;
    if (_isArrayCandidate()) {
        m_kind = ekArray;
        _takeSize();
    } else {
        m_kind = parentKind == ekArray && isIndex(m_name) ? ekItem : ekGroup;
    }
    if (m_kind == ekItem)
        m_attributes.insert(QStringLiteral("index"), m_name);
    else
        m_attributes.insert(QStringLiteral("name"), m_name);
    _classifyChildren();
}

bool XmlSettingsNode::_isArrayCandidate()
{
    const auto size = _position(SizeName);
    if (!_isChildAt(size, SizeName) || (*size)->m_kind != ekEntry ||
        (*size)->m_value.userType() != QMetaType::Int)
        return false;
    const auto hasDigits = [](const auto &child) { return isDigits(child->m_name); };
    return m_children.size() == 1 || std::any_of(m_children.begin(), m_children.end(), hasDigits);
}

void XmlSettingsNode::_takeSize()
{
    const auto size = _position(SizeName);
    m_attributes.insert(SizeName.toString(), QString::number((*size)->m_value.toInt()));
    m_children.erase(size);
}

} // namespace PYXRuntime
