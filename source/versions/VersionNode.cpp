// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "VersionNode.h"

#include "LittleEndian.h"

#include <algorithm>

namespace PYXRuntime {
namespace {

const int HeaderSize = 6; // length, length of the value, type

int aligned(int offset)
{
    return (offset + 3) & ~3;
}

QString textOf(const QByteArray &block, int begin, int end)
{
    QString text;
    text.reserve((end - begin) / 2);
    for (int offset = begin; offset < end; offset += 2)
        text += QChar(littleEndian<quint16>(block, offset));
    return text;
}

} // namespace

VersionNode::VersionNode(const QByteArray &block)
    : VersionNode(block, 0, block.size())
{}

VersionNode::VersionNode(const QByteArray &block, int begin, int limit)
{
    const int length = littleEndian<quint16>(block, begin);
    if (length < HeaderSize || limit - begin < HeaderSize)
        return;
    m_block = block;
    m_begin = begin;
    m_end = std::min(begin + length, limit);
    m_value = std::min(aligned(_textEnd(begin + HeaderSize) + 2), m_end);
    m_limit = limit;
}

// Where the NUL is, or where nothing comes after the text.
int VersionNode::_textEnd(int begin) const
{
    int end = begin;
    while (end + 2 <= m_end && littleEndian<quint16>(m_block, end) != 0)
        end += 2;
    return end;
}

int VersionNode::_valueSize() const
{
    return std::min(int(littleEndian<quint16>(m_block, m_begin + 2)), m_end - m_value);
}

QString VersionNode::key() const
{
    return isValid() ? textOf(m_block, m_begin + HeaderSize, _textEnd(m_begin + HeaderSize)) : QString();
}

QByteArray VersionNode::value() const
{
    return isValid() ? m_block.mid(m_value, _valueSize()) : QByteArray();
}

// Resource compilers do not agree whether the length of a text counts bytes, and whether it counts the NUL.
QString VersionNode::text() const
{
    return isValid() && _valueSize() > 0 ? textOf(m_block, m_value, _textEnd(m_value)) : QString();
}

VersionNode VersionNode::child(const QString &key) const
{
    VersionNode node = firstChild();
    while (node.isValid() && node.key().compare(key, Qt::CaseInsensitive) != 0)
        node = node.next();
    return node;
}

VersionNode VersionNode::firstChild() const
{
    return isValid() ? VersionNode(m_block, aligned(m_value + _valueSize()), m_end) : VersionNode();
}

VersionNode VersionNode::next() const
{
    return isValid() ? VersionNode(m_block, aligned(m_end), m_limit) : VersionNode();
}

} // namespace PYXRuntime
